// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "sweepplan.h"

#include <QtTest>

Q_DECLARE_METATYPE(SweepPlan)

class TestSweepPlan : public QObject
{
    Q_OBJECT

private slots:
    void parsesRanges_data();
    void parsesRanges();
    void refusesRanges_data();
    void refusesRanges();
    void countsValues_data();
    void countsValues();
    void plansWidths();
    void plansCurrents();
    void namesSortByValue_data();
    void namesSortByValue();
    void takesUnits();
    void refusesSteps();
    void writesCells_data();
    void writesCells();
};

void TestSweepPlan::parsesRanges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<double>>("numbers");
    QTest::newRow("range") << QStringLiteral("2u:20u:1u") << QVector<double>{2e-6, 20e-6, 1e-6};
    QTest::newRow("down") << QStringLiteral("3:1:-1") << QVector<double>{3, 1, -1};
    QTest::newRow("one") << QStringLiteral("5u") << QVector<double>{5e-6, 5e-6, 0};
    QTest::newRow("no way") << QStringLiteral("1:1:1") << QVector<double>{1, 1, 1};
}

void TestSweepPlan::parsesRanges()
{
    QFETCH(QString, text);
    SweepRange range;
    QVERIFY(SweepRange::parse(text, range));
    QTEST((QVector<double>{range.from, range.to, range.step}), "numbers");
}

void TestSweepPlan::refusesRanges_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", ":", "1:2", "1:2:", "1:2:0", "1:2:-1", "2:1:1", "1:2:3:4", "a:b:c",
                             "1us", "1x", "1:inf:1"})
        QTest::newRow(qPrintable(QLatin1Char('"') + QLatin1String(text)))
            << QString::fromUtf8(text);
}

void TestSweepPlan::refusesRanges()
{
    QFETCH(QString, text);
    SweepRange range;
    range.from = 17;
    QVERIFY(!SweepRange::parse(text, range));
    QCOMPARE(range.from, 17.0);
}

void TestSweepPlan::countsValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("last");
    QTest::newRow("tenths, which add up to less") << QStringLiteral("0:1:0.1") << 11 << 1.0;
    QTest::newRow("nanoseconds") << QStringLiteral("20n:150u:1n") << 149981 << 150e-6;
    QTest::newRow("end between two steps") << QStringLiteral("1:2:0.3") << 4 << 1.9;
    QTest::newRow("down") << QStringLiteral("1:0:-0.1") << 11 << 0.0;
    QTest::newRow("one") << QStringLiteral("4") << 1 << 4.0;
}

void TestSweepPlan::countsValues()
{
    QFETCH(QString, text);
    QFETCH(double, last);
    SweepRange range;
    QVERIFY(SweepRange::parse(text, range));
    const QVector<double> values = range.values(1000000);
    QTEST(values.size(), "count");
    QVERIFY(qAbs(values.last() - last) < 1e-12);
    QCOMPARE(range.values(2).size(), qMin(values.size(), 3));
}

void TestSweepPlan::plansWidths()
{
    const SweepPlan plan = planWidths({19.998e-6, 20e-6, 1e-9});
    QCOMPARE(plan.wrong, QString());
    QStringList suffixes;
    for (const SweepStep& step : plan.steps)
        suffixes.append(step.suffix);
    QCOMPARE(suffixes, (QStringList{QStringLiteral("_w19.998u"), QStringLiteral("_w19.999u"),
                                    QStringLiteral("_w20.000u")}));
    QCOMPARE(planWidths({20e-9, 150e-6, 150e-6 - 20e-9}).steps.size(), 2);
}

