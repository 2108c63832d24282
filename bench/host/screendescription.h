// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"

/// Every text that a person can see on the screen now, in reading order, as a screen reader would
/// be told of it: those of the topmost windows, dialogs, menus and lists that are open, cell by
/// cell in tables and lists. What is hidden, scrolled away, off the screen or covered at its middle
/// is left out.
QVector<Keypad::ScreenItem> visibleTexts();

/// @p items sorted as they are read: line by line, each from left to right. What overlaps another's
/// middle in height stands on its line.
QVector<Keypad::ScreenItem> inReadingOrder(QVector<Keypad::ScreenItem> items);
