// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// What one model family of the generator can put out, for each of its two channels.
struct GeneratorLimits
{
    QByteArray modelText;       ///< the model as the identification reply names it
    double maxAmplitude = 0;    ///< volts peak-to-peak into 50 ohm
    double minAmplitude = 0;    ///< volts peak-to-peak into 50 ohm
    double levelPlus = 0;       ///< highest voltage into 50 ohm
    double levelMinus = 0;      ///< lowest voltage into 50 ohm
    double samplingRate = 0;    ///< samples per second
    quint32 waveformLength = 0; ///< most points of one waveform

    /// Hertz: a period has two samples at least.
    double maxFrequency() const { return samplingRate / 2; }

    /// Whether a waveform of @p amplitude (volts peak-to-peak) about @p offset (volts), both into
    /// 50 ohm, can be played. An amplitude of 0 can: it is a constant level. Amplitude and offset
    /// that were rounded each to the 0.1 mV of the front panel may leave the bounds by as much.
    bool canPlay(double amplitude, double offset) const;
};

/// The limits of a family ("KVX705XX") or of one of its models ("KVX70501"); those of the smallest
/// family for any other text.
GeneratorLimits generatorLimits(const QString& modelFamily);
