// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channel.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestChannel : public QObject
{
    Q_OBJECT

private slots:
    void loadFactors_data();
    void loadFactors();
    void builtInShapes();
    void afterReset();
    void nothingPlaysBeforeATrigger();
    void burst_data();
    void burst();
    void triggersThatAreLost();
    void settingsAreForLaterBursts();
    void severalCyclesAndDelay();
    void endlessBurst();
    void timerCountsWithoutBeingWatched();
    void timerBurstsKeepTheSettingsOfTheirTime();
    void switchingOnForgets();
    void switchingOnAgainChangesNothing();
    void continuousOutput();
    void rearmBreaksTheBurstOff();
    void resetKeepsTheSequence();
};

namespace {

const double Infinity = std::numeric_limits<double>::infinity();
const QVector<qint16> Cycle = {-32764, 32764, 0, -16382};

TriggerSettings manual()
{
    TriggerSettings settings;
    settings.source = BurstTrigger::Manual;
    return settings;
}

TriggerSettings timer(double seconds)
{
    TriggerSettings settings;
    settings.timerInterval = seconds;
    return settings;
}

// One cycle of four points takes 10 us.
ChannelSettings burstSettings()
{
    ChannelSettings settings;
    settings.outputOn = true;
    settings.burstOn = true;
    settings.shape = WaveShape::File;
    settings.frequency = 1e5;
    settings.amplitude = 3;
    settings.offset = 0.5;
    return settings;
}

} // namespace

void TestChannel::loadFactors_data()
{
    QTest::addColumn<double>("ohms");
    QTest::addColumn<double>("factor");
    QTest::newRow("matched") << 50.0 << 1.0;
    QTest::newRow("150") << 150.0 << 1.5;
    QTest::newRow("below open") << 9950.0 << 1.99;
    QTest::newRow("10000 counts as open") << 10000.0 << 2.0;
    QTest::newRow("infinite") << Infinity << 2.0;
}

void TestChannel::loadFactors()
{
    QFETCH(double, ohms);
    QFETCH(double, factor);
    QVERIFY(loadFactor(ohms) == factor);
}

void TestChannel::builtInShapes()
{
    const QVector<qint16> sine = builtInCycle(WaveShape::Sine);
    QCOMPARE(sine.size(), 1000);
    QCOMPARE(int(sine.at(0)), 0);
    QCOMPARE(int(sine.at(250)), 32764);
    QCOMPARE(int(sine.at(500)), 0);
    QCOMPARE(int(sine.at(750)), -32764);
    QCOMPARE(builtInCycle(WaveShape::EditMemory), QVector<qint16>(1000, 0));
    QVERIFY(builtInCycle(WaveShape::File).isEmpty());
}

void TestChannel::afterReset()
{
    const Channel channel;
    QVERIFY(!channel.settings().outputOn);
    QVERIFY(!channel.settings().burstOn);
    QCOMPARE(channel.settings().loadOhms, 50.0);
    QVERIFY(channel.trace().isEmpty());
    QCOMPARE(channel.count(), qint64(0));
    QCOMPARE(channel.sequence(), qint64(0));
    QCOMPARE(channel.idleLevel(), 0.0);
}

void TestChannel::nothingPlaysBeforeATrigger()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(!channel.advance(manual(), 1000000));
    QVERIFY(channel.trace().isEmpty());
    QCOMPARE(channel.count(), qint64(0));
    // The first sample is the low level, 0.5 V - 1.5 V.
    QCOMPARE(channel.idleLevel(), -1.0);
}

void TestChannel::burst_data()
{
    QTest::addColumn<double>("ohms");
    QTest::addColumn<double>("factor");
    QTest::newRow("50 ohm") << 50.0 << 1.0;
    QTest::newRow("high impedance") << 10000.0 << 2.0;
    QTest::newRow("open") << Infinity << 2.0;
    QTest::newRow("150 ohm") << 150.0 << 1.5;
}

