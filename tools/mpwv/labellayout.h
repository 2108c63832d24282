// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

/// Where the texts of dimension lines go, in any one unit of length (pixels here). A text stands in
/// row 0, between the ends of its line, if it fits there; otherwise in the first row above in which
/// it collides with nothing, with a leader from its line that crosses no text either.

struct LabelRequest
{
    double from = 0; ///< ends of the dimension line
    double to = 0;
    double width = 0; ///< of the text
};

struct LabelPlace
{
    int row = -1;    ///< -1: there is no room for it
    double left = 0; ///< left end of the text
};

/// The space that labels may use.
struct LabelSpace
{
    double left = 0;
    double right = 0;
    int rows = 0;       ///< rows above row 0
    double margin = 0;  ///< kept free on both sides of a text
    bool inside = true; ///< whether row 0 may hold texts
};

/// Places the labels, each as low as it goes. Where not all of them find a place, as many as one of
/// a few ways to go about it places. The result has one entry for each.
QVector<LabelPlace> placeLabels(const QVector<LabelRequest>& labels, const LabelSpace& space);

/// Whether every label has found a place.
bool allPlaced(const QVector<LabelPlace>& places);

/// The highest row in use; 0 for none.
int rowsUsed(const QVector<LabelPlace>& places);
