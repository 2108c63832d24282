// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupdocument.h"

#include "documents.h"
#include "parametertable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

// The default setup file as it stands on disk.
const char DefaultFile[] = R"({
    "multiple pulses": {
        "Gap Mode": 0,
        "load impedance": 50,
        "pulse gap": {
            "default value": 1e-05,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "pulse leading": 0,
        "pulse numbers": {
            "maximum": 30,
            "minimum": 2,
            "value": 2
        },
        "pulse trailing": 0,
        "pulse width": {
            "default value": 2e-06,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "trigger delay": {
            "maximum": 0.00015,
            "minimum": 1e-06,
            "value": 1e-05
        },
        "trigger slope": 0,
        "trigger source": 0,
        "trigger timer": {
            "maximum": 500,
            "minimum": 2e-06,
            "value": 0.001
        },
        "voltage": {
            "amplitude": 2,
            "offset": 0,
            "type": 1
        },
        "width/gap": [
            {
                "gap": "10.000u",
                "width": "2.000u"
            },
            {
                "gap": "10.000u",
                "width": "2.000u"
            }
        ]
    }
}
)";

// What a saved setup of other values looks like; it never carries "Gap Mode".
const char SavedFile[] = R"({
    "multiple pulses": {
        "load impedance": 10000,
        "pulse gap": {
            "default value": 1e-05,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "pulse leading": 0,
        "pulse numbers": {
            "maximum": 30,
            "minimum": 2,
            "value": 3
        },
        "pulse trailing": 0,
        "pulse width": {
            "default value": 2e-06,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "trigger delay": {
            "maximum": 0.00015,
            "minimum": 1e-06,
            "value": 0.0001234
        },
        "trigger slope": 1,
        "trigger source": 2,
        "trigger timer": {
            "maximum": 500,
            "minimum": 2e-06,
            "value": 0.25
        },
        "voltage": {
            "amplitude": 3.5,
            "offset": 0.75,
            "type": 1
        },
        "width/gap": [
            {
                "gap": "30.000n",
                "width": "20.000n"
            },
            {
                "gap": "",
                "width": "anything"
            }
        ]
    }
}
)";

QByteArray fileText(const QJsonObject& multiplePulses)
{
    const QJsonObject file = {{QStringLiteral("multiple pulses"), multiplePulses}};
    return QJsonDocument(file).toJson();
}

SetupValues otherValues()
{
    SetupValues values;
    values.pulseCount = 3;
    values.highLevel = 2.5;
    values.lowLevel = -1;
    values.triggerDelay = 0.0001234;
    values.triggerTimer = 0.25;
    values.triggerSource = 2;
    values.triggerSlope = 1;
    values.load = LoadImpedance::HighZ;
    values.rows = {{QStringLiteral("20.000n"), QStringLiteral("30.000n")},
                   {QStringLiteral("anything"), QString()}};
    return values;
}

QJsonValue stored(const SetupValues& values, const char* object, const char* member)
{
    return multiplePulsesFromValues(values)
        .value(QLatin1String(object))
        .toObject()
        .value(QLatin1String(member));
}

} // namespace

Q_DECLARE_METATYPE(ParameterRange)

class TestSetupDocument : public QObject
{
    Q_OBJECT

private slots:
    void defaultFile();
    void savedFile();
    void levels_data();
    void levels();
    void pulseCountIsTruncated_data();
    void pulseCountIsTruncated();
    void emptyTable();
    void loads();
    void gapModeIsTheDefaultsAlone();
    void everyKeyIsWritten();
    void parameterRanges_data();
    void parameterRanges();
    void cellTexts();
    void storedPulseCount_data();
    void storedPulseCount();
    void storedRows_data();
    void storedRows();
    void storedIsWhatWasWritten();
};

void TestSetupDocument::defaultFile()
{
    QCOMPARE(fileText(defaultMultiplePulses()), QByteArray(DefaultFile));
}

void TestSetupDocument::savedFile()
{
    QCOMPARE(fileText(multiplePulsesFromValues(otherValues())), QByteArray(SavedFile));
}

void TestSetupDocument::levels_data()
{
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::newRow("1 V and 0 V") << 1.0 << 0.0 << 1.0 << 0.5;
    QTest::newRow("1 V and -1 V") << 1.0 << -1.0 << 2.0 << 0.0;
    QTest::newRow("both negative") << -1.0 << -4.0 << 3.0 << -2.5;
    QTest::newRow("the same") << 2.0 << 2.0 << 0.0 << 2.0;
}

