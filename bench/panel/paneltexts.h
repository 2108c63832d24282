// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

struct FrontKey;

/// Texts of the panel that are put together from several.
namespace PanelTexts {

/// What a key does: "Kilo or milli".
QString keyMeaning(const FrontKey& key);

/// The desktop's keys that stand for it: "G or N".
QString keyEquivalent(const FrontKey& key);

/// What a key does and the desktop's keys for it, for hovering.
QString keyHelp(const FrontKey& key);

/// All keys and what the keyboard does besides, as rich text.
QString helpPage();

} // namespace PanelTexts
