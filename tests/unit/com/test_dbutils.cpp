// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dbutils.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();
const double Largest = std::numeric_limits<double>::max();
const double Smallest = std::numeric_limits<double>::denorm_min();

// Qt Test compares doubles with a tolerance, which would hide what these tests are about.
quint64 bits(double value)
{
    quint64 result = 0;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

// The rounding with whole-number step counts: below 2^31 in one 32-bit integer, above in two.
double roundWithIntegers(double value, double step)
{
    double steps = (std::fabs(value) * 1.000000000000001 + step * 0.5) / step;
    if (steps < 2147483648.0) {
        steps = quint32(steps);
    } else {
        const double high = double(quint32(steps * 4.656612873077393e-10)) * 2147483648.0;
        steps = high + quint32(steps - high);
    }
    return value < 0 ? -(steps * step) : steps * step;
}

void addPair(const char* name, double first, double second, bool same)
{
    QTest::newRow(name) << first << second << same;
}

} // namespace

class TestDbUtils : public QObject
{
    Q_OBJECT

private slots:
    void roundsToMultiples_data();
    void roundsToMultiples();
    void roundsBothSignsAlike_data() { roundsToMultiples_data(); }
    void roundsBothSignsAlike();
    void roundsLikeIntegers_data();
    void roundsLikeIntegers();
    void passesWhatCannotBeRounded_data();
    void passesWhatCannotBeRounded();
    void comparesValues_data();
    void comparesValues();
    void comparesBothWaysRound_data() { comparesValues_data(); }
    void comparesBothWaysRound();
    void widensLimits_data();
    void widensLimits();
    void letsPrintedLimitsPass();
};

void TestDbUtils::roundsToMultiples_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("steps");

    QTest::newRow("zero") << 0.0 << 0.1 << 0.0;
    QTest::newRow("half a step goes up") << 0.00005 << 0.0001 << 1.0;
    QTest::newRow("just below half a step") << 0.00004999999 << 0.0001 << 0.0;
    QTest::newRow("a hair below half a step counts as half")
        << std::nextafter(0.5, 0.0) << 1.0 << 1.0;
    QTest::newRow("two hairs and more below half a step") << 0.499999999999998 << 1.0 << 0.0;
    QTest::newRow("one and a half") << 1.5 << 1.0 << 2.0;
    QTest::newRow("two and a half") << 2.5 << 1.0 << 3.0;
    QTest::newRow("on a multiple") << 0.3 << 0.1 << 3.0;
    QTest::newRow("coarse step") << 74.0 << 50.0 << 1.0;
    QTest::newRow("step above the value") << 1.0 << 1000.0 << 0.0;
    QTest::newRow("levels") << 2.00005 << 0.0001 << 20001.0;
    QTest::newRow("delay") << 1.00005e-5 << 1e-10 << 100005.0;
    QTest::newRow("2^31 - 1 steps") << 2147483647.4 << 1.0 << 2147483647.0;
    QTest::newRow("up to 2^31 steps") << 2147483647.5 << 1.0 << 2147483648.0;
    QTest::newRow("2^31 steps") << 2147483648.0 << 1.0 << 2147483648.0;
    QTest::newRow("2^31 steps and a half") << 2147483648.5 << 1.0 << 2147483649.0;
    QTest::newRow("2^32 - 1 steps") << 4294967295.0 << 1.0 << 4294967295.0;
    QTest::newRow("2^32 steps") << 4294967296.0 << 1.0 << 4294967296.0;
    QTest::newRow("2^32 steps and a quarter") << 4294967296.25 << 1.0 << 4294967296.0;
    QTest::newRow("longest timer in tenths of microseconds") << 500.0 << 1e-7 << 5e9;
    QTest::newRow("ten thousand ohms in nanosteps") << 10000.0 << 1e-9 << 1e13;
    QTest::newRow("many steps of a small size") << 12.3456789 << 1e-10 << 123456789000.0;
}

void TestDbUtils::roundsToMultiples()
{
    QFETCH(double, value);
    QFETCH(double, step);
    QFETCH(double, steps);

    QCOMPARE(bits(DBRound(value, step)), bits(steps * step));
}

void TestDbUtils::roundsBothSignsAlike()
{
    QFETCH(double, value);
    QFETCH(double, step);

    QVERIFY(DBRound(-value, step) == -DBRound(value, step));
}

void TestDbUtils::roundsLikeIntegers_data()
{
    QTest::addColumn<double>("largest");
    QTest::addColumn<double>("step");

    QTest::newRow("volts") << 20.0 << 0.0001;
    QTest::newRow("nanoseconds") << 0.00015 << 1e-9;
    QTest::newRow("delays") << 0.00015 << 1e-10;
    QTest::newRow("around 2^31 steps") << 4294967296.0 << 1.0;
    QTest::newRow("far above 2^31 steps") << 4e18 << 1.0;
    QTest::newRow("thirds") << 1e6 << 1.0 / 3;
}

