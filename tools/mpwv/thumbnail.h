// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cfilebase.h"

#include <QStringList>

#include <array>
#include <vector>

/// The byte pairs of a waveform file's thumbnail: (lower end, upper end) of a stroke per column.
using Thumbnail = std::array<quint8, 2 * size_t(appPlugins::ThumbnailColumns)>;

/// The byte pair of a column, 0 to 205.
inline const quint8* thumbnailColumn(const quint8* thumbnail, int column)
{
    return thumbnail + size_t(2) * static_cast<size_t>(column);
}

/// The thumbnail that the writer makes of these samples.
Thumbnail thumbnailOf(const std::vector<qint16>& samples);

/// Lines of block characters that show the strokes, three columns of the thumbnail in a character
/// and two steps of height in a line.
QStringList thumbnailText(const quint8* thumbnail);
