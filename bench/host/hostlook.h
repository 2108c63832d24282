// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "toolkitlook.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSize>

/// Sizes, colours and fonts of the host's own pages. They are set by palettes and painting: a style
/// sheet of the screen's surface would reach into the windows of plug-ins.
namespace HostLook {

const QSize ScreenSize(800, 480);
const int TouchSize = 44;
const int Gap = 12;
const int Radius = 8;

const QColor Background(0x16, 0x17, 0x19);
const QColor Card(0x26, 0x28, 0x2b);
const QColor Well(0x1a, 0x1b, 0x1d);
const QColor Raised(0x36, 0x39, 0x3d);
const QColor Line(0x45, 0x48, 0x4d);
const QColor Text(255, 255, 255);
const QColor Quiet(164, 168, 174);
const QColor Off(104, 108, 114);
const QColor Focus(52, 120, 247);
const QColor Good(64, 200, 120);
const QColor Bad(255, 112, 88);
const QColor Channel1(255, 204, 64);
const QColor Channel2(86, 196, 255);

/// The instrument's text face, as high as wanted in pixels.
inline QFont font(int pixels, bool bold = false)
{
    QFont font(appPlugins::Look::FontFamily);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

inline QColor channelColor(int channel)
{
    return channel == 1 ? Channel1 : Channel2;
}

/// What the application's widgets are painted with unless they say otherwise.
inline QPalette palette()
{
    QPalette dark(Text, Raised, Raised.lighter(), Well, Line, Text, Text, Well, Background);
    dark.setColor(QPalette::Highlight, Focus);
    dark.setColor(QPalette::HighlightedText, Text);
    dark.setColor(QPalette::Link, Focus.lighter(130));
    dark.setColor(QPalette::PlaceholderText, Quiet);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(146, 146, 146));
    return dark;
}

} // namespace HostLook
