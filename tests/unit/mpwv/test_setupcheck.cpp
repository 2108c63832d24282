// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupcheck.h"

#include "commandrun.h"
#include "pulsetrain.h"

#include <QtTest>

class TestSetupCheck : public QObject
{
    Q_OBJECT

private slots:
    void findsNothingInWhatTheEditorWrites_data();
    void findsNothingInWhatTheEditorWrites();
    void finds_data();
    void finds();
    void findsEveryMissingMember();
    void findsSwallowedPulses();
    void stopsListing();
    void writesOneLine();
};

namespace {

const char Stored[] = "multiple pulses";

QJsonObject editorSetup(double high, double low, LoadImpedance load)
{
    SetupValues values;
    values.pulseCount = 2;
    values.highLevel = high;
    values.lowLevel = low;
    values.triggerDelay = 1e-5;
    values.triggerTimer = 0.001;
    values.load = load;
    values.rows = {{QStringLiteral("2.000u"), QStringLiteral("10.000u")},
                   {QStringLiteral("20.000n"), QStringLiteral("150.000u")}};
    return {{SetupKey::MultiplePulses, multiplePulsesFromValues(values)}};
}

QJsonObject without(QJsonObject document, QLatin1String member)
{
    QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    stored.remove(member);
    document.insert(SetupKey::MultiplePulses, stored);
    return document;
}

// The default setup with one member of an object replaced.
QJsonObject withPart(QLatin1String object, QLatin1String member, const QJsonValue& value)
{
    const QJsonObject document = defaultSetup();
    QJsonObject part = document.value(SetupKey::MultiplePulses).toObject().value(object).toObject();
    part.insert(member, value);
    return withMember(document, object, part);
}

QJsonObject withWidth(const QJsonValue& width)
{
    return withMember(defaultSetup(), SetupKey::WidthGap,
                      QJsonArray{QJsonObject{{SetupKey::Width, width},
                                             {SetupKey::Gap, QStringLiteral("10.000u")}},
                                 QJsonObject{{SetupKey::Width, QStringLiteral("2.000u")},
                                             {SetupKey::Gap, QStringLiteral("10.000u")}}});
}

QStringList linesOf(const QVector<Finding>& findings)
{
    QStringList lines;
    for (const Finding& finding : findings)
        lines.append(finding.member + QLatin1String(": ") + finding.reason);
    return lines;
}

} // namespace

void TestSetupCheck::findsNothingInWhatTheEditorWrites_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::newRow("default") << defaultSetup();
    QTest::newRow("largest levels") << editorSetup(5, -5, LoadImpedance::Ohm50);
    QTest::newRow("largest levels into high impedance")
        << editorSetup(10, -10, LoadImpedance::HighZ);
    QTest::newRow("least distance") << editorSetup(4.001, 4, LoadImpedance::Ohm50);
    QTest::newRow("offset between two steps") << editorSetup(1.0001, 0, LoadImpedance::Ohm50);
    QTest::newRow("levels that doubles cannot hold")
        << editorSetup(0.3, -0.1, LoadImpedance::Ohm50);
    QTest::newRow("prefix in an odd place") << withWidth(QStringLiteral("2u.000"));
    QTest::newRow("longest timer") << withPart(SetupKey::TriggerTimer, SetupKey::Value, 500);
    QTest::newRow("timer as long as the train")
        << withMember(withPart(SetupKey::TriggerTimer, SetupKey::Value, 34.1e-6),
                      SetupKey::TriggerSource, TriggerTimer);
    QTest::newRow("short timer that does not trigger")
        << withPart(SetupKey::TriggerTimer, SetupKey::Value, 2e-6);
    QTest::newRow("finest timer") << withPart(SetupKey::TriggerTimer, SetupKey::Value, 499.9999999);
    QTest::newRow("finest delay") << withPart(SetupKey::TriggerDelay, SetupKey::Value, 1.0001e-6);
}

void TestSetupCheck::findsNothingInWhatTheEditorWrites()
{
    QFETCH(QJsonObject, document);
    QCOMPARE(linesOf(checkSetup(document)), QStringList());
}

