// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QStringList>

/// The text face that the toolkit's style sheets name is on the instrument, and not free. Programs
/// on a desktop call this once, before they show a widget: wherever that face is missing, open
/// faces of the same humanist kind take its place, the later ones for the characters that the
/// earlier ones lack. On the instrument itself it changes nothing.
inline void substituteTextFont()
{
    QFont::insertSubstitutions(QStringLiteral("Frutiger LT Com 55 Roman"),
                               {QStringLiteral("Open Sans"), QStringLiteral("Droid Sans Fallback"),
                                QStringLiteral("DejaVu Sans")});
}