void TestChannel::burst()
{
    QFETCH(double, ohms);
    QFETCH(double, factor);
    ChannelSettings settings = burstSettings();
    settings.loadOhms = ohms;
    Channel channel;
    channel.apply(settings, Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    QCOMPARE(channel.count(), qint64(1));

    const Trace& trace = channel.trace();
    QCOMPARE(trace.points(), 4);
    QCOMPARE(trace.timeStep, 2.5e-6);
    QCOMPARE(trace.startTime, 0.0);
    QCOMPARE(trace.volts(0), -1.0 * factor);
    QCOMPARE(trace.volts(1), 2.0 * factor);
    QCOMPARE(trace.volts(2), 0.5 * factor);
    QCOMPARE(trace.volts(3), -0.25 * factor);
    QCOMPARE(channel.idleLevel(), -1.0 * factor);
}

void TestChannel::triggersThatAreLost()
{
    Channel channel;
    QVERIFY(!channel.trigger(0));
    QVERIFY(!channel.isAtRest(0));
    QVERIFY(!channel.isPlaying(0));

    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.isAtRest(0));
    QVERIFY(channel.trigger(0));
    QVERIFY(!channel.isAtRest(9999));
    QVERIFY(channel.isPlaying(9999));
    QVERIFY(!channel.trigger(9999));
    QCOMPARE(channel.count(), qint64(1));
    QVERIFY(channel.isAtRest(10000));
    QVERIFY(!channel.isPlaying(10000));
    QVERIFY(channel.trigger(10000));
    QCOMPARE(channel.count(), qint64(2));

    ChannelSettings off = burstSettings();
    off.outputOn = false;
    channel.apply(off, Cycle, manual(), 20000);
    QVERIFY(!channel.trigger(1000000));
    QCOMPARE(channel.idleLevel(), 0.0);
    QCOMPARE(channel.trace().points(), 4);
    QCOMPARE(channel.count(), qint64(2));
}

void TestChannel::settingsAreForLaterBursts()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));

    ChannelSettings changed = burstSettings();
    changed.frequency = 1e6;
    changed.loadOhms = 10000;
    channel.apply(changed, {100, 200}, manual(), 5000);
    QCOMPARE(channel.trace().points(), 4);
    QCOMPARE(channel.trace().timeStep, 2.5e-6);
    QCOMPARE(channel.trace().volts(1), 2.0);
    QVERIFY(!channel.trigger(9999));

    QVERIFY(channel.trigger(10000));
    QCOMPARE(channel.trace().points(), 2);
    QCOMPARE(channel.trace().timeStep, 5e-7);
    QCOMPARE(channel.trace().levelOffset, 1.0);
    QVERIFY(channel.trigger(11000));
    QCOMPARE(channel.count(), qint64(3));
}

void TestChannel::severalCyclesAndDelay()
{
    ChannelSettings settings = burstSettings();
    settings.burstCycles = 3;
    settings.burstDelay = 7e-6;
    Channel channel;
    channel.apply(settings, Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    QCOMPARE(channel.trace().points(), 12);
    QCOMPARE(channel.trace().startTime, 7e-6);
    QVERIFY(!channel.isAtRest(36999));
    QVERIFY(channel.isAtRest(37000));
}

void TestChannel::endlessBurst()
{
    ChannelSettings settings = burstSettings();
    settings.burstCycles = Infinity;
    Channel channel;
    channel.apply(settings, Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    QVERIFY(!channel.trigger(Q_INT64_C(1000000000000000)));
    QCOMPARE(channel.trace().points(), 4);
    QCOMPARE(channel.count(), qint64(1));
}

void TestChannel::timerCountsWithoutBeingWatched()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, timer(1e-3), 500);
    QCOMPARE(channel.count(), qint64(1));
    QVERIFY(!channel.advance(timer(1e-3), 1000499));
    QCOMPARE(channel.count(), qint64(1));
    QVERIFY(channel.advance(timer(1e-3), 1000500));
    QCOMPARE(channel.count(), qint64(2));
    QVERIFY(channel.advance(timer(1e-3), Q_INT64_C(3600000000500)));
    QCOMPARE(channel.count(), qint64(3600001));
    QCOMPARE(channel.sequence(), qint64(3600001));
}

