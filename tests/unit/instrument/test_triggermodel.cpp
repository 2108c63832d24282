// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "triggermodel.h"

#include <QTest>

#include <limits>
#include <random>

class TestTriggerModel : public QObject
{
    Q_OBJECT

private slots:
    void edges_data();
    void edges();
    void nanoseconds_data();
    void nanoseconds();
    void triggersDuringABurstAreLost();
    void timerBursts_data();
    void timerBursts();
    void timerAgreesWithEveryTickTried();
    void burstByHandDelaysTheTimer();
    void endlessBurst();
};

void TestTriggerModel::edges_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("slope");
    QTest::addColumn<bool>("rising");
    QTest::addColumn<bool>("falling");

    const int positive = int(EdgeSlope::Positive);
    const int negative = int(EdgeSlope::Negative);
    QTest::newRow("external, positive") << int(BurstTrigger::External) << positive << true << false;
    QTest::newRow("external, negative") << int(BurstTrigger::External) << negative << false << true;
    QTest::newRow("timer") << int(BurstTrigger::Timer) << positive << false << false;
    QTest::newRow("manual") << int(BurstTrigger::Manual) << negative << false << false;
}

void TestTriggerModel::edges()
{
    QFETCH(int, source);
    QFETCH(int, slope);
    TriggerSettings settings;
    settings.source = BurstTrigger(source);
    settings.slope = EdgeSlope(slope);
    QTEST(settings.acceptsEdge(EdgeSlope::Positive), "rising");
    QTEST(settings.acceptsEdge(EdgeSlope::Negative), "falling");
}

void TestTriggerModel::nanoseconds_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<qint64>("expected");

    QTest::newRow("nothing") << 0.0 << qint64(0);
    QTest::newRow("negative") << -1.0 << qint64(0);
    QTest::newRow("begun") << 1.5e-9 << qint64(2);
    QTest::newRow("shortest timer") << 2e-6 << qint64(2000);
    // Both products exceed the whole number by a rounding.
    QTest::newRow("decimal fraction") << 61e-9 << qint64(61);
    QTest::newRow("period of a frequency") << 1 / (1e9 / 15) << qint64(15);
    QTest::newRow("longest timer") << 500.0 << qint64(500000000000);
    QTest::newRow("a century") << 3.2e9 << EndlessNanoseconds;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << EndlessNanoseconds;
    QTest::newRow("not a number") << qQNaN() << EndlessNanoseconds;
}

void TestTriggerModel::nanoseconds()
{
    QFETCH(double, seconds);
    QTEST(coveringNanoseconds(seconds), "expected");
}

void TestTriggerModel::triggersDuringABurstAreLost()
{
    BurstSchedule schedule;
    schedule.arm(100);
    QVERIFY(schedule.trigger(100, 50));
    QVERIFY(!schedule.trigger(100, 50));
    QVERIFY(!schedule.trigger(149, 50));
    QVERIFY(schedule.trigger(150, 50));
    schedule.arm(160);
    QVERIFY(schedule.trigger(160, 50));
}

void TestTriggerModel::timerBursts_data()
{
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<qint64>("bursts");

    const auto row = [](const char* name, qint64 interval, qint64 duration, qint64 elapsed,
                        qint64 bursts) {
        QTest::newRow(name) << interval << duration << elapsed << bursts;
    };
    row("at once", 1000, 10, 0, 1);
    row("just before the second", 1000, 10, 999, 1);
    row("the second", 1000, 10, 1000, 2);
    row("burst as long as the interval", 1000, 1000, 10000, 11);
    row("every second tick is lost", 1000, 1001, 10000, 6);
    row("every second tick, just before", 1000, 2000, 9999, 5);
    row("a day", 1000000, 20000, Q_INT64_C(86400000000000), 86400001);
    row("interval of a nanosecond", 1, 0, 1000, 1001);
    row("endless burst", 1000, EndlessNanoseconds, Q_INT64_C(1000000000000000), 1);
}

void TestTriggerModel::timerBursts()
{
    QFETCH(qint64, interval);
    QFETCH(qint64, duration);
    QFETCH(qint64, elapsed);
    QFETCH(qint64, bursts);

    const qint64 start = 12345;
    BurstSchedule schedule;
    schedule.arm(start);
    QCOMPARE(schedule.timerBursts(interval, duration, start + elapsed), bursts);
    QCOMPARE(schedule.timerBursts(interval, duration, start + elapsed), qint64(0));
}

// The bursts computed at once or in any steps are those of a generator that looks at each tick.
void TestTriggerModel::timerAgreesWithEveryTickTried()
{
    std::mt19937 random(7);
    const auto pick = [&random](qint64 below) { return qint64(random() % quint32(below)); };
    for (int round = 0; round < 300; ++round) {
        const qint64 interval = 1 + pick(50);
        const qint64 duration = pick(200);
        const qint64 end = pick(5000);

        qint64 expected = 0;
        qint64 busyUntil = 0;
        for (qint64 tick = 0; tick <= end; tick += interval) {
            if (tick >= busyUntil) {
                ++expected;
                busyUntil = tick + duration;
            }
        }

        BurstSchedule schedule;
        schedule.arm(0);
        qint64 bursts = 0;
        for (qint64 now = 0; now < end; now += 1 + pick(700))
            bursts += schedule.timerBursts(interval, duration, now);
        bursts += schedule.timerBursts(interval, duration, end);
        QCOMPARE(bursts, expected);
    }
}

void TestTriggerModel::burstByHandDelaysTheTimer()
{
    BurstSchedule schedule;
    schedule.arm(0);
    QCOMPARE(schedule.timerBursts(1000, 300, 0), qint64(1));
    QVERIFY(schedule.trigger(900, 300));
    QCOMPARE(schedule.timerBursts(1000, 300, 1999), qint64(0));
    QCOMPARE(schedule.timerBursts(1000, 300, 2000), qint64(1));
}

void TestTriggerModel::endlessBurst()
{
    BurstSchedule schedule;
    schedule.arm(5);
    QVERIFY(schedule.trigger(5, EndlessNanoseconds));
    QVERIFY(!schedule.trigger(Q_INT64_C(1000000000000000), 1));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(schedule.timerBursts(2000, EndlessNanoseconds, 1000000 + i), qint64(0));
}

QTEST_APPLESS_MAIN(TestTriggerModel)
#include "test_triggermodel.moc"
