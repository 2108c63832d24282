// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceview.h"

#include <QtTest>

class TestTraceView : public QObject
{
    Q_OBJECT

private slots:
    void allOfATrace();
    void allOfNothing();
    void zoomKeepsThePlace();
    void zoomHasEnds();
    void zoomOfVolts();
    void panStaysAtTheTrace();
};

namespace {

OutputTrace pulse()
{
    OutputTrace trace;
    trace.counts.assign(1000, 100);
    trace.step = 1e-6;
    trace.start = 1e-3;
    trace.scale = 0.02;
    return trace;
}

} // namespace

void TestTraceView::allOfATrace()
{
    const TraceView view = TraceView::all(pulse());
    QVERIFY(view.from < 0 && view.from > -0.2e-3);
    QVERIFY(view.to > 2e-3 && view.to < 2.2e-3);
    QVERIFY(view.low < 0 && view.low > -1);
    QVERIFY(view.high > 2 && view.high < 3);
}

void TestTraceView::allOfNothing()
{
    const TraceView view = TraceView::all(OutputTrace());
    QVERIFY(view.seconds() > 0);
    QVERIFY(view.low < 0 && view.high > 0);
}

void TestTraceView::zoomKeepsThePlace()
{
    const TraceView whole = TraceView::all(pulse());
    TraceView view = whole;
    const double share = (0.5e-3 - view.from) / view.seconds();
    view.zoomTime(0.1, 0.5e-3, whole);
    QCOMPARE(view.seconds(), whole.seconds() * 0.1);
    QCOMPARE((0.5e-3 - view.from) / view.seconds(), share);
    view.zoomTime(10, 0.5e-3, whole);
    QCOMPARE(view.to, whole.to);
}

void TestTraceView::zoomHasEnds()
{
    const TraceView whole = TraceView::all(pulse());
    TraceView view = whole;
    for (int i = 0; i < 200; ++i)
        view.zoomTime(0.5, 1e-3, whole);
    QVERIFY(view.seconds() > 0);
    QVERIFY(view.from < view.to);
    for (int i = 0; i < 200; ++i)
        view.zoomTime(2, 1e-3, whole);
    QVERIFY(view.seconds() < whole.seconds() * 101);
}

void TestTraceView::zoomOfVolts()
{
    const TraceView whole = TraceView::all(pulse());
    TraceView view = whole;
    view.zoomVolts(0.5, (whole.low + whole.high) / 2, whole);
    QCOMPARE(view.volts(), whole.volts() / 2);
    QCOMPARE(view.from, whole.from);
}

void TestTraceView::panStaysAtTheTrace()
{
    const TraceView whole = TraceView::all(pulse());
    TraceView view = whole;
    view.zoomTime(0.1, 1e-3, whole);
    const double length = view.seconds();
    const double from = view.from;
    view.pan(0.5, whole);
    QCOMPARE(view.from, from + 0.5 * length);
    QCOMPARE(view.seconds(), length);
    for (int i = 0; i < 100; ++i)
        view.pan(1, whole);
    QCOMPARE(view.to, whole.to);
    for (int i = 0; i < 100; ++i)
        view.pan(-1, whole);
    QCOMPARE(view.from, whole.from);
}

QTEST_GUILESS_MAIN(TestTraceView)
#include "test_traceview.moc"
