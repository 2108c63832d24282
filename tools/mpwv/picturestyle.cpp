// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "picturestyle.h"

#include <algorithm>

double PictureStyle::scaleOf(double width, double height)
{
    return std::max(0.75, std::min(width / 1200.0, height / 600.0));
}

QFont PictureStyle::fontOf(double pixels, double scale, bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::max(7, qRound(pixels * scale)));
    font.setBold(bold);
    return font;
}
