// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>

/// How much a picture of a page differs from the approved one. Text that another version of the
/// font renderer draws a little thinner or a pixel further makes no clear difference.
struct PictureDifference
{
    double mean = 0;  ///< mean difference of the channels, 0 to 255
    double share = 0; ///< share of clearly different pixels in the worst tile, 0 to 1
    QPoint worst;     ///< centre of that tile
    QImage picture;   ///< the approved picture, darkened, with the clearly different pixels in red

    /// What still counts as the same picture.
    bool tolerable() const;
};

/// Pictures of different sizes differ in everything.
PictureDifference differenceOf(const QImage& approved, const QImage& rendered);
