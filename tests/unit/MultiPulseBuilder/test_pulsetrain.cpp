// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsetrain.h"

#include "documents.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

// Exactly: Qt Test compares doubles with a tolerance.
QString text(double value)
{
    return QString::number(value, 'g', 20);
}

PulseTrain readText(const QByteArray& members)
{
    return PulseTrain::fromDocument(Documents::fromText(members));
}

} // namespace

class TestPulseTrain : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryMember();
    void emptyDocuments_data();
    void emptyDocuments();
    void mistypedMembers();
    void roundsToTheGrids_data();
    void roundsToTheGrids();
    void edgesAreNotRounded();
    void wholeNumbers_data();
    void wholeNumbers();
    void loads_data();
    void loads();
    void loadOfTheCallerWins();
    void cells_data();
    void cells();
    void oddRows();
    void period_data();
    void period();
    void frequency_data();
    void frequency();
    void openLoadHalvesTheLevels();
};

void TestPulseTrain::readsEveryMember()
{
    const PulseTrain train = readText(
        "{\"voltage\": {\"amplitude\": 1.5, \"offset\": -0.25, \"type\": 1},"
        "\"trigger delay\": {\"maximum\": 0.00015, \"minimum\": 1e-06, \"value\": 2e-05},"
        "\"trigger timer\": {\"maximum\": 500, \"minimum\": 2e-06, \"value\": 0.5},"
        "\"trigger source\": 2, \"trigger slope\": 1, \"load impedance\": 10000,"
        "\"pulse leading\": 1e-08, \"pulse trailing\": 3e-08, \"pulse numbers\": {\"value\": 9},"
        "\"width/gap\": [{\"width\": \"5.000u\", \"gap\": \"20.000n\"},"
        " {\"width\": \"0.150m\", \"gap\": \"7.000u\"}]}");
    QCOMPARE(text(train.amplitude), text(15000 * 0.0001));
    QCOMPARE(text(train.offset), text(-2500 * 0.0001));
    QCOMPARE(text(train.delay), text(200000 * 1e-10));
    QCOMPARE(text(train.triggerTimer), text(5000000 * 1e-07));
    QCOMPARE(train.triggerSource, 2);
    QCOMPARE(train.triggerSlope, 1);
    QVERIFY(train.load == LoadImpedance::HighZ);
    QCOMPARE(text(train.leadingEdge), text(1e-08));
    QCOMPARE(text(train.trailingEdge), text(3e-08));
    // The rows count, not the stored number of pulses.
    QCOMPARE(train.pulses.size(), 2);
    QCOMPARE(text(train.pulses.at(0).width), text(5000 * 1e-09));
    QCOMPARE(text(train.pulses.at(0).gap), text(20 * 1e-09));
    QCOMPARE(text(train.pulses.at(1).width), text(150000 * 1e-09));
    QCOMPARE(text(train.pulses.at(1).gap), text(7000 * 1e-09));
}

void TestPulseTrain::emptyDocuments_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::newRow("nothing") << QJsonObject();
    QTest::newRow("foreign member") << QJsonObject{{QStringLiteral("double pulses"), 1}};
    QTest::newRow("no object") << Documents::fromText("17");
    QTest::newRow("an array") << Documents::fromText("[{\"trigger source\": 2}]");
    QTest::newRow("empty object") << Documents::fromText("{}");
    QTest::newRow("nulls") << Documents::fromText("{\"voltage\": null, \"width/gap\": null}");
    QTest::newRow("other case") << Documents::fromText("{\"Trigger Source\": 2, \"Voltage\": "
                                                       "{\"amplitude\": 1}}");
}

void TestPulseTrain::emptyDocuments()
{
    QFETCH(QJsonObject, document);
    const PulseTrain train = PulseTrain::fromDocument(document);
    QCOMPARE(text(train.delay), text(0));
    QCOMPARE(text(train.leadingEdge + train.trailingEdge), text(0));
    QCOMPARE(text(train.amplitude), text(0));
    QCOMPARE(text(train.offset), text(0));
    QCOMPARE(text(train.triggerTimer), text(0));
    QCOMPARE(train.triggerSource, 0);
    QCOMPARE(train.triggerSlope, 0);
    QVERIFY(train.load == LoadImpedance::Ohm50);
    QVERIFY(train.pulses.isEmpty());
    QCOMPARE(text(train.totalPeriod()), text(0));
}