// 100 uH at 300 V: 333.33 ns for each ampere.
void TestSweepPlan::plansCurrents()
{
    const SweepPlan plan = planCurrents({1, 3, 1}, 300, 100e-6);
    QCOMPARE(plan.wrong, QString());
    QCOMPARE(plan.steps.size(), 3);
    QCOMPARE(plan.steps.at(0).nanoseconds, qint64(333));
    QCOMPARE(plan.steps.at(1).nanoseconds, qint64(667));
    QCOMPARE(plan.steps.at(2).nanoseconds, qint64(1000));
    QCOMPARE(plan.steps.at(1).current, 2.0);
    QCOMPARE(plan.steps.at(1).suffix, QStringLiteral("_i2_w0.667u"));
}

void TestSweepPlan::namesSortByValue_data()
{
    QTest::addColumn<SweepPlan>("plan");
    QTest::addColumn<QString>("first");
    QTest::newRow("nanoseconds and microseconds")
        << planWidths({20e-9, 150e-6, 4.999e-6}) << QStringLiteral("_w000.020u");
    QTest::newRow("currents") << planCurrents({10, 100, 10}, 400, 50e-6)
                              << QStringLiteral("_i010_w01.250u");
    QTest::newRow("halves") << planCurrents({9, 11, 0.5}, 400, 50e-6)
                            << QStringLiteral("_i09.0_w1.125u");
    QTest::newRow("exponents") << planCurrents({1e-5, 1e-5, 0}, 1, 1)
                               << QStringLiteral("_i1e-05_w10.000u");
}

void TestSweepPlan::namesSortByValue()
{
    QFETCH(SweepPlan, plan);
    QCOMPARE(plan.wrong, QString());
    QTEST(plan.steps.first().suffix, "first");
    for (int i = 1; i < plan.steps.size(); ++i)
        QVERIFY2(plan.steps.at(i - 1).suffix < plan.steps.at(i).suffix,
                 qPrintable(plan.steps.at(i).suffix));
}

void TestSweepPlan::takesUnits()
{
    SweepRange range;
    QVERIFY(SweepRange::parse(QStringLiteral("2us:4us:1us"), range, QStringLiteral("s")));
    QCOMPARE(range.values(10).size(), 3);
    QVERIFY(SweepRange::parse(QStringLiteral("10A"), range, QStringLiteral("A")));
    QCOMPARE(range.from, 10.0);
    QVERIFY(!SweepRange::parse(QStringLiteral("10A"), range, QStringLiteral("s")));
}

void TestSweepPlan::refusesSteps()
{
    QCOMPARE(planWidths({20e-9, 150e-6, 1e-9}).wrong, QStringLiteral("more than 10000 setups"));
    QCOMPARE(planWidths({20e-9, 10.019e-6, 1e-9}).wrong, QString());
    QCOMPARE(planWidths({0, 1e-6, 1e-9}).wrong,
             QStringLiteral("a width of 0.000 s is outside 20.000 ns to 150.000 us"));
    QCOMPARE(planCurrents({-1, -1, 0}, 400, 50e-6).wrong,
             QStringLiteral("-1 A: a width of -125.000 ns is outside 20.000 ns to 150.000 us"));
    // Twelve digits do not tell these two currents apart.
    QCOMPARE(planCurrents({10, 10 + 3e-13, 1e-13}, 400, 50e-6).wrong,
             QStringLiteral("two steps would have the name _i10_w1.250u"));
}

void TestSweepPlan::writesCells_data()
{
    QTest::addColumn<qint64>("nanoseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("least") << qint64(20) << QStringLiteral("20.000n");
    QTest::newRow("below a microsecond") << qint64(999) << QStringLiteral("999.000n");
    QTest::newRow("a microsecond") << qint64(1000) << QStringLiteral("1.000u");
    QTest::newRow("zeros between") << qint64(2005) << QStringLiteral("2.005u");
    QTest::newRow("most") << qint64(150000) << QStringLiteral("150.000u");
}

void TestSweepPlan::writesCells()
{
    QFETCH(qint64, nanoseconds);
    QTEST(cellOfNanoseconds(nanoseconds), "text");
}

QTEST_APPLESS_MAIN(TestSweepPlan)
#include "test_sweepplan.moc"
