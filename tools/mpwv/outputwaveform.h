// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsetrain.h"
#include "waveformreader.h"

#include <QByteArray>

#include <vector>

/// One period of what leaves the generator: each point's voltage holds until the next point.
struct OutputWaveform
{
    std::vector<double> volts; ///< at the load
    double low = 0;            ///< nominal levels in volts, not those of the samples
    double high = 0;
    double step = 0; ///< seconds from point to point; 0 where no time base is known

    bool hasTime() const { return step > 0; }

    /// Spreads @p seconds over the points. A period that is not a positive number, or a waveform
    /// without points, leaves no time base.
    void setPeriod(double seconds);

    /// Place of a point on the time axis in seconds, or its index where no time base is known.
    double position(double point) const { return hasTime() ? point * step : point; }
};

/// What a waveform file makes of the generator's output into @p load, which sees twice the file's
/// voltage when it is of high impedance. A file has no time base.
OutputWaveform outputOfFile(const appPlugins::WaveformFile& file, LoadImpedance load);

/// What a train makes of it: exactly the samples that its waveform file holds, over its period.
/// Returns an empty text and fills @p output, or the reason.
QString outputOfTrain(const PulseTrain& train, OutputWaveform& output);

/// The waveform as comma-separated values: a line that names the columns ("time_s,volts", or
/// "point,volts" without a time base) and one line for each point. The numbers are as short as they
/// can be and still read back as the same doubles.
QByteArray csvOf(const OutputWaveform& waveform);
