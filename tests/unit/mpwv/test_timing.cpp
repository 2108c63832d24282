// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "timing.h"

#include "trainsamples.h"

#include <QtTest>

#include <cmath>

class TestTiming : public QObject
{
    Q_OBJECT

private slots:
    void sharesOutThePoints();
    void tellsOfSwallowedPulses();
    void hasNoSpacingWithoutPoints();
};

void TestTiming::sharesOutThePoints()
{
    PulseTrain train;
    train.pulses = {{1e-6, 1e-6}};
    const TrainTiming timing = trainTiming(train);
    QCOMPARE(timing.points, qint64(PointBudget));
    QCOMPARE(timing.period, 2e-6);
    QCOMPARE(timing.frequency, 500000.0);
    QCOMPARE(timing.spacing, 2e-6 / 131072);
    QCOMPARE(timing.pulses.at(0).width.points, 65536.0);
    QCOMPARE(timing.pulses.at(0).width.got, 1e-6);
    QCOMPARE(timing.pulses.at(0).width.error(), 0.0);
    QCOMPARE(timing.pulses.at(0).gap.errorPercent(), 0.0);
    QCOMPARE(timing.delay.points, 0.0);
}

void TestTiming::tellsOfSwallowedPulses()
{
    PulseTrain train;
    train.pulses = QVector<Pulse>(30, {150e-6, 150e-6});
    train.pulses[3].width = 20e-9;
    const TrainTiming timing = trainTiming(train);
    QCOMPARE(timing.pulses.at(3).width.asked, 20e-9);
    QCOMPARE(timing.pulses.at(3).width.got, 0.0);
    QCOMPARE(timing.pulses.at(3).width.errorPercent(), -100.0);
}

void TestTiming::hasNoSpacingWithoutPoints()
{
    const TrainTiming timing = trainTiming(PulseTrain());
    QCOMPARE(timing.points, qint64(0));
    QVERIFY(std::isnan(timing.spacing));
    QVERIFY(std::isinf(timing.frequency));
    QVERIFY(timing.pulses.isEmpty());
}

QTEST_APPLESS_MAIN(TestTiming)
#include "test_timing.moc"