void TestChannel::timerBurstsKeepTheSettingsOfTheirTime()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, timer(1e-3), 0);
    ChannelSettings changed = burstSettings();
    changed.amplitude = 1;
    channel.apply(changed, Cycle, timer(1e-3), 1500000);
    QCOMPARE(channel.count(), qint64(2));
    QCOMPARE(channel.trace().volts(1), 2.0);
    QVERIFY(channel.advance(timer(1e-3), 2000000));
    QCOMPARE(channel.count(), qint64(3));
    QCOMPARE(channel.trace().volts(1), 1.0);
}

void TestChannel::switchingOnForgets()
{
    ChannelSettings off = burstSettings();
    off.outputOn = false;
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    channel.apply(off, Cycle, manual(), 100);
    channel.apply(burstSettings(), Cycle, manual(), 200);
    QVERIFY(channel.trace().isEmpty());
    QCOMPARE(channel.count(), qint64(0));
    QCOMPARE(channel.sequence(), qint64(1));
    QVERIFY(channel.trigger(200));
    QCOMPARE(channel.sequence(), qint64(2));
}

void TestChannel::switchingOnAgainChangesNothing()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    channel.apply(burstSettings(), Cycle, manual(), 100);
    QCOMPARE(channel.count(), qint64(1));
    QCOMPARE(channel.trace().points(), 4);
    QVERIFY(!channel.trigger(100));
}

void TestChannel::continuousOutput()
{
    ChannelSettings settings = burstSettings();
    settings.burstOn = false;
    settings.burstDelay = 1e-3;
    Channel channel;
    channel.apply(settings, Cycle, timer(1e-3), 0);
    QCOMPARE(channel.count(), qint64(1));
    QCOMPARE(channel.trace().points(), 4);
    QCOMPARE(channel.trace().startTime, 0.0);
    QVERIFY(!channel.trigger(1000000));
    QVERIFY(!channel.advance(timer(1e-3), 1000000000));

    settings.frequency = 2e5;
    channel.apply(settings, Cycle, timer(1e-3), 2000000000);
    QCOMPARE(channel.trace().timeStep, 1.25e-6);
    QCOMPARE(channel.count(), qint64(1));
    QCOMPARE(channel.sequence(), qint64(2));

    settings.burstOn = true;
    channel.apply(settings, Cycle, manual(), 2000000000);
    QVERIFY(channel.trace().isEmpty());
    QCOMPARE(channel.count(), qint64(0));
    QVERIFY(channel.trigger(2000000000));
}

void TestChannel::rearmBreaksTheBurstOff()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    channel.rearm(timer(1e-3), 100);
    QCOMPARE(channel.count(), qint64(2));
    channel.rearm(manual(), 200);
    QCOMPARE(channel.count(), qint64(2));
    QVERIFY(channel.trigger(200));
}

void TestChannel::resetKeepsTheSequence()
{
    Channel channel;
    channel.apply(burstSettings(), Cycle, manual(), 0);
    QVERIFY(channel.trigger(0));
    channel.reset(100);
    QVERIFY(!channel.settings().outputOn);
    QVERIFY(channel.trace().isEmpty());
    QCOMPARE(channel.count(), qint64(0));
    QCOMPARE(channel.sequence(), qint64(1));

    channel.apply(burstSettings(), Cycle, manual(), 200);
    QVERIFY(channel.trigger(200));
    QCOMPARE(channel.sequence(), qint64(2));
}

QTEST_APPLESS_MAIN(TestChannel)
#include "test_channel.moc"
