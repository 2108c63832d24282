// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "loadimpedance.h"

#include <QJsonObject>
#include <QVector>

/// One pulse of a train and the gap that follows it, in seconds.
struct Pulse
{
    double width = 0;
    double gap = 0;
};

/// Meaning of the stored trigger source; any other number behaves like Manual.
enum TriggerSource { TriggerManual = 0, TriggerExternal = 1, TriggerTimer = 2 };

/// What a setup document says, as a plain value. This is the one place that reads a document: the
/// window, the shell tool, the waveform file and the command sequence are all functions of it.
///
/// A missing or mistyped member reads as 0; whole numbers are read with QJsonValue::toInt(), so a
/// stored 2.5 reads as 0 there.
struct PulseTrain
{
    double delay = 0;        ///< seconds before the first leading edge, on the delay's grid
    double leadingEdge = 0;  ///< seconds, 10 % to 90 %
    double trailingEdge = 0; ///< seconds, 90 % to 10 %
    QVector<Pulse> pulses;   ///< in table order
    double amplitude = 0;    ///< volts peak-to-peak at the load, on the levels' grid
    double offset = 0;       ///< volts at the load, on the levels' grid
    LoadImpedance load = LoadImpedance::Ohm50;
    int triggerSource = 0;   ///< TriggerSource
    int triggerSlope = 0;    ///< 0 positive; anything else negative, and the pulses are inverted
    double triggerTimer = 0; ///< seconds, on the timer's grid

    /// Reads a document with the load that it stores.
    static PulseTrain fromDocument(const QJsonObject& document);

    /// Reads a document that is played into @p load, whatever it stores.
    static PulseTrain fromDocument(const QJsonObject& document, LoadImpedance load);

    /// Seconds of one period: the delay, then one addition for each pulse and its gap.
    double totalPeriod() const;

    /// Hertz, rounded to 1e-6; infinite for a period of zero.
    double frequency() const;

    /// Volts peak-to-peak as the waveform file stores them: half of the amplitude into high
    /// impedance, since the instrument doubles the voltage into an open load.
    double fileAmplitude() const;

    /// Volts, halved like fileAmplitude().
    double fileOffset() const;
};