void TestSetupCheck::finds_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QJsonObject& document, const char* line) {
        QTest::newRow(name) << document << QLatin1String(Stored) + QString::fromUtf8(line);
    };
    const auto cell = [&row](const char* name, const QJsonValue& width, const char* reason) {
        row(name, withWidth(width), (QByteArray(".width/gap[0].width: ") + reason).constData());
    };
    row("unknown member", withMember(defaultSetup(), QStringLiteral("odd"), 1),
        ".odd: unknown member");
    row("unknown member of a part", withPart(SetupKey::Voltage, QLatin1String("odd"), 1),
        ".voltage.odd: unknown member");
    row("text for a number", withPart(SetupKey::Voltage, SetupKey::Amplitude, QStringLiteral("2")),
        ".voltage.amplitude: a text instead of a number, reads as 0");
    row("number for an object", withMember(defaultSetup(), SetupKey::TriggerDelay, 1),
        ".trigger delay: a number instead of an object, its members read as 0");
    row("no whole number", withMember(defaultSetup(), SetupKey::TriggerSlope, 0.5),
        ".trigger slope: 0.5 is not a whole number, reads as 0");
    row("trigger source", withMember(defaultSetup(), SetupKey::TriggerSource, 3),
        ".trigger source: 3 is outside 0 to 2");
    row("trigger slope", withMember(defaultSetup(), SetupKey::TriggerSlope, -1),
        ".trigger slope: -1 is outside 0 to 1");
    row("load", withMember(defaultSetup(), SetupKey::LoadImpedance, 75),
        ".load impedance: 75 is neither 50 nor 10000 ohm, reads as 50");
    row("large load", withMember(defaultSetup(), SetupKey::LoadImpedance, 101),
        ".load impedance: 101 is neither 50 nor 10000 ohm, reads as 10000");
    row("leading edge", withMember(defaultSetup(), SetupKey::PulseLeading, 1e-6),
        ".pulse leading: 1e-06 instead of 0, which the editor always writes");
    row("changed limit", withPart(SetupKey::PulseWidth, SetupKey::Maximum, 1),
        ".pulse width.maximum: 1 instead of 0.00015, which the editor always writes");
    row("delay above", withPart(SetupKey::TriggerDelay, SetupKey::Value, 0.001),
        ".trigger delay.value: 1.000 ms is above the limit of 150.000 us");
    row("delay below", withPart(SetupKey::TriggerDelay, SetupKey::Value, 0),
        ".trigger delay.value: 0.000 s is below the limit of 1.000 us");
    row("delay off its grid", withPart(SetupKey::TriggerDelay, SetupKey::Value, 1.00005e-6),
        ".trigger delay.value: 1.00005e-06 s is not a multiple of 100.000 ps");
    row("timer above", withPart(SetupKey::TriggerTimer, SetupKey::Value, 501),
        ".trigger timer.value: 501.000 s is above the limit of 500.000 s");
    row("timer shorter than the train",
        withMember(withPart(SetupKey::TriggerTimer, SetupKey::Value, 33.9e-6),
                   SetupKey::TriggerSource, TriggerTimer),
        ".trigger timer.value: 33.900 us is shorter than the train's 34.000 us");
    row("high level", withPart(SetupKey::Voltage, SetupKey::Offset, 4.5),
        ".voltage: high level 5.5 V is above 5 V, the limit of the largest models");
    row("low level", withPart(SetupKey::Voltage, SetupKey::Offset, -4.5),
        ".voltage: low level -5.5 V is below -5 V, the limit of the largest models");
    row("levels off their grid", withPart(SetupKey::Voltage, SetupKey::Amplitude, 2.00005),
        ".voltage: high level 1.000025 V is not a multiple of 0.0001 V");
    row("no distance", withPart(SetupKey::Voltage, SetupKey::Amplitude, 0),
        ".voltage.amplitude: 0 V is below 0.001 V, the least distance of the levels");
    row("count", withPart(SetupKey::PulseNumbers, SetupKey::Value, 31),
        ".pulse numbers.value: 31 is outside 2 to 30");
    row("rows and count", withPart(SetupKey::PulseNumbers, SetupKey::Value, 3),
        ".width/gap: 2 rows for 3 pulses");
    row("too few rows",
        withRows(defaultSetup(), {{QStringLiteral("2.000u"), QStringLiteral("2.000u")}}),
        ".width/gap: 1 row; a train has 2 to 30");
    row("no array", withMember(defaultSetup(), SetupKey::WidthGap, QStringLiteral("x")),
        ".width/gap: no array, reads as an empty table");
    cell("unit behind the prefix", QStringLiteral("2.000us"), "\"2.000us\" reads as 0");
    cell("empty cell", QString(), "\"\" reads as 0");
    cell("cell with a line feed", QStringLiteral("2\nx"), "\"2\\u000ax\" reads as 0");
    cell("number for a text", 2e-6, "a number instead of a text, reads as 0");
    cell("no cell", QJsonValue::Null, "null instead of a text, reads as 0");
    cell("cell above", QStringLiteral("151.000u"), "151.000 us is above the limit of 150.000 us");
    cell("cell below", QStringLiteral("19.000n"), "19.000 ns is below the limit of 20.000 ns");
    cell("negative cell", QStringLiteral("-2.000u"), "-2.000 us is below the limit of 20.000 ns");
    cell("not a number", QStringLiteral("nan"), "\"nan\" reads as 0");
    cell("infinite", QStringLiteral("1e308G"), "inf s is above the limit of 150.000 us");
    cell("cell off its grid", QStringLiteral("2.0005u"),
         "\"2.0005u\" is not a multiple of 1.000 ns");
}

