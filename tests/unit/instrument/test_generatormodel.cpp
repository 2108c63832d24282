// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatormodel.h"

#include "generatorfixture.h"
#include "trainsamples.h"

#include "logcapture.h"

#include <QSignalSpy>
#include <QTest>

class TestGeneratorModel : public QObject
{
    Q_OBJECT

private slots:
    void modelTexts_data();
    void modelTexts();
    void triggerByHand_data();
    void triggerByHand();
    void edges_data();
    void edges();
    void timer();
    void timerOfAnotherInterval();
    void bothChannelsAreTriggered();
    void operationCondition();
    void loadedFileSetsTheLevels();
    void loadWhileItPlays();
    void loadOfAnotherChannel();
    void failedLoadChangesNothing();
    void resetFreesEverything();
    void stateChanges();
    void clockOfItsOwn();
    void trainIsPlayed_data();
    void trainIsPlayed();
};

void TestGeneratorModel::modelTexts_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* family, const char* text) {
        QTest::newRow(family) << QString::fromLatin1(family) << QByteArray(text);
    };
    row("KVX705XX", "KVX70501");
    row("KVX7040X", "KVX70402");
    row("KVX7030X", "KVX70302");
    row("KVX7020X", "KVX70202");
    row("KVX7010X", "KVX70102");
}

void TestGeneratorModel::modelTexts()
{
    QFETCH(QString, family);
    const GeneratorFixture generator(family);
    QTEST(generator.model.modelText(), "text");
}

void TestGeneratorModel::triggerByHand_data()
{
    QTest::addColumn<int>("source");
    QTest::newRow("manual") << int(BurstTrigger::Manual);
    QTest::newRow("external") << int(BurstTrigger::External);
}

void TestGeneratorModel::triggerByHand()
{
    QFETCH(int, source);
    GeneratorFixture generator;
    generator.load({0, 100, -100, 5}, 2, 0, 1e5);
    generator.setSource(BurstTrigger(source));
    QVERIFY(!generator.model.trigger());

    generator.setOutput(1, true);
    QCOMPARE(generator.model.channel(1).count(), qint64(0));
    QVERIFY(generator.model.trigger());
    QVERIFY(!generator.model.trigger());
    generator.now += 10000;
    QVERIFY(generator.model.trigger());
    QCOMPARE(generator.model.channel(1).count(), qint64(2));

    generator.setOutput(1, false);
    generator.now += 10000;
    QVERIFY(!generator.model.trigger());
}

void TestGeneratorModel::edges_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("slope");
    QTest::addColumn<int>("edge");
    QTest::addColumn<bool>("plays");

    const int rise = int(EdgeSlope::Positive);
    const int fall = int(EdgeSlope::Negative);
    QTest::newRow("rise wanted, rise") << int(BurstTrigger::External) << rise << rise << true;
    QTest::newRow("rise wanted, fall") << int(BurstTrigger::External) << rise << fall << false;
    QTest::newRow("fall wanted, rise") << int(BurstTrigger::External) << fall << rise << false;
    QTest::newRow("fall wanted, fall") << int(BurstTrigger::External) << fall << fall << true;
    QTest::newRow("by hand alone") << int(BurstTrigger::Manual) << rise << rise << false;
    QTest::newRow("timer alone") << int(BurstTrigger::Timer) << rise << rise << false;
}

void TestGeneratorModel::edges()
{
    QFETCH(int, source);
    QFETCH(int, slope);
    QFETCH(int, edge);
    QFETCH(bool, plays);

    GeneratorFixture generator;
    generator.load({0, 100}, 2, 0, 1e6);
    generator.setOutput(1, true);
    TriggerSettings settings;
    settings.source = BurstTrigger(source);
    settings.slope = EdgeSlope(slope);
    settings.timerInterval = 1;
    generator.model.applyTrigger(settings);
    generator.now += 10000;

    const qint64 before = generator.model.channel(1).sequence();
    QCOMPARE(generator.model.externalEdge(EdgeSlope(edge)), plays);
    QCOMPARE(generator.model.channel(1).sequence() - before, qint64(plays));
}

void TestGeneratorModel::timer()
{
    GeneratorFixture generator;
    generator.load({0, 100}, 2, 0, 1e6);
    generator.setOutput(1, true);
    QCOMPARE(generator.model.channel(1).count(), qint64(1));
    generator.now += 999999;
    QCOMPARE(generator.model.channel(1).count(), qint64(1));
    generator.now += 1;
    QCOMPARE(generator.model.channel(1).count(), qint64(2));
    generator.now += 1000000000;
    QCOMPARE(generator.model.channel(1).count(), qint64(1002));

    generator.setOutput(1, false);
    generator.now += 1000000000;
    QCOMPARE(generator.model.channel(1).count(), qint64(1002));
}