void TestPulseTrain::mistypedMembers()
{
    const PulseTrain train =
        readText("{\"voltage\": {\"amplitude\": \"2\", \"offset\": true},"
                 "\"trigger delay\": 1e-05, \"trigger timer\": [0.5], \"trigger source\": \"2\","
                 "\"trigger slope\": {\"value\": 1}, \"load impedance\": \"10000\","
                 "\"pulse leading\": {\"value\": 1}, \"pulse trailing\": \"1\","
                 "\"width/gap\": {\"width\": \"5.000u\", \"gap\": \"5.000u\"}}");
    QCOMPARE(text(train.amplitude + train.offset), text(0));
    QCOMPARE(text(train.delay + train.triggerTimer), text(0));
    QCOMPARE(train.triggerSource, 0);
    QCOMPARE(train.triggerSlope, 0);
    QVERIFY(train.load == LoadImpedance::Ohm50);
    QCOMPARE(text(train.leadingEdge + train.trailingEdge), text(0));
    QVERIFY(train.pulses.isEmpty());
}

void TestPulseTrain::roundsToTheGrids_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<double>("delay");
    QTest::addColumn<double>("timer");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::newRow("down") << QByteArray("{\"trigger delay\": {\"value\": 1.00004e-08},"
                                        "\"trigger timer\": {\"value\": 0.00100004},"
                                        "\"voltage\": {\"amplitude\": 1.00004, "
                                        "\"offset\": 0.12344}}")
                          << 100 * 1e-10 << 10000 * 1e-07 << 10000 * 0.0001 << 1234 * 0.0001;
    QTest::newRow("half away from zero")
        << QByteArray("{\"trigger delay\": {\"value\": 1.5e-10},"
                      "\"trigger timer\": {\"value\": 2.5e-07},"
                      "\"voltage\": {\"amplitude\": 0.00005, \"offset\": -0.00005}}")
        << 2 * 1e-10 << 3 * 1e-07 << 0.0001 << -0.0001;
    QTest::newRow("negative") << QByteArray("{\"trigger delay\": {\"value\": -1e-05},"
                                            "\"trigger timer\": {\"value\": -2},"
                                            "\"voltage\": {\"amplitude\": -3.3, \"offset\": -5}}")
                              << -100000 * 1e-10 << -20000000 * 1e-07 << -33000 * 0.0001
                              << -50000 * 0.0001;
    QTest::newRow("far beyond the limits")
        << QByteArray("{\"trigger delay\": {\"value\": 1},"
                      "\"trigger timer\": {\"value\": 1000000},"
                      "\"voltage\": {\"amplitude\": 1000000, \"offset\": 1000000}}")
        << 1e10 * 1e-10 << 1e13 * 1e-07 << 1e10 * 0.0001 << 1e10 * 0.0001;
}

void TestPulseTrain::roundsToTheGrids()
{
    QFETCH(QByteArray, members);
    QFETCH(double, delay);
    QFETCH(double, timer);
    QFETCH(double, amplitude);
    QFETCH(double, offset);
    const PulseTrain train = readText(members);
    QCOMPARE(text(train.delay), text(delay));
    QCOMPARE(text(train.triggerTimer), text(timer));
    QCOMPARE(text(train.amplitude), text(amplitude));
    QCOMPARE(text(train.offset), text(offset));
}

void TestPulseTrain::edgesAreNotRounded()
{
    const PulseTrain train =
        readText("{\"pulse leading\": 1.23456789e-12, \"pulse trailing\": -0.1}");
    QCOMPARE(text(train.leadingEdge), text(1.23456789e-12));
    QCOMPARE(text(train.trailingEdge), text(-0.1));
}

