// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracemeasure.h"

#include "trainsamples.h"

#include <QtTest>

#include <random>

namespace {

OutputWaveform waveformOf(const std::vector<double>& volts, double step = 0)
{
    OutputWaveform waveform;
    waveform.volts = volts;
    waveform.step = step;
    return waveform;
}

QString shown(const QVector<MeasuredPulse>& pulses)
{
    QStringList texts;
    for (const MeasuredPulse& pulse : pulses)
        texts.append(QStringLiteral("%1+%2").arg(pulse.start).arg(pulse.width));
    return texts.join(QLatin1Char(' '));
}

PulseTrain trainOf(const QVector<Pulse>& pulses, int slope = 0)
{
    PulseTrain train;
    train.delay = 1e-5;
    train.amplitude = 2;
    train.triggerSlope = slope;
    train.pulses = pulses;
    return train;
}

} // namespace

Q_DECLARE_METATYPE(std::vector<double>)
Q_DECLARE_METATYPE(Polarity)

class TestTraceMeasure : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("default.info=false")); }
    void measures_data();
    void measures();
    void guesses_data();
    void guesses();
    void asked();
    void askedWithEdges();
    void findsWhatTheTrainHas_data();
    void findsWhatTheTrainHas();
    void findsRandomTrains();
    void spans();
};

void TestTraceMeasure::measures_data()
{
    QTest::addColumn<std::vector<double>>("volts");
    QTest::addColumn<Polarity>("polarity");
    QTest::addColumn<QString>("expected");
    using Volts = std::vector<double>;
    const auto up = Polarity::Positive;
    const auto down = Polarity::Negative;
    QTest::newRow("empty") << Volts{} << up << "";
    QTest::newRow("constant") << Volts{1, 1, 1} << up << "";
    QTest::newRow("constant at zero") << Volts{0, 0} << down << "";
    QTest::newRow("one") << Volts{0, 1, 1, 0} << up << "1+2";
    QTest::newRow("one point") << Volts{0, 1, 0} << up << "1+1";
    QTest::newRow("two") << Volts{0, 1, 0, 0, 1, 1, 0} << up << "1+1 4+2";
    QTest::newRow("from the first point") << Volts{1, 0, 0} << up << "0+1";
    QTest::newRow("until the end") << Volts{0, 0, 1} << up << "2+1";
    QTest::newRow("downwards") << Volts{1, -1, -1, 1} << down << "1+2";
    QTest::newRow("downwards seen upwards") << Volts{1, -1, -1, 1} << up << "0+1 3+1";
    QTest::newRow("far from zero") << Volts{-7, -6.5, -7} << up << "1+1";
    QTest::newRow("ramp past the middle") << Volts{0, 0.4, 0.8, 1, 0.8, 0.4, 0} << up << "2+3";
    QTest::newRow("ramp through the middle") << Volts{0, 0.5, 1, 0.5, 0} << up << "1+2";
    QTest::newRow("rest at the middle") << Volts{0, 0.5, 0.5, 1, 0.5, 0.5, 0} << up << "1+3";
    QTest::newRow("small bumps do not count") << Volts{0, 0.3, 0, 1, 0.8, 1, 0} << up << "3+3";
}

void TestTraceMeasure::measures()
{
    QFETCH(std::vector<double>, volts);
    QFETCH(Polarity, polarity);
    QFETCH(QString, expected);
    QCOMPARE(shown(measurePulses(waveformOf(volts), polarity)), expected);
}

void TestTraceMeasure::guesses_data()
{
    QTest::addColumn<std::vector<double>>("volts");
    QTest::addColumn<Polarity>("expected");
    using Volts = std::vector<double>;
    QTest::newRow("empty") << Volts{} << Polarity::Positive;
    QTest::newRow("constant") << Volts{3, 3} << Polarity::Positive;
    QTest::newRow("up") << Volts{0, 1, 0} << Polarity::Positive;
    QTest::newRow("down") << Volts{1, 0, 1} << Polarity::Negative;
    QTest::newRow("pulse at the start") << Volts{0, 1, 1} << Polarity::Negative;
}

void TestTraceMeasure::guesses()
{
    QFETCH(std::vector<double>, volts);
    QFETCH(Polarity, expected);
    QCOMPARE(guessPolarity(waveformOf(volts)), expected);
}