void TestDbUtils::roundsLikeIntegers()
{
    QFETCH(double, largest);
    QFETCH(double, step);

    std::mt19937 generator(20050114);
    for (int i = 0; i < 20000; ++i) {
        const double value = largest * (double(generator()) / 2147483648.0 - 1);
        QCOMPARE(bits(DBRound(value, step)), bits(roundWithIntegers(value, step)));
    }
}

void TestDbUtils::passesWhatCannotBeRounded_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");

    QTest::newRow("infinity") << Infinity << 0.1;
    QTest::newRow("minus infinity") << -Infinity << 0.1;
    QTest::newRow("not a number") << NotANumber << 0.1;
    QTest::newRow("largest double, lifted beyond the range") << Largest << 1.0;
    QTest::newRow("smallest double") << -Largest << 1.0;
    QTest::newRow("more steps than a double can count") << 1.0 << Smallest;
    QTest::newRow("no step") << 1.5 << 0.0;
    QTest::newRow("nothing in no steps") << 0.0 << 0.0;
    QTest::newRow("step is not a number") << 1.5 << NotANumber;
}

void TestDbUtils::passesWhatCannotBeRounded()
{
    QFETCH(double, value);
    QFETCH(double, step);

    QCOMPARE(bits(DBRound(value, step)), bits(value));
}

void TestDbUtils::comparesValues_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<bool>("same");

    const double nearLarge = std::nextafter(1e13, 0.0);
    addPair("equal", 1.0, 1.0, true);
    addPair("zeros of both signs", 0.0, -0.0, true);
    addPair("within 1e-15", 1.0, 1.0000000000000009, true);
    addPair("beyond 1e-15", 1.0, 1.000000000000002, false);
    addPair("exactly 1e-15 apart", 0.0, 1e-15, true);
    addPair("a hair more than 1e-15 apart", 0.0, std::nextafter(1e-15, 1.0), false);
    addPair("tiny values count as the same", 1e-16, 9e-16, true);
    addPair("neighbours in thousands are not the same", 1000.0, std::nextafter(1000.0, 0.0), false);
    addPair("signs differ", 1.0, -1.0, false);
    addPair("both just below 1e13", nearLarge, std::nextafter(nearLarge, 0.0), false);
    addPair("one of the two at 1e13", nearLarge, 1e13, true);
    addPair("large, ratio close to 1", 1e14, 1e14 + 1, true);
    addPair("large and negative", -1e14, -1e14 - 1, true);
    addPair("ratio inside the lower bound", 99999999999996.0, 1e14, true);
    addPair("ratio at the lower bound", 99999999999995.0, 1e14, false);
    addPair("ratio inside the upper bound", 100000000000004.0, 1e14, true);
    addPair("ratio at the upper bound", 100000000000005.0, 1e14, false);
    addPair("large and apart", 1e14, 1.1e14, false);
    addPair("large, signs differ", 1e14, -1e14, false);
    addPair("large and zero", 1e14, 0.0, false);
    addPair("infinity and a number", Infinity, 1.0, false);
    addPair("infinities have no ratio", Infinity, Infinity, false);
    addPair("not a number", NotANumber, NotANumber, false);
    addPair("not a number and a number", NotANumber, 0.0, false);
}

void TestDbUtils::comparesValues()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(bool, same);

    QCOMPARE(DBSameValue(first, second), same);
}

void TestDbUtils::comparesBothWaysRound()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(bool, same);

    QCOMPARE(DBSameValue(second, first), same);
}

void TestDbUtils::widensLimits_data()
{
    QTest::addColumn<double>("limit");
    QTest::addColumn<double>("margin");

    QTest::newRow("zero") << 0.0 << 1e-15;
    QTest::newRow("small") << 0.00015 << 1e-15;
    QTest::newRow("one") << 1.0 << 1e-15;
    QTest::newRow("five") << 5.0 << 5e-15;
    QTest::newRow("minus five") << -5.0 << 5e-15;
    QTest::newRow("500 seconds") << 500.0 << 5e-13;
    QTest::newRow("large") << 1e15 << 1.0;
    QTest::newRow("large and negative") << -1e15 << 1.0;
}

void TestDbUtils::widensLimits()
{
    QFETCH(double, limit);
    QFETCH(double, margin);

    QCOMPARE(bits(limitPlusSafety(limit)), bits(limit + margin));
    QCOMPARE(bits(limitMinusSafety(limit)), bits(limit - margin));
}

void TestDbUtils::letsPrintedLimitsPass()
{
    QVERIFY(0.1 + 0.2 > 0.3);
    QVERIFY(0.1 + 0.2 <= limitPlusSafety(0.3));
    QVERIFY(0.3 >= limitMinusSafety(0.1 + 0.2));
    QVERIFY(0.3 + 1e-12 > limitPlusSafety(0.3));
    QVERIFY(0.3 - 1e-12 < limitMinusSafety(0.3));
}

QTEST_APPLESS_MAIN(TestDbUtils)
#include "test_dbutils.moc"
