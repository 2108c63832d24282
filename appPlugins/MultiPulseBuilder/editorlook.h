// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QMargins>
#include <QRect>
#include <QString>

/// Measures, fonts and style sheets of the editor's window. The content is made for the
/// instrument's screen; all measures are pixels.
namespace EditorLook {

const int ScreenWidth = 800;
const int ScreenHeight = 480;

/// Between the areas, and between them and the screen's edges.
const int Spacing = 8;

const QRect TitleArea(0, 0, 800, 44);
const QRect ParameterArea(8, 44, 384, 360);
const QRect ThumbnailArea(400, 44, 392, 176);
const QRect TableArea(400, 228, 392, 176);
const QRect BottomArea(8, 408, 784, 1);

/// Inside the parameter panel and its border, and between its rows: seven of one height fill it.
const QMargins ParameterMargins(4, 8, 4, 8);
const int RowGap = 5;

/// How a parameter's row is shared out among title, value and unit: the value has room for the
/// longest number, a timer of hundreds of seconds.
const int TitleShare = 160;
const int ValueShare = 180;
const int UnitShare = 16;

QFont titleFont();

/// The panels of the content area.
QString mainStyleSheet();
/// Labels that hold an input or a picture.
QString labelStyleSheet();
/// A tool bar that is laid out for a window of the given size.
QString toolBarStyleSheet(int windowWidth, int windowHeight);
QRect toolBarArea(int windowWidth, int windowHeight);
/// Side of the square icons in a tool bar.
int iconSize(const QRect& toolBar);

/// The window of the help page.
QString helpStyleSheet();

} // namespace EditorLook
