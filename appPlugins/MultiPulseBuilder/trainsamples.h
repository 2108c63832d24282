// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsetrain.h"

#include "apptypes.h"

#include <vector>

/// Points that one period of a train is quantised to, and the size of every sample buffer here.
const int PointBudget = 131072;

/// One pulse of a train in points: its stretch of the waveform, and what the stretch is made of.
/// The counts of odd documents may be negative or leave the budget; nothing outside it is ever
/// written.
struct PulseStretch
{
    qint64 start = 0;  ///< index of its first point in the waveform
    qint64 points = 0; ///< length: the sum of the five counts below
    double delay = 0;  ///< base level before the leading edge; 0 but in the first stretch
    double leadingEdge = 0;
    double width = 0; ///< at 50 %
    double trailingEdge = 0;
    double gap = 0;
};

/// The stretches of a train in order. An empty train still has one: its delay and edges.
std::vector<PulseStretch> pulseStretches(const PulseTrain& train);

/// Points of the waveform that pulseStretches() make: 0 to PointBudget.
Uint32 waveformPoints(const std::vector<PulseStretch>& stretches);

/// Fills @p buffer (PointBudget doubles, zeroed first) with the train in volts, as the waveform
/// file holds it. Returns the number of points.
Uint32 synthesise(const PulseTrain& train, double* buffer);

/// Writes the train's waveform file over @p filePath, with @p buffer (PointBudget doubles) as work
/// space. Returns false when the file could not be written; a partial file may remain.
bool writeTrainWaveform(const char* filePath, const PulseTrain& train, double* buffer);

/// The same, and tells the number of points that it has made.
bool writeTrainWaveform(const char* filePath, const PulseTrain& train, double* buffer,
                        Uint32& points);

/// The same with a buffer of its own, allocated and freed within the call.
bool writeTrainWaveform(const char* filePath, const PulseTrain& train, Uint32& points);
bool writeTrainWaveform(const char* filePath, const PulseTrain& train);
