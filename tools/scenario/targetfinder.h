// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"
#include "statement.h"

#include <QVector>

class IdentifierTexts;

/// Items that a target means, the likeliest first. Without a relation all that show the text, in
/// reading order; with relations the nearest first. What can be touched comes before mere texts and
/// headers. Of items that lie within each other and show
/// the same text, as a button and the label on it, only the first is named. A place means none.
///
/// Left and right of a landmark is what shares at least half of its height, or the landmark half of
/// the item's; above and below likewise with widths. Distances count from edge to edge.
QVector<Keypad::ScreenItem> findTarget(const ScreenTarget& target,
                                       const Keypad::ScreenDescription& screen,
                                       const IdentifierTexts& texts);

/// How many of the items that were found without a relation are as likely as the first one: those
/// that can be touched, or all of them if none can.
int likelyCount(const QVector<Keypad::ScreenItem>& found);

/// How a report names a target.
QString shownTarget(const ScreenTarget& target, const IdentifierTexts& texts);