void TestPulseTrain::wholeNumbers_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<int>("expected");
    QTest::newRow("whole") << QByteArray("2") << 2;
    QTest::newRow("written with decimals") << QByteArray("2.0") << 2;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("fraction") << QByteArray("2.5") << 0;
    QTest::newRow("small fraction") << QByteArray("1.0000001") << 0;
    QTest::newRow("beyond 32 bits") << QByteArray("4294967298") << 0;
    QTest::newRow("huge") << QByteArray("1e300") << 0;
    QTest::newRow("text") << QByteArray("\"2\"") << 0;
}

void TestPulseTrain::wholeNumbers()
{
    QFETCH(QByteArray, number);
    QFETCH(int, expected);
    const PulseTrain train =
        readText("{\"trigger source\": " + number + ", \"trigger slope\": " + number + "}");
    QCOMPARE(train.triggerSource, expected);
    QCOMPARE(train.triggerSlope, expected);
}

void TestPulseTrain::loads_data()
{
    QTest::addColumn<QByteArray>("ohms");
    QTest::addColumn<bool>("highZ");
    QTest::newRow("50") << QByteArray("50") << false;
    QTest::newRow("75") << QByteArray("75") << false;
    QTest::newRow("100") << QByteArray("100") << false;
    QTest::newRow("101") << QByteArray("101") << true;
    QTest::newRow("10000") << QByteArray("10000") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("negative") << QByteArray("-10000") << false;
    QTest::newRow("fraction") << QByteArray("10000.5") << false;
    QTest::newRow("text") << QByteArray("\"10000\"") << false;
}

void TestPulseTrain::loads()
{
    QFETCH(QByteArray, ohms);
    QFETCH(bool, highZ);
    const PulseTrain train = readText("{\"load impedance\": " + ohms + "}");
    QCOMPARE(train.load == LoadImpedance::HighZ, highZ);
    QCOMPARE(loadOhms(train.load), highZ ? 10000 : 50);
}

void TestPulseTrain::loadOfTheCallerWins()
{
    const QJsonObject stored50 = Documents::fromText("{\"load impedance\": 50}");
    const QJsonObject storedHighZ = Documents::fromText("{\"load impedance\": 10000}");
    QVERIFY(PulseTrain::fromDocument(stored50, LoadImpedance::HighZ).load == LoadImpedance::HighZ);
    QVERIFY(PulseTrain::fromDocument(storedHighZ, LoadImpedance::Ohm50).load ==
            LoadImpedance::Ohm50);
    QCOMPARE(int(LoadImpedance::Ohm50), 0);
    QCOMPARE(int(LoadImpedance::HighZ), 1);
}

void TestPulseTrain::cells_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<double>("nanoseconds");
    const auto row = [](const char* cell, double nanoseconds) {
        QTest::newRow(cell) << QString(QLatin1String(cell)) << nanoseconds;
    };
    row("2.000u", 2000);
    row("10.000u", 10000);
    row("20.000n", 20);
    row("0.150m", 150000);
    row("1.4n", 1);
    row("1.5n", 2);
    row("-2.000u", -2000);
    row("u5", 5000);
    row("2u.5", 2500);
    row("3", 3e9);
    row("1.5K", 1500e9);
    row("2M", 2000000000000002.0); // the rounding lifts by 1e-15
    row("1G", 1000000000000001024.0);
    row("2.000us", 0);
    row("2.000k", 0);
    row("5uu", 0);
    row("five", 0);
    row("", 0);
    row("u", 0);
    row(" 7.000u ", 7000);
    row("1e1u", 10000);
    row("2,000u", 0);
}

void TestPulseTrain::cells()
{
    QFETCH(QString, cell);
    QFETCH(double, nanoseconds);
    const QJsonArray rows = {
        QJsonObject{{QStringLiteral("width"), cell}, {QStringLiteral("gap"), cell}}};
    const QJsonObject members = {{QStringLiteral("width/gap"), rows}};
    const PulseTrain train =
        PulseTrain::fromDocument({{QStringLiteral("multiple pulses"), members}});
    QCOMPARE(train.pulses.size(), 1);
    QCOMPARE(text(train.pulses.first().width), text(nanoseconds * 1e-09));
    QCOMPARE(text(train.pulses.first().gap), text(nanoseconds * 1e-09));
}

