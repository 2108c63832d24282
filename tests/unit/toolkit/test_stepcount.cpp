// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "stepcount.h"

#include "logcapture.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace appPlugins;

namespace {

const long long Largest = std::numeric_limits<long long>::max();
const long long Smallest = std::numeric_limits<long long>::min();

} // namespace

class TestStepCount : public QObject
{
    Q_OBJECT

private slots:
    void countsSteps_data();
    void countsSteps();
    void decimals_data();
    void decimals();
    void addsUpToTheEnds_data();
    void addsUpToTheEnds();
    void powers();
    void typed_data();
    void typed();
    void typedLogsItsShift();
};

void TestStepCount::countsSteps_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<long long>("steps");

    QTest::newRow("zero") << 0.0 << 1e-12 << 0LL;
    QTest::newRow("1 ms") << 1e-3 << 1e-12 << 1000000000LL;
    QTest::newRow("a value off the binary grid") << 0.3 << 1e-4 << 3000LL;
    QTest::newRow("rounds to nearest") << 2.6 << 1.0 << 3LL;
    QTest::newRow("negative") << -0.05 << 1e-4 << -500LL;
    QTest::newRow("margin of a limit vanishes") << 5.000000000000005 << 1e-4 << 50000LL;
    QTest::newRow("beyond 64 bits") << 1e30 << 1e-12 << Largest;
    QTest::newRow("below 64 bits") << -1e300 << 1e-12 << Smallest;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1e-12 << Largest;
    QTest::newRow("no number") << std::nan("") << 1e-12 << 0LL;
}

void TestStepCount::countsSteps()
{
    QFETCH(double, value);
    QFETCH(double, resolution);
    QTEST(stepCount(value, resolution), "steps");
}

void TestStepCount::decimals_data()
{
    QTest::addColumn<double>("resolution");
    QTest::addColumn<double>("times");
    QTest::addColumn<int>("count");

    const double prefixes[] = {1e9, 1e6, 1e3, 1, 1e-3, 1e-6, 1e-9};
    const double resolutions[] = {1,    1e-1, 1e-2, 1e-3,  1e-4,  1e-5, 1e-6,
                                  1e-7, 1e-8, 1e-9, 1e-10, 1e-11, 1e-12};
    for (int r = 0; r < 13; ++r) {
        for (int p = 0; p < 7; ++p)
            QTest::addRow("1e-%d by 1e%d", r, 9 - 3 * p)
                << resolutions[r] << prefixes[p] << r + 9 - 3 * p;
    }
}

void TestStepCount::decimals()
{
    QFETCH(double, resolution);
    QFETCH(double, times);
    QTEST(shownDecimals(resolution, times), "count");
}

void TestStepCount::addsUpToTheEnds_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<long long>("sum");

    QTest::newRow("up") << 5LL << 3LL << 8LL;
    QTest::newRow("down over zero") << 5LL << -8LL << -3LL;
    QTest::newRow("exact beyond doubles") << 9007199254740993LL << 2LL << 9007199254740995LL;
    QTest::newRow("to the largest") << Largest - 1 << 1LL << Largest;
    QTest::newRow("past the largest") << Largest - 1 << 100LL << Largest;
    QTest::newRow("past the smallest") << Smallest + 1 << -100LL << Smallest;
}

void TestStepCount::addsUpToTheEnds()
{
    QFETCH(long long, value);
    QFETCH(long long, steps);
    QTEST(addSteps(value, steps), "sum");
}

void TestStepCount::powers()
{
    QCOMPARE(tenToThe(-5), 0LL);
    QCOMPARE(tenToThe(-1), 0LL);
    QCOMPARE(tenToThe(0), 1LL);
    QCOMPARE(tenToThe(9), 1000000000LL);
    QCOMPARE(tenToThe(18), 1000000000000000000LL);
    QCOMPARE(tenToThe(19), Largest);
    QCOMPARE(tenToThe(400), Largest);
}

void TestStepCount::typed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<long long>("steps");

    const long long fallback = 77;
    const auto row = [](const char* text, int decimals, long long steps) {
        QTest::addRow("\"%s\" by %d", text, decimals)
            << QString::fromLatin1(text) << decimals << steps;
    };
    row("5", 9, 5000000000);
    row("5", 0, 5);
    row("1.23456789", 6, 1234567);
    row("1.9", 0, 1);
    row("1.5", 3, 1500);
    row("7.", 3, 7000);
    row("-2.5", 2, -250);
    row("-0", 4, 0);
    row("-0.00009", 4, 0);
    row("007", 1, 70);
    row("5000", -2, 50);
    row("123", -2, 1);
    row("12", -2, 0);
    row("5", -2, 0);
    row("-5", -2, 0);
    row("5.55", -2, 0);
    row("555.5", -2, 5);
    row("9223372036854775807", 0, Largest);
    row("9223372036854775808", 0, Largest);
    row("99999999999", 12, Largest);
    row("-99999999999", 12, Largest);
    row("", 3, fallback);
    row("-", 3, fallback);
    row(".", 3, fallback);
    row(".5", 3, fallback);
    row("-.5", 3, fallback);
    row("x5", 3, fallback);
}

void TestStepCount::typed()
{
    QFETCH(QString, text);
    QFETCH(int, decimals);
    QTEST(typedSteps(text, decimals, 77), "steps");
}

void TestStepCount::typedLogsItsShift()
{
    const LogCapture log;
    QCOMPARE(typedSteps(QStringLiteral("1.25"), 6, 0), 1250000LL);
    QCOMPARE(LogCapture::messages(),
             QStringList{QStringLiteral("debug: normalize shift 4 \"1.25\"")});
}

QTEST_APPLESS_MAIN(TestStepCount)
#include "test_stepcount.moc"
