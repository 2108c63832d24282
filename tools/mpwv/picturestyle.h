// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

/// Colours and sizes of the pictures, in one place so that all of their parts match.
namespace PictureStyle {

const QColor Ink(0x22, 0x26, 0x2b);
const QColor QuietInk(0x6a, 0x72, 0x7c);
const QColor GridLine(0xe4, 0xe7, 0xeb);
const QColor ExtensionLine(0xc3, 0xc9, 0xd1);
const QColor Trace(0x1d, 0x5f, 0xb4);
const QColor TraceFill(0x1d, 0x5f, 0xb4, 0x28);

/// Factor by which fonts and lines grow with a picture of the given size; 1 at 1200 x 600.
double scaleOf(double width, double height);

/// The pictures' font, @p pixels high at a scale of 1.
QFont fontOf(double pixels, double scale, bool bold = false);

} // namespace PictureStyle
