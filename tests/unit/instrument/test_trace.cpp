// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "trace.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestTrace : public QObject
{
    Q_OBJECT

private slots:
    void emptyTrace();
    void block_data();
    void block();
    void traceBlock_data();
    void traceBlock();
    void shownCycles_data();
    void shownCycles();
    void volts();
};

namespace {

Trace traceOf(const QVector<qint16>& cycle, double cycles)
{
    Trace trace;
    trace.cycle = cycle;
    trace.cycles = cycles;
    return trace;
}

} // namespace

void TestTrace::emptyTrace()
{
    const Trace trace;
    QVERIFY(trace.isEmpty());
    QCOMPARE(trace.points(), 0);
    QVERIFY(std::isnan(trace.timeStep));
    QVERIFY(std::isnan(trace.startTime));
    QVERIFY(std::isnan(trace.levelScale));
    QVERIFY(std::isnan(trace.levelOffset));
    QCOMPARE(::traceBlock(trace, ByteOrder::Normal), QByteArray("#10"));
}

void TestTrace::block_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QByteArray>("head");

    QTest::newRow("none") << 0 << QByteArray("#10");
    QTest::newRow("one digit") << 9 << QByteArray("#19");
    QTest::newRow("two digits") << 10 << QByteArray("#210");
    QTest::newRow("a run's") << 262144 << QByteArray("#6262144");
    QTest::newRow("largest") << 2097152 << QByteArray("#72097152");
}

void TestTrace::block()
{
    QFETCH(int, bytes);
    QFETCH(QByteArray, head);
    const QByteArray data(bytes, '\n');
    QCOMPARE(definiteLengthBlock(data), head + data);
}

void TestTrace::traceBlock_data()
{
    QTest::addColumn<ByteOrder>("order");
    QTest::addColumn<double>("cycles");
    QTest::addColumn<QByteArray>("block");

    QTest::newRow("normal") << ByteOrder::Normal << 1.0
                            << QByteArray("#16\x01\x02\x7F\xFC\x80\x04", 9);
    QTest::newRow("swapped") << ByteOrder::Swapped << 1.0
                             << QByteArray("#16\x02\x01\xFC\x7F\x04\x80", 9);
    QTest::newRow("two cycles") << ByteOrder::Swapped << 2.0
                                << QByteArray(
                                       "#212\x02\x01\xFC\x7F\x04\x80\x02\x01\xFC\x7F\x04\x80", 16);
}

void TestTrace::traceBlock()
{
    QFETCH(ByteOrder, order);
    QFETCH(double, cycles);
    QTEST(::traceBlock(traceOf({0x0102, 32764, -32764}, cycles), order), "block");
}

void TestTrace::shownCycles_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("cycles");
    QTest::addColumn<int>("shown");

    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("one") << 131072 << 1.0 << 1;
    QTest::newRow("all that fit") << 131072 << 8.0 << 8;
    QTest::newRow("one too many") << 131072 << 9.0 << 8;
    QTest::newRow("does not divide") << 1000 << 1e6 << 1048;
    QTest::newRow("one point") << 1 << 1e6 << 1000000;
    QTest::newRow("largest waveform") << 1048576 << 2.0 << 1;
    QTest::newRow("endless") << 1000 << infinity << 1;
    QTest::newRow("nothing") << 0 << 1.0 << 0;
}

void TestTrace::shownCycles()
{
    QFETCH(int, points);
    QFETCH(double, cycles);
    QFETCH(int, shown);

    const Trace trace = traceOf(QVector<qint16>(points, 0), cycles);
    QCOMPARE(trace.shownCycles(), shown);
    QCOMPARE(trace.points(), shown * points);
    QVERIFY(trace.points() <= MaxTraceSamples);
    const int digits = QByteArray::number(2 * trace.points()).size();
    QCOMPARE(::traceBlock(trace, ByteOrder::Normal).size(), 2 + digits + 2 * trace.points());
}

void TestTrace::volts()
{
    Trace trace = traceOf({-32764, 0, 32764}, 2);
    trace.levelScale = 2.5 * 0.5 / 32764;
    trace.levelOffset = 0.25;
    QCOMPARE(trace.volts(0), -1.0);
    QCOMPARE(trace.volts(1), 0.25);
    QCOMPARE(trace.volts(2), 1.5);
    QCOMPARE(trace.volts(3), -1.0);
    QCOMPARE(trace.volts(5), 1.5);
}

Q_DECLARE_METATYPE(ByteOrder)

QTEST_APPLESS_MAIN(TestTrace)
#include "test_trace.moc"
