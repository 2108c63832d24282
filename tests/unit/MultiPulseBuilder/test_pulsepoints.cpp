// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "pulsesynthesis.h"

#include <QtTest>

#include <limits>

namespace {

using Samples = std::vector<double>;

const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();
const qint32 MaxCount = std::numeric_limits<qint32>::max();

} // namespace

Q_DECLARE_METATYPE(Samples)

class TestPulsePoints : public QObject
{
    Q_OBJECT

private slots:
    void constantLevel_data();
    void constantLevel();
    void timesToPoints_data();
    void timesToPoints();
    void nothingToConvert_data();
    void nothingToConvert();
    void conversionIsLogged();
    void countsSaturate();
    void samplingRate_data();
    void samplingRate();
    void samplingRateIsLogged();
};

void TestPulsePoints::constantLevel_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("stop");
    QTest::addColumn<Samples>("expected");
    QTest::newRow("overwrite") << 0 << 1 << 2 << Samples{7, -1.5, -1.5, 7};
    QTest::newRow("insert overwrites") << 3 << 1 << 2 << Samples{7, -1.5, -1.5, 7};
    QTest::newRow("add") << 2 << 1 << 2 << Samples{7, 5.5, 5.5, 7};
    QTest::newRow("one point") << 0 << 3 << 3 << Samples{7, 7, 7, -1.5};
    QTest::newRow("no point") << 0 << 2 << 1 << Samples{7, 7, 7, 7};
    QTest::newRow("all") << 0 << 0 << 3 << Samples(4, -1.5);
}

void TestPulsePoints::constantLevel()
{
    QFETCH(int, action);
    QFETCH(int, start);
    QFETCH(int, stop);
    QFETCH(Samples, expected);
    INFO_WFM wfm = {action, 3, -1.5, start, stop, 4};
    Samples buffer = {99, 7, 7, 7, 7, 99};
    QCOMPARE(MakeWfmDC(&wfm, buffer.data() + 1), 0);
    expected.insert(expected.begin(), 99);
    expected.push_back(99);
    QCOMPARE(buffer, expected);
}

void TestPulsePoints::timesToPoints_data()
{
    QTest::addColumn<double>("period");
    QTest::addColumn<Samples>("times");
    QTest::addColumn<Samples>("points");
    QTest::addColumn<int>("total");
    const auto row = [](const char* name, double period, const Samples& times,
                        const Samples& points,
                        int total) { QTest::newRow(name) << period << times << points << total; };
    row("halves", 2e-6, {0, 0, 1e-6, 0, 1e-6}, {0, 0, 65536, 0, 65536}, 131072);
    // 22/34 of the budget are 84811 points, 10/22 of them 38550, 2/22 of them 7710.
    row("first of two", 3.4e-5, {1e-5, 0, 2e-6, 0, 1e-5}, {38550, 0, 7710, 0, 38550}, 84810);
    row("second of two", 3.4e-5, {0, 0, 2e-6, 0, 1e-5}, {0, 0, 7710, 0, 38550}, 46260);
    row("thirds lose two points", 3e-6, {1e-6, 1e-6, 1e-6}, {43690, 43690, 43690}, 131070);
    row("sixths", 1.0, {0.1, 0.2, 0.3}, {13107, 26214, 39321}, 78642);
    row("one", 0.5, {0.5}, {131072}, 131072);
    row("too short for a point", 1.0, {1e-9, 0}, {0, 0}, 0);
    row("negative time", 1e-6, {-1e-6, 2e-6}, {-131072, 262144}, 131072);
    row("beyond the budget", 1.0, {2.0, 2.0}, {262144, 262144}, 524288);
    row("negative period", -1.0, {0.5}, {-65536}, -65536);
    row("no duration", 1e-6, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, 0);
    row("just not zero", 1.1e-15, {1.1e-15}, {131072}, 131072);
}

void TestPulsePoints::timesToPoints()
{
    QFETCH(double, period);
    QFETCH(Samples, times);
    QFETCH(Samples, points);
    QFETCH(int, total);
    long found = -77;
    const LogCapture log;
    QVERIFY(timeUnitConvertToPointsUnit(period, times, found));
    QCOMPARE(times, points);
    QCOMPARE(found, long(total));
}

