// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupdocument.h"

#include "parametertable.h"
#include "saturate.h"

#include <QJsonArray>

namespace {

// Limits travel with a value in every document although nobody reads them. Whole numbers are stored
// as such.
QJsonObject parameterObject(const ParameterRange& range, const QJsonValue& value)
{
    return {{SetupKey::Maximum, range.maximum},
            {SetupKey::Minimum, range.minimum},
            {SetupKey::Value, value}};
}

QJsonObject columnObject(const ParameterRange& range)
{
    return {{SetupKey::Maximum, range.maximum},
            {SetupKey::Minimum, range.minimum},
            {SetupKey::DefaultValue, range.defaultValue}};
}

QJsonArray rowArray(const QVector<SetupRow>& rows)
{
    QJsonArray array;
    for (const SetupRow& row : rows)
        array.append(QJsonObject{{SetupKey::Width, row.width}, {SetupKey::Gap, row.gap}});
    return array;
}

QJsonObject voltageObject(double amplitude, double offset)
{
    return {{SetupKey::Amplitude, amplitude}, {SetupKey::Offset, offset}, {SetupKey::Type, 1}};
}

} // namespace

QJsonObject multiplePulsesFromValues(const SetupValues& values)
{
    const double amplitude = values.highLevel - values.lowLevel;
    const double offset = (values.highLevel + values.lowLevel) * 0.5;
    return {
        {SetupKey::PulseLeading, 0},
        {SetupKey::PulseTrailing, 0},
        {SetupKey::Voltage, voltageObject(amplitude, offset)},
        {SetupKey::PulseNumbers, parameterObject(PulseCountRange, toCount(values.pulseCount))},
        {SetupKey::PulseWidth, columnObject(PulseWidthRange)},
        {SetupKey::PulseGap, columnObject(PulseGapRange)},
        {SetupKey::TriggerSource, values.triggerSource},
        {SetupKey::TriggerSlope, values.triggerSlope},
        {SetupKey::TriggerDelay, parameterObject(TriggerDelayRange, values.triggerDelay)},
        {SetupKey::TriggerTimer, parameterObject(TriggerTimerRange, values.triggerTimer)},
        {SetupKey::WidthGap, rowArray(values.rows)},
        {SetupKey::LoadImpedance, loadOhms(values.load)},
    };
}

QJsonObject defaultMultiplePulses()
{
    const SetupRow row = {QLatin1String(DefaultWidthText), QLatin1String(DefaultGapText)};
    SetupValues values;
    values.pulseCount = PulseCountRange.defaultValue;
    values.highLevel = 1;
    values.lowLevel = -1;
    values.triggerDelay = TriggerDelayRange.defaultValue;
    values.triggerTimer = TriggerTimerRange.defaultValue;
    values.rows = {row, row};

    QJsonObject stored = multiplePulsesFromValues(values);
    stored.insert(SetupKey::GapMode, 0);
    return stored;
}

int pulseCountOf(const QJsonObject& document)
{
    const QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    return stored.value(SetupKey::PulseNumbers).toObject().value(SetupKey::Value).toInt();
}

QVector<SetupRow> rowsOf(const QJsonObject& document)
{
    const QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    QVector<SetupRow> rows;
    for (const QJsonValue& row : stored.value(SetupKey::WidthGap).toArray()) {
        const QJsonObject texts = row.toObject();
        rows.append(
            {texts.value(SetupKey::Width).toString(), texts.value(SetupKey::Gap).toString()});
    }
    return rows;
}
