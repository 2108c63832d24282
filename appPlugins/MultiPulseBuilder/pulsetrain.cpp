// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsetrain.h"

#include "dbutils.h"
#include "engineeringtext.h"
#include "parametertable.h"
#include "setupdocument.h"

namespace {

QVector<Pulse> pulsesOf(const QVector<SetupRow>& rows)
{
    QVector<Pulse> pulses;
    pulses.reserve(rows.size());
    for (const SetupRow& row : rows) {
        pulses.append({engineeringTextToDouble(row.width, PulseWidthRange.resolution),
                       engineeringTextToDouble(row.gap, PulseGapRange.resolution)});
    }
    return pulses;
}

double readRounded(const QJsonObject& object, QLatin1String key, double resolution)
{
    return DBRound(object.value(key).toDouble(), resolution);
}

double openLoadFactor(LoadImpedance load)
{
    return load == LoadImpedance::HighZ ? 0.5 : 1.0;
}

} // namespace

PulseTrain PulseTrain::fromDocument(const QJsonObject& document)
{
    const QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    return fromDocument(document, loadFromOhms(stored.value(SetupKey::LoadImpedance).toInt()));
}

PulseTrain PulseTrain::fromDocument(const QJsonObject& document, LoadImpedance load)
{
    const QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    const QJsonObject voltage = stored.value(SetupKey::Voltage).toObject();

    PulseTrain train;
    train.delay = readRounded(stored.value(SetupKey::TriggerDelay).toObject(), SetupKey::Value,
                              TriggerDelayRange.resolution);
    train.leadingEdge = stored.value(SetupKey::PulseLeading).toDouble();
    train.trailingEdge = stored.value(SetupKey::PulseTrailing).toDouble();
    train.pulses = pulsesOf(rowsOf(document));
    train.amplitude = readRounded(voltage, SetupKey::Amplitude, LevelResolution);
    train.offset = readRounded(voltage, SetupKey::Offset, LevelResolution);
    train.load = load;
    train.triggerSource = stored.value(SetupKey::TriggerSource).toInt();
    train.triggerSlope = stored.value(SetupKey::TriggerSlope).toInt();
    train.triggerTimer = readRounded(stored.value(SetupKey::TriggerTimer).toObject(),
                                     SetupKey::Value, TriggerTimerRange.resolution);
    return train;
}

double PulseTrain::totalPeriod() const
{
    double period = delay + 0.0;
    for (const Pulse& pulse : pulses)
        period += leadingEdge + pulse.width + trailingEdge + pulse.gap;
    return period;
}

double PulseTrain::frequency() const
{
    return DBRound(1.0 / totalPeriod(), 1e-6);
}

double PulseTrain::fileAmplitude() const
{
    return amplitude * openLoadFactor(load);
}

double PulseTrain::fileOffset() const
{
    return offset * openLoadFactor(load);
}
