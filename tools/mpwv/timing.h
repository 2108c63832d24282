// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsetrain.h"

/// What the point budget makes of the times of a train.

/// A time that was asked for, and what of it the waveform plays.
struct QuantisedTime
{
    double asked = 0;  ///< seconds
    double points = 0; ///< of the waveform
    double got = 0;    ///< seconds; not a number for a waveform without points

    double error() const { return got - asked; }
    double errorPercent() const { return error() / asked * 100; }
};

struct PulseTiming
{
    QuantisedTime width;
    QuantisedTime gap;
};

struct TrainTiming
{
    double period = 0;    ///< seconds
    double frequency = 0; ///< hertz, as the instrument is told
    qint64 points = 0;    ///< of the waveform
    /// Seconds between two points: the instrument plays all of a file's points in one period. Not a
    /// number for a waveform without points.
    double spacing = 0;
    QuantisedTime delay;
    QVector<PulseTiming> pulses;
};

TrainTiming trainTiming(const PulseTrain& train);
