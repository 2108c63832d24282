// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QPointF>
#include <QVector>

#include <vector>

/// What a channel put out in its last burst, and the level between bursts. Times are seconds since
/// the trigger, levels volts at the load. Each sample's level holds until the next sample.
struct OutputTrace
{
    std::vector<qint16> counts; ///< empty before the first burst
    double step = 0;            ///< seconds from sample to sample, above 0 where there are samples
    double start = 0;           ///< of the first sample
    double scale = 0;           ///< volts for one count
    double offset = 0;          ///< volts for the count 0
    double idle = 0;            ///< volts before and after the samples

    bool isEmpty() const { return counts.empty(); }
    double end() const { return start + step * double(counts.size()); }
    double voltsOf(qint16 count) const { return offset + scale * count; }

    /// The level at a time, idle outside the samples.
    double voltsAt(double seconds) const;

    /// Lowest and highest level of all samples and between bursts.
    void levels(double& lowest, double& highest) const;
};

/// The line that draws the trace from @p from to @p to seconds in @p columns columns: with the
/// levels between bursts on both sides, upright steps, and never more than some 4 x @p columns
/// corners however many samples there are; each column keeps its lowest and highest level.
QVector<QPointF> outlineOf(const OutputTrace& trace, double from, double to, int columns);

/// All samples as comma-separated values behind the line "time_s,volts". Numbers are as short as
/// they can be and still read back as the same doubles.
QByteArray csvOf(const OutputTrace& trace);