void TestGeneratorModel::timerOfAnotherInterval()
{
    GeneratorFixture generator;
    generator.load({0, 100}, 2, 0, 1e6);
    generator.setOutput(1, true);
    generator.now += 1500000;

    TriggerSettings slower;
    slower.timerInterval = 10e-3;
    generator.model.applyTrigger(slower);
    QCOMPARE(generator.model.channel(1).count(), qint64(3));
    generator.model.applyTrigger(slower);
    QCOMPARE(generator.model.channel(1).count(), qint64(3));
    generator.now += 9999999;
    QCOMPARE(generator.model.channel(1).count(), qint64(3));
    generator.now += 1;
    QCOMPARE(generator.model.channel(1).count(), qint64(4));
}

void TestGeneratorModel::operationCondition()
{
    const quint16 waiting = GeneratorModel::WaitingForTrigger;
    const quint16 playing = GeneratorModel::Playing;
    GeneratorFixture generator;
    generator.load(ramp(4), 2, 0, 1e3);
    generator.setSource(BurstTrigger::Manual);
    QCOMPARE(generator.model.operationCondition(), quint16(0));
    generator.setOutput(1, true);
    QCOMPARE(generator.model.operationCondition(), waiting);
    QVERIFY(generator.model.trigger());
    QCOMPARE(generator.model.operationCondition(), playing);
    generator.now += 999999;
    QCOMPARE(generator.model.operationCondition(), playing);
    generator.now += 1;
    QCOMPARE(generator.model.operationCondition(), waiting);

    generator.setOutput(2, true);
    QCOMPARE(generator.model.operationCondition(), quint16(waiting | playing));
    generator.setOutput(1, false);
    QCOMPARE(generator.model.operationCondition(), playing);
    generator.model.reset();
    QCOMPARE(generator.model.operationCondition(), quint16(0));
}

void TestGeneratorModel::bothChannelsAreTriggered()
{
    GeneratorFixture generator;
    generator.setSource(BurstTrigger::Manual);
    for (int channel : {1, 2}) {
        generator.change(channel, [](ChannelSettings& settings) {
            settings.burstOn = true;
            settings.outputOn = true;
        });
    }
    QVERIFY(generator.model.trigger());
    QCOMPARE(generator.model.channel(1).count(), qint64(1));
    QCOMPARE(generator.model.channel(2).count(), qint64(1));
    QCOMPARE(generator.model.channel(2).trace().points(), 1000);
}

void TestGeneratorModel::loadedFileSetsTheLevels()
{
    GeneratorFixture generator;
    generator.load({-32764, 0, 32764}, 3, 0.5, 1e6);
    const ChannelSettings settings = generator.model.channel(1).settings();
    QCOMPARE(settings.fileName, QStringLiteral("M:/run.mpwv"));
    QCOMPARE(settings.amplitude, 3.0);
    QCOMPARE(settings.offset, 0.5);

    generator.setOutput(1, true);
    const Trace trace = generator.model.channel(1).trace();
    QCOMPARE(trace.volts(0), -1.0);
    QCOMPARE(trace.volts(1), 0.5);
    QCOMPARE(trace.volts(2), 2.0);
}

void TestGeneratorModel::loadWhileItPlays()
{
    GeneratorFixture generator;
    generator.load({1, 2, 3}, 3, 0, 1e6);
    generator.setSource(BurstTrigger::Manual);
    generator.setOutput(1, true);
    QVERIFY(generator.model.trigger());

    const Uint32 free = generator.model.waveforms().freeSamples();
    generator.load({4, 5}, 1, 0, 1e6);
    QCOMPARE(generator.model.waveforms().freeSamples(), free + 1);
    QCOMPARE(generator.model.channel(1).trace().cycle, (QVector<qint16>{1, 2, 3}));
    generator.now += 1000;
    QVERIFY(generator.model.trigger());
    QCOMPARE(generator.model.channel(1).trace().cycle, (QVector<qint16>{4, 5}));
}

void TestGeneratorModel::loadOfAnotherChannel()
{
    GeneratorFixture generator;
    generator.load({1, 2, 3}, 3, 0, 1e6);
    writeBytes(generator.path("run.mpwv"), waveformBytes({7}, 1, 0.25));
    QCOMPARE(generator.model.loadWaveform(2, QStringLiteral("M:/run.mpwv")).number, 0);
    QCOMPARE(generator.model.channel(1).settings().amplitude, 3.0);
    QCOMPARE(generator.model.channel(2).settings().offset, 0.25);
    QCOMPARE(generator.model.waveforms().counts(1).size(), 3);
    QCOMPARE(generator.model.waveforms().counts(2).size(), 1);
}

void TestGeneratorModel::failedLoadChangesNothing()
{
    GeneratorFixture generator;
    generator.load({1, 2, 3}, 3, 0.5, 1e6);
    writeBytes(generator.path("bad.mpwv"), waveformBytes({1}, 11, 0));
    const QSignalSpy spy(&generator.model, &GeneratorModel::stateChanged);
    QCOMPARE(generator.model.loadWaveform(1, QStringLiteral("M:/bad.mpwv")).number, -222);
    QCOMPARE(generator.model.loadWaveform(1, QStringLiteral("M:/none.mpwv")).number, -256);
    QCOMPARE(generator.model.channel(1).settings().fileName, QStringLiteral("M:/run.mpwv"));
    QCOMPARE(generator.model.channel(1).settings().amplitude, 3.0);
    QCOMPARE(generator.model.waveforms().counts(1).size(), 3);
    QCOMPARE(spy.count(), 0);
}