void TestSetupCheck::finds()
{
    QFETCH(QJsonObject, document);
    QFETCH(QString, line);
    const QStringList lines = linesOf(checkSetup(document));
    QVERIFY2(lines.contains(line), qPrintable(lines.join(QLatin1Char('\n'))));
}

void TestSetupCheck::findsEveryMissingMember()
{
    const QStringList members = defaultSetup().value(SetupKey::MultiplePulses).toObject().keys();
    for (const QString& member : members) {
        const QStringList lines = linesOf(
            checkSetup(without(defaultSetup(), QLatin1String(member.toLatin1().constData()))));
        const QString line =
            QStringLiteral("multiple pulses.%1: missing, reads as 0 or empty").arg(member);
        QCOMPARE(lines.contains(line), member != SetupKey::GapMode);
    }
    QCOMPARE(linesOf(checkSetup({{QStringLiteral("other"), 1}})),
             (QStringList{QStringLiteral("multiple pulses: missing, reads as 0 or empty"),
                          QStringLiteral("other: unknown member"),
                          QStringLiteral("multiple pulses: the period is 0, the waveform has no "
                                         "points")}));
}

// Thirty long pulses make a period whose points lie more than 20 ns apart.
void TestSetupCheck::findsSwallowedPulses()
{
    QVector<SetupRow> rows(30, {QStringLiteral("150.000u"), QStringLiteral("150.000u")});
    rows[7].width = QStringLiteral("20.000n");
    rows[9].gap = QStringLiteral("20.000n");
    QCOMPARE(linesOf(checkSetup(withRows(defaultSetup(), rows))),
             (QStringList{QStringLiteral("multiple pulses.width/gap[7].width: 20.000 ns get none "
                                         "of the 131072 points"),
                          QStringLiteral("multiple pulses.width/gap[9].gap: 20.000 ns get none of "
                                         "the 131072 points")}));
}

void TestSetupCheck::stopsListing()
{
    const QVector<SetupRow> rows(3000, {QStringLiteral("x"), QStringLiteral("10.000u")});
    const QVector<Finding> findings = checkSetup(withRows(defaultSetup(), rows));
    QCOMPARE(findings.size(), MaxFindings + 1);
    // The count, the table and 3000 cells are odd.
    QCOMPARE(findings.last().reason, QStringLiteral("2002 further findings are not listed"));
}

void TestSetupCheck::writesOneLine()
{
    QCOMPARE(findingLine(QStringLiteral("a\nb"), {QStringLiteral("m"), QStringLiteral("r")}),
             QStringLiteral("a\\u000ab: m: r"));
}

QTEST_APPLESS_MAIN(TestSetupCheck)
#include "test_setupcheck.moc"
