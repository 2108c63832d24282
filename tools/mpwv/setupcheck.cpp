// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupcheck.h"

#include "dbutils.h"
#include "devicetable.h"
#include "input.h"
#include "setupdocument.h"
#include "setuprules.h"
#include "trainsamples.h"

#include <QJsonArray>

#include <algorithm>
#include <limits>

namespace {

const int MaxInt = std::numeric_limits<int>::max();

MemberCheck tableRows()
{
    const MemberCheck row = objectOf(
        {{SetupKey::Width, cellText(PulseWidthRange)}, {SetupKey::Gap, cellText(PulseGapRange)}});
    return [row](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (!value.isArray()) {
            findings.add(member, QStringLiteral("no array, reads as an empty table"));
            return;
        }
        const QJsonArray rows = value.toArray();
        for (int i = 0; i < rows.size(); ++i)
            row(QStringLiteral("%1[%2]").arg(member).arg(i), rows.at(i), findings);
    };
}

MemberCheck loadResistance()
{
    return [](const QString& member, const QJsonValue& value, FindingList& findings) {
        wholeNumber(-MaxInt - 1, MaxInt)(member, value, findings);
        const int ohms = value.toInt(loadOhms(LoadImpedance::Ohm50));
        const int reads = loadOhms(loadFromOhms(ohms));
        if (ohms != reads)
            findings.add(
                member,
                QStringLiteral("%1 is neither 50 nor 10000 ohm, reads as %2").arg(ohms).arg(reads));
    };
}

MemberCheck parameter(const ParameterRange& range, const MemberCheck& value)
{
    return objectOf({{SetupKey::Maximum, always(range.maximum)},
                     {SetupKey::Minimum, always(range.minimum)},
                     {SetupKey::Value, value}});
}

MemberCheck column(const ParameterRange& range)
{
    return objectOf({{SetupKey::Maximum, always(range.maximum)},
                     {SetupKey::Minimum, always(range.minimum)},
                     {SetupKey::DefaultValue, always(range.defaultValue)}});
}

MemberCheck voltage()
{
    return objectOf({{SetupKey::Amplitude, anyNumber()},
                     {SetupKey::Offset, anyNumber()},
                     {SetupKey::Type, always(1)}});
}

MemberCheck pulseCount()
{
    return parameter(PulseCountRange,
                     wholeNumber(int(PulseCountRange.minimum), int(PulseCountRange.maximum)));
}

// The document's form: what the editor writes, in the order in which it is told to the user.
MemberCheck documentForm()
{
    const QVector<MemberRule> members = {
        {SetupKey::PulseNumbers, pulseCount()},
        {SetupKey::WidthGap, tableRows()},
        {SetupKey::PulseLeading, always(0)},
        {SetupKey::PulseTrailing, always(0)},
        {SetupKey::Voltage, voltage()},
        {SetupKey::LoadImpedance, loadResistance()},
        {SetupKey::TriggerSource, wholeNumber(TriggerManual, TriggerTimer)},
        {SetupKey::TriggerSlope, wholeNumber(0, 1)},
        {SetupKey::TriggerDelay, parameter(TriggerDelayRange, seconds(TriggerDelayRange))},
        {SetupKey::TriggerTimer, parameter(TriggerTimerRange, seconds(TriggerTimerRange))},
        {SetupKey::PulseWidth, column(PulseWidthRange)},
        {SetupKey::PulseGap, column(PulseGapRange)},
        // Only the default setup has it.
        {SetupKey::GapMode, wholeNumber(0, MaxInt), true},
    };
    return objectOf({{SetupKey::MultiplePulses, objectOf(members)}});
}

QString memberPath(QLatin1String key)
{
    return SetupKey::MultiplePulses + QLatin1Char('.') + key;
}

QString cellPath(int row, QLatin1String column)
{
    return QStringLiteral("%1[%2].%3").arg(memberPath(SetupKey::WidthGap)).arg(row).arg(column);
}

QString plural(int count, const QString& noun)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), noun,
                                         count == 1 ? QString() : QStringLiteral("s"));
}

void checkCounts(const QJsonObject& stored, int rows, FindingList& findings)
{
    const QJsonObject numbers = stored.value(SetupKey::PulseNumbers).toObject();
    const int count = numbers.value(SetupKey::Value).toInt();
    const QString table = memberPath(SetupKey::WidthGap);
    if (rows != count)
        findings.add(table, QStringLiteral("%1 for %2")
                                .arg(plural(rows, QStringLiteral("row")),
                                     plural(count, QStringLiteral("pulse"))));
    if (rows < PulseCountRange.minimum || rows > PulseCountRange.maximum)
        findings.add(table, QStringLiteral("%1; a train has %2 to %3")
                                .arg(plural(rows, QStringLiteral("row")),
                                     numberText(PulseCountRange.minimum),
                                     numberText(PulseCountRange.maximum)));
}

struct LevelLimits
{
    double high;
    double low;
    double distance; // smallest, between high and low level
};

