// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputtrace.h"

#include <QtTest>

#include <cmath>

namespace {

OutputTrace steps()
{
    OutputTrace trace;
    trace.counts = {0, 0, 10, 10, -10, 0};
    trace.step = 1e-6;
    trace.start = 2e-6;
    trace.scale = 0.1;
    trace.offset = 0.5;
    trace.idle = 0.25;
    return trace;
}

OutputTrace longNoise(int samples)
{
    OutputTrace trace = steps();
    trace.counts.resize(size_t(samples));
    for (int i = 0; i < samples; ++i)
        trace.counts[size_t(i)] = qint16((qint64(i) * 7919) % 2001 - 1000);
    return trace;
}

} // namespace

class TestOutputTrace : public QObject
{
    Q_OBJECT

private slots:
    void levelsInTime_data();
    void levelsInTime();
    void levels();
    void outlineOfSteps();
    void outlineOfAPart();
    void outlineOfNothing();
    void outlineBeyond();
    void manySamples();
    void csv();
    void csvReadsBack();
};

void TestOutputTrace::levelsInTime_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("volts");
    QTest::newRow("before the trigger") << -1.0 << 0.25;
    QTest::newRow("before the burst") << 1.99e-6 << 0.25;
    QTest::newRow("first") << 2e-6 << 0.5;
    QTest::newRow("within the third") << 4.5e-6 << 1.5;
    QTest::newRow("fifth") << 6.5e-6 << -0.5;
    QTest::newRow("last") << 7.99e-6 << 0.5;
    QTest::newRow("behind") << 8.01e-6 << 0.25;
    QTest::newRow("not a number") << std::nan("") << 0.25;
}

void TestOutputTrace::levelsInTime()
{
    QFETCH(double, seconds);
    QFETCH(double, volts);
    QCOMPARE(steps().voltsAt(seconds), volts);
}

void TestOutputTrace::levels()
{
    double lowest = 0;
    double highest = 0;
    steps().levels(lowest, highest);
    QCOMPARE(lowest, -0.5);
    QCOMPARE(highest, 1.5);
    OutputTrace upsideDown = steps();
    upsideDown.scale = -0.1;
    upsideDown.idle = 9;
    upsideDown.levels(lowest, highest);
    QCOMPARE(lowest, -0.5);
    QCOMPARE(highest, 9.0);
    OutputTrace().levels(lowest, highest);
    QCOMPARE(lowest, 0.0);
    QCOMPARE(highest, 0.0);
}

void TestOutputTrace::outlineOfSteps()
{
    const QVector<QPointF> line = outlineOf(steps(), 0, 10e-6, 100);
    const QVector<QPointF> expected = {{0, 0.25},   {2e-6, 0.25}, {2e-6, 0.5},  {4e-6, 0.5},
                                       {4e-6, 1.5}, {6e-6, 1.5},  {6e-6, -0.5}, {7e-6, -0.5},
                                       {7e-6, 0.5}, {8e-6, 0.5},  {8e-6, 0.25}, {10e-6, 0.25}};
    QCOMPARE(line.size(), expected.size());
    for (int i = 0; i < line.size(); ++i) {
        QVERIFY2(std::fabs(line.at(i).x() - expected.at(i).x()) < 1e-12,
                 qPrintable(QString::number(i)));
        QCOMPARE(line.at(i).y(), expected.at(i).y());
    }
}

void TestOutputTrace::outlineOfAPart()
{
    const QVector<QPointF> line = outlineOf(steps(), 4.5e-6, 6.5e-6, 100);
    QCOMPARE(line.first(), QPointF(4.5e-6, 1.5));
    QCOMPARE(line.last(), QPointF(6.5e-6, -0.5));
    QCOMPARE(line.size(), 4);
}

void TestOutputTrace::outlineOfNothing()
{
    OutputTrace trace;
    trace.idle = -2;
    const QVector<QPointF> line = outlineOf(trace, -1, 1, 100);
    const QVector<QPointF> expected = {{-1, -2}, {1, -2}};
    QCOMPARE(line, expected);
}

void TestOutputTrace::outlineBeyond()
{
    for (const double from : {-1.0, 1.0}) {
        const QVector<QPointF> line = outlineOf(steps(), from, from + 0.5, 100);
        QCOMPARE(line.size(), 2);
        QCOMPARE(line.first().y(), 0.25);
        QCOMPARE(line.last(), QPointF(from + 0.5, 0.25));
    }
}

void TestOutputTrace::manySamples()
{
    OutputTrace trace = longNoise(1000000);
    // One sample alone must be seen.
    trace.counts[654321] = 30000;
    trace.counts[123456] = -30000;
    const int columns = 1000;
    const QVector<QPointF> line = outlineOf(trace, 0, 1.1, columns);
    QVERIFY2(line.size() <= 6 * columns + 8, qPrintable(QString::number(line.size())));
    double lowest = 0;
    double highest = 0;
    double x = line.first().x();
    for (const QPointF& corner : line) {
        QVERIFY(corner.x() >= x);
        x = corner.x();
        lowest = qMin(lowest, corner.y());
        highest = qMax(highest, corner.y());
    }
    QCOMPARE(highest, trace.voltsOf(30000));
    QCOMPARE(lowest, trace.voltsOf(-30000));
}

void TestOutputTrace::csv()
{
    OutputTrace trace = steps();
    trace.counts = {0, 10};
    QCOMPARE(csvOf(trace), QByteArray("time_s,volts\n2e-06,0.5\n3e-06,1.5\n"));
    trace.counts.clear();
    QCOMPARE(csvOf(trace), QByteArray("time_s,volts\n"));
}

void TestOutputTrace::csvReadsBack()
{
    OutputTrace trace = longNoise(1000);
    trace.step = 1.0 / 3e7;
    trace.scale = 1.0 / 7;
    const QList<QByteArray> lines = csvOf(trace).split('\n');
    QCOMPARE(lines.size(), 1 + 1000 + 1);
    for (int i = 0; i < 1000; ++i) {
        const QList<QByteArray> parts = lines.at(i + 1).split(',');
        QCOMPARE(parts.size(), 2);
        QVERIFY(parts.at(0).toDouble() == trace.start + i * trace.step);
        QVERIFY(parts.at(1).toDouble() == trace.voltsOf(trace.counts[size_t(i)]));
    }
}

QTEST_GUILESS_MAIN(TestOutputTrace)
#include "test_outputtrace.moc"