void TestSetupDocument::levels()
{
    QFETCH(double, high);
    QFETCH(double, low);
    SetupValues values = otherValues();
    values.highLevel = high;
    values.lowLevel = low;
    QTEST(stored(values, "voltage", "amplitude").toDouble(-99), "amplitude");
    QTEST(stored(values, "voltage", "offset").toDouble(-99), "offset");
    QCOMPARE(stored(values, "voltage", "type").toInt(), 1);
}

void TestSetupDocument::pulseCountIsTruncated_data()
{
    QTest::addColumn<double>("shown");
    QTest::addColumn<int>("value");
    QTest::newRow("2.9") << 2.9 << 2;
    QTest::newRow("30") << 30.0 << 30;
    QTest::newRow("0.9") << 0.9 << 0;
    QTest::newRow("-1.9") << -1.9 << -1;
}

void TestSetupDocument::pulseCountIsTruncated()
{
    QFETCH(double, shown);
    SetupValues values = otherValues();
    values.pulseCount = shown;
    QTEST(stored(values, "pulse numbers", "value").toInt(-99), "value");
    QCOMPARE(stored(values, "pulse numbers", "maximum").toInt(), 30);
    QCOMPARE(stored(values, "pulse numbers", "minimum").toInt(), 2);
}

void TestSetupDocument::emptyTable()
{
    SetupValues values = otherValues();
    values.rows.clear();
    const QJsonValue rows = multiplePulsesFromValues(values).value(QLatin1String("width/gap"));
    QVERIFY(rows.isArray());
    QVERIFY(rows.toArray().isEmpty());
    QVERIFY(fileText(multiplePulsesFromValues(values)).contains("\"width/gap\": [\n        ]"));
}

void TestSetupDocument::loads()
{
    SetupValues values = otherValues();
    values.load = LoadImpedance::Ohm50;
    QCOMPARE(multiplePulsesFromValues(values).value(QLatin1String("load impedance")),
             QJsonValue(50));
    values.load = LoadImpedance::HighZ;
    QCOMPARE(multiplePulsesFromValues(values).value(QLatin1String("load impedance")),
             QJsonValue(10000));
    for (const int ohms : {-1, 0, 50, 75, 100})
        QVERIFY(loadFromOhms(ohms) == LoadImpedance::Ohm50);
    for (const int ohms : {101, 10000})
        QVERIFY(loadFromOhms(ohms) == LoadImpedance::HighZ);
}

void TestSetupDocument::gapModeIsTheDefaultsAlone()
{
    const QString gapMode = QStringLiteral("Gap Mode");
    QCOMPARE(defaultMultiplePulses().value(gapMode), QJsonValue(0));
    QVERIFY(!multiplePulsesFromValues(otherValues()).contains(gapMode));
}

void TestSetupDocument::everyKeyIsWritten()
{
    const QStringList keys = {QStringLiteral("load impedance"), QStringLiteral("pulse gap"),
                              QStringLiteral("pulse leading"),  QStringLiteral("pulse numbers"),
                              QStringLiteral("pulse trailing"), QStringLiteral("pulse width"),
                              QStringLiteral("trigger delay"),  QStringLiteral("trigger slope"),
                              QStringLiteral("trigger source"), QStringLiteral("trigger timer"),
                              QStringLiteral("voltage"),        QStringLiteral("width/gap")};
    QCOMPARE(multiplePulsesFromValues(SetupValues()).keys(), keys);
}

void TestSetupDocument::parameterRanges_data()
{
    QTest::addColumn<ParameterRange>("range");
    QTest::addColumn<double>("defaultValue");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("resolution");
    QTest::newRow("pulse count") << PulseCountRange << 2.0 << 30.0 << 2.0 << 1.0;
    QTest::newRow("width") << PulseWidthRange << 2e-06 << 0.00015 << 2e-08 << 1e-09;
    QTest::newRow("gap") << PulseGapRange << 1e-05 << 0.00015 << 2e-08 << 1e-09;
    QTest::newRow("delay") << TriggerDelayRange << 1e-05 << 0.00015 << 1e-06 << 1e-10;
    QTest::newRow("timer") << TriggerTimerRange << 0.001 << 500.0 << 2e-06 << 1e-07;
}

void TestSetupDocument::parameterRanges()
{
    QFETCH(ParameterRange, range);
    QFETCH(double, defaultValue);
    QFETCH(double, maximum);
    QFETCH(double, minimum);
    QFETCH(double, resolution);
    // Exactly, not within a tolerance.
    QVERIFY(range.defaultValue == defaultValue);
    QVERIFY(range.maximum == maximum);
    QVERIFY(range.minimum == minimum);
    QVERIFY(range.resolution == resolution);
}

