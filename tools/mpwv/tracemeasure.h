// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputwaveform.h"

#include <QVector>

/// Finding pulses in what leaves the generator. A pulse begins with the first point that has
/// crossed half of the way between the levels, and ends before the first that has crossed it back;
/// since a point holds its voltage until the next one, that is where an oscilloscope sees the
/// edges.

enum class Polarity { Positive, Negative };

/// A pulse in whole points.
struct MeasuredPulse
{
    qint64 start = 0;
    qint64 width = 0;
};

/// A pulse in seconds at half of its height.
struct PulseSpan
{
    double start = 0;
    double width = 0;
};

/// The pulses of @p waveform in order. A pulse that lasts until the end is one; a waveform whose
/// points are all equal has none.
QVector<MeasuredPulse> measurePulses(const OutputWaveform& waveform, Polarity polarity);

/// The polarity of a waveform whose train is not known: the base is the level at the end, where the
/// gap of the last pulse stands.
Polarity guessPolarity(const OutputWaveform& waveform);

/// The polarity of a train: its trigger slope decides.
Polarity polarityOf(const PulseTrain& train);

/// Start and width of each pulse that a train asks for, in table order.
QVector<PulseSpan> askedPulses(const PulseTrain& train);

/// The pulses in seconds; all zeros where the waveform has no time base.
QVector<PulseSpan> spansOf(const QVector<MeasuredPulse>& pulses, const OutputWaveform& waveform);