void TestTraceMeasure::asked()
{
    const QVector<PulseSpan> spans = askedPulses(trainOf({{2e-6, 1e-5}, {3e-6, 4e-6}}));
    QCOMPARE(spans.size(), 2);
    QCOMPARE(spans.at(0).start, 1e-5);
    QCOMPARE(spans.at(0).width, 2e-6);
    QCOMPARE(spans.at(1).start, 22e-6);
    QCOMPARE(spans.at(1).width, 3e-6);
}

void TestTraceMeasure::askedWithEdges()
{
    PulseTrain train = trainOf({{12e-6, 1e-5}, {12e-6, 1e-5}});
    train.leadingEdge = 1e-6;
    train.trailingEdge = 3e-6;
    const QVector<PulseSpan> spans = askedPulses(train);
    // Half height lies in the middle of a ramp of 1.25 us.
    QCOMPARE(spans.at(0).start, 10.625e-6);
    QCOMPARE(spans.at(1).start, 36.625e-6);
    QCOMPARE(spans.at(1).width, 12e-6);
}

void TestTraceMeasure::findsWhatTheTrainHas_data()
{
    QTest::addColumn<int>("slope");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("edge");
    QTest::newRow("upwards") << 0 << 2.0 << 0.0;
    QTest::newRow("downwards") << 1 << 2.0 << 0.0;
    QTest::newRow("negative amplitude") << 0 << -2.0 << 0.0;
    QTest::newRow("negative amplitude downwards") << 1 << -2.0 << 0.0;
    QTest::newRow("with edges") << 0 << 2.0 << 4e-7;
}

void TestTraceMeasure::findsWhatTheTrainHas()
{
    QFETCH(int, slope);
    QFETCH(double, amplitude);
    QFETCH(double, edge);
    PulseTrain train = trainOf({{2e-6, 1e-5}, {3e-6, 5e-6}, {1e-6, 2e-6}}, slope);
    train.amplitude = amplitude;
    train.leadingEdge = edge;
    train.trailingEdge = edge;
    OutputWaveform output;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^headerWrite")));
    QCOMPARE(outputOfTrain(train, output), QString());

    const auto found = spansOf(measurePulses(output, polarityOf(train)), output);
    const auto asked = askedPulses(train);
    QCOMPARE(found.size(), asked.size());
    for (int i = 0; i < asked.size(); ++i) {
        // Each time is rounded down to whole points, five times a pulse.
        QVERIFY(qAbs(found.at(i).start - asked.at(i).start) <= 5 * (i + 1) * output.step);
        QVERIFY(qAbs(found.at(i).width - asked.at(i).width) <= 3 * output.step);
    }
}

void TestTraceMeasure::findsRandomTrains()
{
    std::mt19937 random(2);
    std::uniform_int_distribution<int> nanoseconds(200, 150000);
    std::vector<double> buffer(PointBudget);
    for (int round = 0; round < 50; ++round) {
        QVector<Pulse> pulses;
        for (int i = 0; i < 2 + round % 29; ++i)
            pulses.append({nanoseconds(random) * 1e-9, nanoseconds(random) * 1e-9});
        const PulseTrain train = trainOf(pulses, round % 2);

        OutputWaveform output;
        const Uint32 points = synthesise(train, buffer.data());
        output.volts.assign(buffer.begin(), buffer.begin() + points);
        const auto found = measurePulses(output, polarityOf(train));
        const auto stretches = pulseStretches(train);
        QCOMPARE(found.size(), pulses.size());
        for (int i = 0; i < pulses.size(); ++i) {
            const PulseStretch& stretch = stretches[size_t(i)];
            QCOMPARE(found.at(i).start, stretch.start + qint64(stretch.delay));
            QCOMPARE(found.at(i).width, qint64(stretch.width));
        }
    }
}

void TestTraceMeasure::spans()
{
    const auto timed = spansOf({{10, 4}}, waveformOf({0, 1}, 0.5));
    QCOMPARE(timed.at(0).start, 5.0);
    QCOMPARE(timed.at(0).width, 2.0);
    const auto untimed = spansOf({{10, 4}}, waveformOf({0, 1}));
    QCOMPARE(untimed.at(0).start, 0.0);
    QCOMPARE(untimed.at(0).width, 0.0);
}

QTEST_APPLESS_MAIN(TestTraceMeasure)
#include "test_tracemeasure.moc"