void TestSetupDocument::cellTexts()
{
    QCOMPARE(QByteArray(DefaultWidthText), QByteArray("2.000u"));
    QCOMPARE(QByteArray(DefaultGapText), QByteArray("10.000u"));
    QVERIFY(LevelResolution == 0.0001);
}

void TestSetupDocument::storedPulseCount_data()
{
    QTest::addColumn<QByteArray>("numbers");
    QTest::addColumn<int>("count");
    const auto row = [](const char* numbers, int count) {
        QTest::newRow(numbers) << QByteArray(numbers) << count;
    };
    row(R"({"value": 2})", 2);
    row(R"({"value": 30, "maximum": 7})", 30);
    // The stored number counts, whether it fits the limits and the rows or not.
    row(R"({"value": 31})", 31);
    row(R"({"value": 0})", 0);
    row(R"({"value": -5})", -5);
    row(R"({"value": 3.0})", 3);
    row(R"({"value": 2147483647})", 2147483647);
    // What is no integer reads as none.
    row(R"({"value": 2.9})", 0);
    row(R"({"value": 2147483648})", 0);
    row(R"({"value": 1e300})", 0);
    row(R"({"value": "4"})", 0);
    row(R"({"value": true})", 0);
    row(R"({"value": null})", 0);
    row(R"({"maximum": 30})", 0);
    row("{}", 0);
    row("4", 0);
    row("[4]", 0);
}

void TestSetupDocument::storedPulseCount()
{
    QFETCH(QByteArray, numbers);
    QTEST(pulseCountOf(
              Documents::fromText("{\"pulse numbers\": " + numbers + ", \"width/gap\": [{}, {}]}")),
          "count");
    QCOMPARE(pulseCountOf(Documents::fromText("{}")), 0);
    QCOMPARE(pulseCountOf(Documents::fromText("7")), 0);
    QCOMPARE(pulseCountOf(QJsonObject()), 0);
}

void TestSetupDocument::storedRows_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QStringList>("cells");
    const auto row = [](const char* name, const char* rows, const QStringList& cells) {
        QTest::newRow(name) << QByteArray(rows) << cells;
    };
    const QString empty = QStringLiteral(" ");
    row("none", "[]", {});
    row("two", R"([{"width": "2.000u", "gap": "10.000u"}, {"width": "1.000n", "gap": "3.000u"}])",
        {QStringLiteral("2.000u 10.000u"), QStringLiteral("1.000n 3.000u")});
    row("texts as they stand", R"([{"width": " 2 u", "gap": "anything"}])",
        {QStringLiteral(" 2 u anything")});
    row("no gap", R"([{"width": "2.000u"}])", {QStringLiteral("2.000u ")});
    row("no width", R"([{"gap": "3.000u"}])", {QStringLiteral(" 3.000u")});
    row("neither", "[{}, {}]", {empty, empty});
    row("numbers for texts", R"([{"width": 2e-06, "gap": null}])", {empty});
    row("no objects", R"([5, "2.000u", [], null])", {empty, empty, empty, empty});
    row("more members", R"([{"width": "2.000u", "gap": "3.000u", "name": "x"}])",
        {QStringLiteral("2.000u 3.000u")});
    row("no array", R"({"width": "2.000u", "gap": "3.000u"})", {});
    row("text", R"("2.000u")", {});
}

void TestSetupDocument::storedRows()
{
    QFETCH(QByteArray, rows);
    QStringList cells;
    for (const SetupRow& row : rowsOf(Documents::fromText("{\"width/gap\": " + rows + "}")))
        cells.append(row.width + QLatin1Char(' ') + row.gap);
    QTEST(cells, "cells");
    QVERIFY(rowsOf(Documents::fromText("{}")).isEmpty());
    QVERIFY(rowsOf(Documents::fromText("[]")).isEmpty());
    QVERIFY(rowsOf(QJsonObject()).isEmpty());
}

void TestSetupDocument::storedIsWhatWasWritten()
{
    SetupValues values = otherValues();
    values.pulseCount = 29;
    const QJsonObject document = {
        {QStringLiteral("multiple pulses"), multiplePulsesFromValues(values)}};
    QCOMPARE(pulseCountOf(document), 29);
    const QVector<SetupRow> rows = rowsOf(document);
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.first().width, QStringLiteral("20.000n"));
    QCOMPARE(rows.first().gap, QStringLiteral("30.000n"));
    QCOMPARE(rows.last().width, QStringLiteral("anything"));
    QCOMPARE(rows.last().gap, QString());
}

QTEST_APPLESS_MAIN(TestSetupDocument)

#include "test_setupdocument.moc"
