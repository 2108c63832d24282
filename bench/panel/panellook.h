// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// Colours and fonts of the front and of what surrounds it.
namespace PanelLook {

const QColor Text(255, 255, 255);
const QColor DimText(176, 176, 176);
const QColor Disabled(146, 146, 146);
const QColor Focus(52, 120, 247);
const QColor Window(0x1e, 0x1e, 0x1e);
const QColor Surface(0x2e, 0x2e, 0x2e);
const QColor Glass(0x0b, 0x0c, 0x0e);
const QColor Channel1(0xf5, 0xc8, 0x2e);
const QColor Channel2(0x3f, 0xb6, 0xe8);
const QColor LampOff(0x3a, 0x35, 0x22);
const QColor Warning(0xff, 0xb0, 0x30);
const QColor Good(0x4c, 0xc3, 0x6b);
const QColor Grid(0x3c, 0x40, 0x46);

/// The text face of the instrument, @p pixels high; less than one pixel becomes one.
inline QFont font(double pixels, bool bold = false)
{
    QFont font(QStringLiteral("Frutiger LT Com 55 Roman"));
    font.setPixelSize(qMax(1, qRound(pixels)));
    font.setBold(bold);
    return font;
}

/// For the parts that the style draws: menus, tips, dialogs.
QPalette palette();

} // namespace PanelLook
