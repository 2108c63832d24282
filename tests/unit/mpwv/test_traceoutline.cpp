// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceoutline.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

OutputWaveform waveformOf(const std::vector<double>& volts, double step = 0)
{
    OutputWaveform waveform;
    waveform.volts = volts;
    waveform.step = step;
    return waveform;
}

double highest(const QVector<QPointF>& corners, double from, double to)
{
    double volts = -1e9;
    for (const QPointF& corner : corners)
        if (corner.x() >= from && corner.x() <= to)
            volts = std::max(volts, corner.y());
    return volts;
}

} // namespace

class TestTraceOutline : public QObject
{
    Q_OBJECT

private slots:
    void empty();
    void onePoint();
    void uprightSteps();
    void timeBase();
    void fewCornersForManyPoints();
    void keepsSpikes();
};

void TestTraceOutline::empty()
{
    QVERIFY(outlineOf(waveformOf({}), 100).isEmpty());
}

void TestTraceOutline::onePoint()
{
    const QVector<QPointF> expected = {{0, 3}, {1, 3}};
    QCOMPARE(outlineOf(waveformOf({3}), 100), expected);
}

void TestTraceOutline::uprightSteps()
{
    const QVector<QPointF> expected = {{0, 0}, {2, 0}, {2, 1}, {5, 1}, {5, -1}, {6, -1}};
    QCOMPARE(outlineOf(waveformOf({0, 0, 1, 1, 1, -1}), 100), expected);
}

void TestTraceOutline::timeBase()
{
    const QVector<QPointF> expected = {{0, 0}, {0.5, 0}, {0.5, 1}, {1, 1}};
    QCOMPARE(outlineOf(waveformOf({0, 1}, 0.5), 100), expected);
}

void TestTraceOutline::fewCornersForManyPoints()
{
    std::vector<double> volts(131072);
    for (size_t i = 0; i < volts.size(); ++i)
        volts[i] = std::sin(double(i));
    const auto corners = outlineOf(waveformOf(volts), 500);
    QVERIFY(corners.size() > 500);
    QVERIFY(corners.size() <= 4 * 500 + 2);
    QVERIFY(std::is_sorted(corners.begin(), corners.end(),
                           [](QPointF a, QPointF b) { return a.x() < b.x(); }));
    QCOMPARE(corners.last(), QPointF(131072, volts.back()));
}

void TestTraceOutline::keepsSpikes()
{
    // A single point among many that all differ must not get lost.
    std::vector<double> volts(100000);
    for (size_t i = 0; i < volts.size(); ++i)
        volts[i] = 1e-6 * double(i % 7);
    volts[54321] = 5;
    const auto corners = outlineOf(waveformOf(volts), 100);
    QCOMPARE(highest(corners, 54321, 54321), 5.0);
}

QTEST_APPLESS_MAIN(TestTraceOutline)
#include "test_traceoutline.moc"
