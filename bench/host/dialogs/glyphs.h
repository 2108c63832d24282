// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace HostDialogs {

/// Small pictures, drawn by lines so that they are sharp at every size.
enum class Glyph {
    None,
    Home,
    UpFolder,
    Folder,
    NewFolder,
    File,
    Backspace,
    Shift,
    ShiftLocked,
    Enter,
    Cross,
    HideKeyboard,
    Left,
    Right,
    StepUp,
    StepDown,
    Space
};

/// Draws @p glyph in @p colour into the largest square in the middle of @p place.
void drawGlyph(QPainter& painter, const QRectF& place, Glyph glyph, const QColor& colour);

} // namespace HostDialogs
