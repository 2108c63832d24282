// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

/// The pictures in which the quantity that is being edited is marked. One set is for a train of two
/// pulses, one for three and more.
namespace ThumbnailPicture {

/// File name for the parameter with the object name @p focusName; the unmarked picture for every
/// other name, the empty one included.
QString forFocus(const QString& focusName, int pulseCount);

/// File name for a cell of the pulse table: x is its row, y its column (0 width, 1 gap). Cells that
/// have no picture of their own, and (-1, -1), get the unmarked one.
QString forCell(const QPoint& cell, int pulseCount);

/// File name of the unmarked picture.
QString unmarked(int pulseCount);

/// Path of a picture among the installed content.
QString path(const QString& fileName);

} // namespace ThumbnailPicture
