// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QLatin1String>

namespace appPlugins {

/// Colours, font and folder that every widget of the toolkit shares, in the form of style sheets.
namespace Look {

const QLatin1String White("rgb(255,255,255)");        ///< texts and frames
const QLatin1String DisabledGrey("rgb(146,146,146)"); ///< texts and frames of disabled widgets
const QLatin1String FocusBlue("rgb(52,120,247)"); ///< the focus, checked buttons, selected cells
const QLatin1String DarkBackground("#1e1e1e");    ///< behind buttons
const QLatin1String PanelBackground("#2e2e2e");   ///< behind rows of a form and tables
const QLatin1String AppFolder("/mnt/user-data/.app/"); ///< holds the folders of pictures
/// The font; Qt takes another where there is none of this name.
const QLatin1String FontFamily("Frutiger LT Com 55 Roman");

/// The blue of the focus for what is painted and not styled.
inline QColor focusBlue()
{
    return {52, 120, 247};
}

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