void TestGeneratorModel::resetFreesEverything()
{
    GeneratorFixture generator;
    generator.load({1, 2, 3}, 3, 0, 1e6);
    generator.setOutput(1, true);
    generator.setSource(BurstTrigger::External);
    generator.model.setByteOrder(ByteOrder::Swapped);

    generator.model.reset();
    QCOMPARE(generator.model.waveforms().freeSamples(), DefaultWaveformMemory);
    QVERIFY(!generator.model.channel(1).settings().outputOn);
    QVERIFY(generator.model.channel(1).settings().fileName.isEmpty());
    QVERIFY(generator.model.channel(1).trace().isEmpty());
    QVERIFY(generator.model.triggerSettings().source == BurstTrigger::Timer);
    QVERIFY(generator.model.byteOrder() == ByteOrder::Normal);
}

void TestGeneratorModel::stateChanges()
{
    GeneratorFixture generator;
    generator.load({1, 2, 3}, 3, 0, 1e6);
    QSignalSpy spy(&generator.model, &GeneratorModel::stateChanged);
    generator.model.channel(1);
    QVERIFY(!generator.model.trigger());
    QCOMPARE(spy.count(), 0);

    generator.setOutput(1, true);
    QCOMPARE(spy.count(), 1);
    generator.now += 1000000;
    generator.model.channel(1);
    QCOMPARE(spy.count(), 2);
    generator.setSource(BurstTrigger::Manual);
    QCOMPARE(spy.count(), 3);
    QVERIFY(generator.model.trigger());
    QCOMPARE(spy.count(), 4);
    generator.model.reset();
    QCOMPARE(spy.count(), 5);
}

void TestGeneratorModel::clockOfItsOwn()
{
    const QTemporaryDir folder;
    GeneratorModel model(folder.path(), QStringLiteral("KVX7010X"));
    ChannelSettings settings;
    settings.burstOn = true;
    settings.outputOn = true;
    settings.frequency = 1e6;
    TriggerSettings trigger;
    trigger.timerInterval = 2e-6;
    model.applyTrigger(trigger);
    model.applyChannel(1, settings);
    QTRY_VERIFY(model.channel(1).count() > 3);
}

void TestGeneratorModel::trainIsPlayed_data()
{
    QTest::addColumn<bool>("highImpedance");
    QTest::addColumn<bool>("inverted");
    QTest::newRow("50 ohm") << false << false;
    QTest::newRow("high impedance") << true << false;
    QTest::newRow("inverted") << false << true;
}

// From a pulse train to the file to the trace: the edges stand at the very samples that the point
// budget gives them, and the levels are those that were asked for at the load, to one count.
void TestGeneratorModel::trainIsPlayed()
{
    QFETCH(bool, highImpedance);
    QFETCH(bool, inverted);
    PulseTrain train;
    train.delay = 10e-6;
    train.pulses = {{5e-6, 3e-6}, {2e-6, 10e-6}};
    train.amplitude = 4;
    train.offset = 1;
    train.load = highImpedance ? LoadImpedance::HighZ : LoadImpedance::Ohm50;
    train.triggerSlope = inverted ? 1 : 0;

    GeneratorFixture generator;
    {
        const LogCapture quiet;
        QVERIFY(writeTrainWaveform(generator.path("run.mpwv").toLocal8Bit().constData(), train));
    }
    QCOMPARE(generator.model.loadWaveform(1, QStringLiteral("M:/run.mpwv")).number, 0);
    generator.setSource(BurstTrigger::Manual);
    generator.change(1, [&train](ChannelSettings& settings) {
        settings.burstOn = true;
        settings.shape = WaveShape::File;
        settings.frequency = train.frequency();
        settings.loadOhms = loadOhms(train.load);
        settings.outputOn = true;
    });
    QVERIFY(generator.model.trigger());

    const Trace trace = generator.model.channel(1).trace();
    const double rest = inverted ? 3 : -1;
    QVERIFY(qAbs(generator.model.channel(1).idleLevel() - rest) <= trace.levelScale);
    QVector<qint64> edges;
    for (int i = 1; i < trace.points(); ++i) {
        const bool isAtRest = qAbs(trace.volts(i) - rest) <= trace.levelScale;
        QVERIFY(isAtRest || qAbs(trace.volts(i) - (2 - rest)) <= trace.levelScale);
        if (trace.cycle.at(i) != trace.cycle.at(i - 1))
            edges.append(i);
    }

    QVector<qint64> expected;
    for (const PulseStretch& stretch : pulseStretches(train)) {
        expected.append(stretch.start + qint64(stretch.delay));
        expected.append(expected.last() + qint64(stretch.width));
    }
    QCOMPARE(edges, expected);
    QVERIFY(qAbs(edges.at(1) * trace.timeStep - 15e-6) < 3 * trace.timeStep);
    QVERIFY(qAbs(trace.points() * trace.timeStep - train.totalPeriod()) < 10 * trace.timeStep);
}

QTEST_GUILESS_MAIN(TestGeneratorModel)
#include "test_generatormodel.moc"
