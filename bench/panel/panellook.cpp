// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panellook.h"

QPalette PanelLook::palette()
{
    QPalette palette(Surface, Window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
          QPalette::HighlightedText, QPalette::ToolTipText}) {
        palette.setColor(role, Text);
        palette.setColor(QPalette::Disabled, role, Disabled);
    }
    palette.setColor(QPalette::Base, Glass);
    palette.setColor(QPalette::AlternateBase, Surface);
    palette.setColor(QPalette::ToolTipBase, Surface);
    palette.setColor(QPalette::Highlight, Focus);
    palette.setColor(QPalette::Link, Focus.lighter(140));
    palette.setColor(QPalette::PlaceholderText, Disabled);
    return palette;
}
