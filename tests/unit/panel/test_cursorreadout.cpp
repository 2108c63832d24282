// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cursorreadout.h"

#include <QtTest>

class TestCursorReadout : public QObject
{
    Q_OBJECT

private slots:
    void texts_data();
    void texts();
    void reads();
    void sameTime();
    void backwards();
};

void TestCursorReadout::texts_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0 s");
    QTest::newRow("micro") << 1.25e-6 << QStringLiteral("1.25 µs");
    QTest::newRow("fine") << 1.234567e-3 << QStringLiteral("1.234567 ms");
    QTest::newRow("negative") << -20e-9 << QStringLiteral("−20 ns");
    QTest::newRow("large") << 2.5e6 << QStringLiteral("2.5 Ms");
}

void TestCursorReadout::texts()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(preciseText(value, QStringLiteral("s")), text);
}

namespace {

OutputTrace step()
{
    OutputTrace trace;
    trace.counts = {-100, 100};
    trace.step = 1e-6;
    trace.scale = 0.02;
    trace.idle = 0.5;
    return trace;
}

} // namespace

void TestCursorReadout::reads()
{
    const CursorReadout readout = readCursors(step(), 0.5e-6, 1.5e-6);
    QCOMPARE(readout.time[0], QStringLiteral("500 ns"));
    QCOMPARE(readout.volts[0], QStringLiteral("−2 V"));
    QCOMPARE(readout.time[1], QStringLiteral("1.5 µs"));
    QCOMPARE(readout.volts[1], QStringLiteral("2 V"));
    QCOMPARE(readout.timeDifference, QStringLiteral("1 µs"));
    QCOMPARE(readout.frequency, QStringLiteral("1 MHz"));
    QCOMPARE(readout.voltsDifference, QStringLiteral("4 V"));
}

void TestCursorReadout::sameTime()
{
    const CursorReadout readout = readCursors(step(), 5, 5);
    QCOMPARE(readout.volts[0], QStringLiteral("500 mV"));
    QCOMPARE(readout.timeDifference, QStringLiteral("0 s"));
    QCOMPARE(readout.frequency, QStringLiteral("–"));
    QCOMPARE(readout.voltsDifference, QStringLiteral("0 V"));
}

void TestCursorReadout::backwards()
{
    const CursorReadout readout = readCursors(step(), 1.5e-6, 0.5e-6);
    QCOMPARE(readout.timeDifference, QStringLiteral("−1 µs"));
    QCOMPARE(readout.frequency, QStringLiteral("1 MHz"));
    QCOMPARE(readout.voltsDifference, QStringLiteral("−4 V"));
}

QTEST_GUILESS_MAIN(TestCursorReadout)
#include "test_cursorreadout.moc"
