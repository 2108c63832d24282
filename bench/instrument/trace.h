// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

/// Order of the two bytes of a sample in a block of trace data.
enum class ByteOrder {
    Normal, ///< most significant byte first
    Swapped ///< least significant byte first
};

/// Most samples that one block of trace data carries; a burst of more is shown in part.
const int MaxTraceSamples = 1048576;

/// What a channel put out in one burst: its counts, and how they become volts and seconds.
///
///     volts(i)   = levelOffset + counts(i) * levelScale
///     seconds(i) = startTime + i * timeStep, counted from the trigger
///
/// The default is the empty trace of a channel that has not played yet: no samples, and numbers
/// that are NaN.
struct Trace
{
    QVector<qint16> cycle;      ///< the counts of one waveform cycle, -32764 to 32764 at full scale
    double cycles = 0;          ///< how often the burst repeats it; infinite without an end
    double timeStep = qQNaN();  ///< seconds from one sample to the next
    double startTime = qQNaN(); ///< seconds from the trigger to the first sample
    double levelScale = qQNaN();  ///< volts at the load for one count
    double levelOffset = qQNaN(); ///< volts at the load for a count of 0

    bool isEmpty() const { return cycle.isEmpty(); }

    /// Whole cycles that the data shows: all of the burst, or as many as MaxTraceSamples hold; one
    /// of a burst without an end.
    int shownCycles() const;

    /// Samples in the data: the shown cycles one behind the other.
    int points() const { return shownCycles() * cycle.size(); }

    /// Volts at the load of sample @p index, 0 to points() - 1.
    double volts(int index) const;
};

/// @p data as an IEEE 488.2 definite-length block: "#", the number of digits of the length, the
/// length in bytes, the bytes. No data gives "#10".
QByteArray definiteLengthBlock(const QByteArray& data);

/// The counts of all points as signed 16-bit numbers in the given order, as a definite-length
/// block.
QByteArray traceBlock(const Trace& trace, ByteOrder order);