void TestPulseTrain::oddRows()
{
    // Each entry of the array is a row, whatever it is.
    const PulseTrain train = readText("{\"width/gap\": [{\"width\": \"5.000u\"}, 7, null, [],"
                                      "{\"gap\": 5e-06, \"width\": 1}, {\"gap\": \"4.000u\"}]}");
    QCOMPARE(train.pulses.size(), 6);
    QCOMPARE(text(train.pulses.at(0).width), text(5000 * 1e-09));
    QCOMPARE(text(train.pulses.at(0).gap), text(0));
    for (int i = 1; i < 5; ++i)
        QCOMPARE(text(train.pulses.at(i).width + train.pulses.at(i).gap), text(0));
    QCOMPARE(text(train.pulses.at(5).gap), text(4000 * 1e-09));
}

void TestPulseTrain::period_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<double>("seconds");
    const char defaultCells[] = "2.000u 10.000u, 2.000u 10.000u";
    QTest::newRow("default") << Documents::train(defaultCells) << 3.4e-05;
    QTest::newRow("no rows") << Documents::train("") << 1e-05;
    QTest::newRow("no delay") << Documents::train("1.000u 1.000u", "0") << 2.0000000000000003e-06;
    QTest::newRow("nothing") << Documents::train("", "0") << 0.0;
    // Adding each time by itself, or the delay last, gives other last digits.
    QTest::newRow("one addition a pulse")
        << Documents::train("145.352u 52.406u, 132.329u 108.390u, 127.140u 93.550u", "0.0001018943",
                            "\"pulse leading\": 4.7000000000000004e-08, \"pulse trailing\": "
                            "7.3e-08")
        << 0.0007614213000000001;
}

void TestPulseTrain::period()
{
    QFETCH(QJsonObject, document);
    QFETCH(double, seconds);
    QCOMPARE(text(PulseTrain::fromDocument(document).totalPeriod()), text(seconds));
}

void TestPulseTrain::frequency_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QString>("hertz");
    const char defaultCells[] = "2.000u 10.000u, 2.000u 10.000u";
    QTest::newRow("default") << Documents::train(defaultCells)
                             << QStringLiteral("29411.764705999998114");
    QTest::newRow("no rows") << Documents::train("") << QStringLiteral("100000");
    QTest::newRow("edges") << Documents::train("2.000u 10.000u, 3.500u 10.000u", "1e-05",
                                               "\"pulse leading\": 1e-07, \"pulse trailing\": "
                                               "3e-07")
                           << QStringLiteral("27548.209365999999136");
    QTest::newRow("zero period") << Documents::train("", "0") << QStringLiteral("inf");
    QTest::newRow("zero rows") << Documents::train("0.000u 0.000u", "0") << QStringLiteral("inf");
    QTest::newRow("ten seconds") << Documents::train("", "10")
                                 << QStringLiteral("0.099999999999999991673");
    QTest::newRow("too long for the grid") << Documents::train("", "1e7") << QStringLiteral("0");
    QTest::newRow("negative") << Documents::train("", "-1e-05") << QStringLiteral("-100000");
}

void TestPulseTrain::frequency()
{
    QFETCH(QJsonObject, document);
    QFETCH(QString, hertz);
    QCOMPARE(text(PulseTrain::fromDocument(document).frequency()), hertz);
}

void TestPulseTrain::openLoadHalvesTheLevels()
{
    const QJsonObject document = Documents::train("2.000u 10.000u");
    const PulseTrain matched = PulseTrain::fromDocument(document, LoadImpedance::Ohm50);
    QCOMPARE(matched.fileAmplitude(), 2.0);
    QCOMPARE(matched.fileOffset(), 0.5);
    const PulseTrain open = PulseTrain::fromDocument(document, LoadImpedance::HighZ);
    QCOMPARE(open.fileAmplitude(), 1.0);
    QCOMPARE(open.fileOffset(), 0.25);
    QCOMPARE(open.amplitude, 2.0);
    QCOMPARE(open.offset, 0.5);
}

QTEST_APPLESS_MAIN(TestPulseTrain)

#include "test_pulsetrain.moc"
