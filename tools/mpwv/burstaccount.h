// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "channeltrace.h"
#include "tracemeasure.h"

#include <QString>
#include <QVector>

#include <optional>

/// What a burst is held against: the train that was asked for, and the waveform file made of it.
struct BurstAccount
{
    /// One pulse of the train; seconds from the trigger.
    struct Row
    {
        PulseSpan asked;
        std::optional<PulseSpan> played; ///< nothing where no pulse was found for it
    };

    double sample = 0; ///< seconds from one sample of the trace to the next
    double low = 0;    ///< lowest and highest voltage played
    double high = 0;
    QVector<Row> rows;
    int found = 0; ///< pulses in the trace

    /// What the trace has that the file has not, or the other way round; empty when every edge is
    /// played within one sample of where the file has it, and the voltages are the file's.
    QString fault;

    /// The largest difference of a start or a width from what was asked for, in samples; infinite
    /// where a pulse was not found.
    double largestDifference() const;
};

/// Measures the trace. Starts may differ from what was asked for by more than a sample although the
/// instrument plays the file to the sample: each time of the train is rounded down to whole points.
BurstAccount accountOf(const PulseTrain& train, const OutputWaveform& file,
                       const ChannelTrace& trace);

/// The account for people: a table of all pulses, the levels, and what follows from them.
QString accountText(const BurstAccount& account);