void TestPulsePoints::nothingToConvert_data()
{
    QTest::addColumn<double>("period");
    QTest::addColumn<Samples>("times");
    QTest::newRow("zero period") << 0.0 << Samples{1e-6, 2e-6};
    QTest::newRow("same as zero") << 1e-15 << Samples{1e-15};
    QTest::newRow("same as zero from below") << -1e-15 << Samples{1e-15};
    QTest::newRow("no times") << 1e-6 << Samples{};
    QTest::newRow("neither") << 0.0 << Samples{};
}

void TestPulsePoints::nothingToConvert()
{
    QFETCH(double, period);
    QFETCH(Samples, times);
    const Samples before = times;
    long found = -77;
    const LogCapture log;
    QVERIFY(!timeUnitConvertToPointsUnit(period, times, found));
    QCOMPARE(times, before);
    QCOMPARE(found, -77L);
    QVERIFY(LogCapture::messages().isEmpty());
}

void TestPulsePoints::conversionIsLogged()
{
    Samples times = {1e-06, 1e-06, 1e-06};
    long total = 0;
    QTest::ignoreMessage(QtInfoMsg, "timeUnitConvertToPointsUnit tmp 131072 nTotalPoints 131070 "
                                    "cycle 3e-06 dbTotalPeriod 3e-06");
    QVERIFY(timeUnitConvertToPointsUnit(3e-06, times, total));
}

void TestPulsePoints::countsSaturate()
{
    const LogCapture log;
    Samples times = {1e10};
    long total = 0;
    QVERIFY(timeUnitConvertToPointsUnit(1e-9, times, total));
    QCOMPARE(times, Samples{MaxCount});
    QCOMPARE(total, long(MaxCount));

    times = {NotANumber, 1};
    QVERIFY(timeUnitConvertToPointsUnit(1, times, total));
    QCOMPARE(times, (Samples{0, 0}));
    QCOMPARE(total, 0L);

    times = {Infinity, 1};
    QVERIFY(timeUnitConvertToPointsUnit(1, times, total));
    QVERIFY(total >= 0 && total <= long(MaxCount));
}

void TestPulsePoints::samplingRate_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("suitable");
    QTest::newRow("from 1000 on unchanged") << 1000 << 1.5e9 << 1.5e9;
    QTest::newRow("to 2999 unchanged") << 2999 << 123.456 << 123.456;
    QTest::newRow("6000") << 6000 << 1e9 << 5e8;
    QTest::newRow("3000") << 3000 << 2.5e8 << 2.5e8;
    QTest::newRow("500") << 500 << 1e6 << 6e6;
    QTest::newRow("999, capped") << 999 << 1e9 << 2e9;
    QTest::newRow("one point") << 1 << 1000.0 << 3e6;
    QTest::newRow("capped") << 3001 << 1e12 << 2e9;
    QTest::newRow("no points") << 0 << 1e6 << 2e9;
    QTest::newRow("-999 rounds down") << -999 << 1e6 << -3003004.0;
    QTest::newRow("-1000 unchanged") << -1000 << 1e6 << 1e6;
    QTest::newRow("-3000 unchanged") << -3000 << 1e6 << 1e6;
}

void TestPulsePoints::samplingRate()
{
    QFETCH(int, points);
    QFETCH(double, rate);
    const LogCapture log;
    QTEST(getSuitableSamplingRate(points, rate), "suitable");
    QCOMPARE(LogCapture::messages().size(), 2);
}

void TestPulsePoints::samplingRateIsLogged()
{
    QTest::ignoreMessage(QtInfoMsg,
                         "getSuitableSamplingRate SAMPLE_RATE_CONST in use, points= 6000 "
                         "debSamplingRate= 1e+09");
    QTest::ignoreMessage(QtInfoMsg, "getSuitableSamplingRate dbSamplingRate 5e+08");
    QCOMPARE(getSuitableSamplingRate(6000, 1e9), 5e8);
}

QTEST_APPLESS_MAIN(TestPulsePoints)

#include "test_pulsepoints.moc"
