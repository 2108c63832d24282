// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace HostDialogs {

/// What is wrong with a name that a user typed for a file or folder.
enum class NameFault { None, Empty, Slash, Dots, Hidden, Control, TooLong };

/// Judges a name. Whatever passes is one component of a path that stays in its folder: no slash, no
/// "." or "..", no leading dot, nothing invisible (control, direction and other format characters,
/// halves of surrogate pairs), at most 255 bytes of UTF-8.
NameFault checkName(const QString& name);

/// The fault in the user's words; empty for none.
QString faultText(NameFault fault);

/// True for a name that ends in one of @p suffixes (".json"), in either case, and for every name if
/// there are no suffixes.
bool hasSuffix(const QString& name, const QStringList& suffixes);

/// @p typed with @p chosen (".json") at its end, unless it has one of @p suffixes already. Nothing
/// becomes of an empty name.
QString completeName(const QString& typed, const QStringList& suffixes, const QString& chosen);

/// Filters as a program gives them, as suffixes: "*.json" is ".json", and "*" or "*.*" is no
/// filter.
QStringList suffixesOf(const QStringList& filters);

/// A name as it may be shown: what could break a line or turn the direction of the text around is
/// replaced by a mark.
QString shownName(const QString& name);

/// A text about a file: the name, as it may be shown and not longer than a line, in the place of
/// "%1".
QString withName(QString text, const QString& name);

} // namespace HostDialogs
