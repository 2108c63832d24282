// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QLatin1String>

/// Colours, font and folders that every widget of the toolkit shares.
namespace appPlugins {
namespace Look {

const QLatin1String White("rgb(255,255,255)");
const QLatin1String DisabledGrey("rgb(146,146,146)");
const QLatin1String FocusBlue("rgb(52,120,247)");
const QLatin1String DarkBackground("#1e1e1e");
const QLatin1String PanelBackground("#2e2e2e");
const QLatin1String AppFolder("/mnt/user-data/.app/");
const QLatin1String FontFamily("Frutiger LT Com 55 Roman");

/// The toolkit's text: 12 points, bold, then 16 pixels high. The size in points is what a style
/// that measures in points falls back to; the size in pixels is what is drawn.
inline QFont textFont()
{
    QFont font(FontFamily, 12, QFont::Bold, false);
    font.setPixelSize(16);
    return font;
}

} // namespace Look
} // namespace appPlugins
