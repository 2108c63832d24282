// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>
#include <QtGlobal>

#include <vector>

/// Pulses in the samples of a waveform, found at half height between the lowest and the highest
/// sample.

struct FoundPulse
{
    int start;    ///< first point above half height (below it, for a pulse that goes down)
    int width;    ///< points
    int gap;      ///< points up to the next pulse, or to the end
    qint16 level; ///< the sample that lies farthest from the base
};

struct FoundPulses
{
    bool downwards = false; ///< the base is the high level
    QVector<FoundPulse> pulses;
};

/// First points of the stretches behind the first one, each on the other side of half height than
/// its predecessor. None for a constant waveform.
QVector<int> findEdges(const std::vector<qint16>& samples);

/// The base is the level at the end, where the gap of the last pulse stands.
FoundPulses findPulses(const std::vector<qint16>& samples);
