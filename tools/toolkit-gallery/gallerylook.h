// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QLatin1String>

/// Sizes, colours and fonts of what surrounds the widgets on show.
namespace GalleryLook {

const int ScreenWidth = 800;
const int ScreenHeight = 480;
const int TabHeight = 44;
const int MessageHeight = 24;
const int LegendHeight = 40;
const int PageHeight = ScreenHeight - TabHeight - MessageHeight - LegendHeight;
const int TouchHeight = 36;
const int CaptionHeight = 20;

const QLatin1String WindowStyle("QDialog#gallery{background:#1e1e1e;}");
const QLatin1String CaptionStyle("QLabel{color:rgb(176,176,176);background:transparent;}");
const QLatin1String MessageStyle("QLabel{color:%1;background:#262626;padding:0 8px;}");
const QLatin1String MessageColour("rgb(255,196,0)");
const QLatin1String HintColour("rgb(160,160,160)");

/// The text face of the instrument, as high as wanted in pixels.
inline QFont font(int pixels, bool bold = false)
{
    QFont font(QStringLiteral("Frutiger LT Com 55 Roman"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

} // namespace GalleryLook