LevelLimits largestLimits(LoadImpedance load)
{
    LevelLimits limits = {0, 0, 0};
    for (const QStringList& family : deviceFamilies()) {
        limits.high = std::max(limits.high, family.at(DeviceOffsetPlus).toDouble());
        limits.low = std::min(limits.low, family.at(DeviceOffsetMinus).toDouble());
        limits.distance = family.at(DeviceMinAmplitude).toDouble();
    }
    const double factor = load == LoadImpedance::HighZ ? 2 : 1;
    return {limits.high * factor, limits.low * factor, limits.distance * factor};
}

QString volts(double value)
{
    return numberText(value) + QLatin1String(" V");
}

void checkLevel(const QString& name, double level, const LevelLimits& limits, FindingList& findings)
{
    const QString member = memberPath(SetupKey::Voltage);
    const QString text = name + QLatin1Char(' ') + volts(level);
    const QString outside = QStringLiteral("%1 is %2 %3, the limit of the largest models");
    if (level > limitPlusSafety(limits.high) + LevelResolution * 1e-3)
        findings.add(member, outside.arg(text, QStringLiteral("above"), volts(limits.high)));
    else if (level < limitMinusSafety(limits.low) - LevelResolution * 1e-3)
        findings.add(member, outside.arg(text, QStringLiteral("below"), volts(limits.low)));
    else if (!isOnGrid(level, LevelResolution))
        findings.add(
            member, QStringLiteral("%1 is not a multiple of %2").arg(text, volts(LevelResolution)));
}

// The editor's own quantities are the two levels: an offset between two steps of the levels' grid
// is nothing odd, being half of their sum.
void checkLevels(const QJsonObject& stored, LoadImpedance load, FindingList& findings)
{
    const QJsonObject voltageObject = stored.value(SetupKey::Voltage).toObject();
    const double amplitude = voltageObject.value(SetupKey::Amplitude).toDouble();
    const double offset = voltageObject.value(SetupKey::Offset).toDouble();
    const LevelLimits limits = largestLimits(load);
    checkLevel(QStringLiteral("high level"), offset + amplitude * 0.5, limits, findings);
    checkLevel(QStringLiteral("low level"), offset - amplitude * 0.5, limits, findings);
    if (amplitude < limits.distance - LevelResolution * 1e-3)
        findings.add(memberPath(SetupKey::Voltage) + QLatin1String(".amplitude"),
                     QStringLiteral("%1 is below %2, the least distance of the levels")
                         .arg(volts(amplitude), volts(limits.distance)));
}

void checkCell(int row, QLatin1String column, double asked, double points, FindingList& findings)
{
    if (asked > 0 && points < 1)
        findings.add(cellPath(row, column), QStringLiteral("%1 get none of the %2 points")
                                                .arg(engineeringText(asked, QStringLiteral("s")))
                                                .arg(PointBudget));
}

void checkPoints(const PulseTrain& train, FindingList& findings)
{
    if (DBSameValue(train.totalPeriod(), 0)) {
        findings.add(SetupKey::MultiplePulses,
                     QStringLiteral("the period is 0, the waveform has no points"));
        return;
    }
    const std::vector<PulseStretch> stretches = pulseStretches(train);
    for (int i = 0; i < train.pulses.size(); ++i) {
        const PulseStretch& stretch = stretches[size_t(i)];
        checkCell(i, SetupKey::Width, train.pulses.at(i).width, stretch.width, findings);
        checkCell(i, SetupKey::Gap, train.pulses.at(i).gap, stretch.gap, findings);
    }
}

// A trigger during a burst is lost, so that the bursts would not come at the timer's rate.
void checkTimer(const PulseTrain& train, FindingList& findings)
{
    const double period = train.totalPeriod();
    if (train.triggerSource == TriggerTimer && train.triggerTimer < period)
        findings.add(memberPath(SetupKey::TriggerTimer) + QLatin1String(".value"),
                     QStringLiteral("%1 is shorter than the train's %2")
                         .arg(engineeringText(train.triggerTimer, QStringLiteral("s")),
                              engineeringText(period, QStringLiteral("s"))));
}

} // namespace

QString findingLine(const QString& file, const Finding& finding)
{
    return QStringLiteral("%1: %2: %3").arg(printable(file), finding.member, finding.reason);
}

QVector<Finding> checkSetup(const QJsonObject& document)
{
    FindingList findings;
    documentForm()(QString(), document, findings);

    const QJsonValue stored = document.value(SetupKey::MultiplePulses);
    const PulseTrain train = PulseTrain::fromDocument(document);
    // What a lacking member reads as has been told already.
    if (stored.isObject()) {
        if (stored.toObject().value(SetupKey::WidthGap).isArray())
            checkCounts(stored.toObject(), train.pulses.size(), findings);
        if (stored.toObject().value(SetupKey::Voltage).isObject())
            checkLevels(stored.toObject(), train.load, findings);
    }
    checkPoints(train, findings);
    checkTimer(train, findings);
    return findings.take();
}
