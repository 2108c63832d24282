// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channelwatch.h"

#include "fakebench.h"

#include <QSignalSpy>
#include <QtTest>

class TestChannelWatch : public QObject
{
    Q_OBJECT

private slots:
    void heads_data();
    void heads();
    void readsTheTrace();
    void swappedBytes();
    void fetchesOnlyNewBursts();
    void resetTakesTheBurstAway();
    void outputAndIdle();
    void goesAndComesBack();
    void oddReplies();
};

void TestChannelWatch::heads_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isGood");
    QTest::addColumn<bool>("isSwapped");
    QTest::newRow("burst") << QByteArray("NORM;100;1E-9;0;1E-3;0;0") << true << false;
    QTest::newRow("swapped") << QByteArray("SWAP;100;1E-9;0;1E-3;0;0") << true << true;
    QTest::newRow("no burst") << QByteArray("NORM;0;9.91E+37;9.91E+37;9.91E+37;9.91E+37;0.5")
                              << true << false;
    QTest::newRow("no numbers") << QByteArray("NORM;100;9.91E+37;0;1E-3;0;0") << false << false;
    QTest::newRow("no time") << QByteArray("NORM;100;0;0;1E-3;0;0") << false << false;
    QTest::newRow("too few") << QByteArray("NORM;100;1E-9;0;1E-3;0") << false << false;
    QTest::newRow("too many") << QByteArray("NORM;100;1E-9;0;1E-3;0;0;0") << false << false;
    QTest::newRow("word") << QByteArray("NORM;100;ON;0;1E-3;0;0") << false << false;
    QTest::newRow("empty") << QByteArray() << false << false;
}

void TestChannelWatch::heads()
{
    QFETCH(QByteArray, line);
    QFETCH(bool, isGood);
    QFETCH(bool, isSwapped);
    OutputTrace trace;
    trace.start = 42;
    bool swapped = false;
    QCOMPARE(parseTraceHead(line, trace, swapped), isGood);
    if (!isGood)
        QCOMPARE(trace.start, 42.0);
    else
        QCOMPARE(swapped, isSwapped);
}

void TestChannelWatch::readsTheTrace()
{
    FakeInstrument instrument;
    instrument.setState(3, true, -0.5, {0, 1000, -32764});
    ChannelWatch watch(instrument.port());
    QSignalSpy traces(&watch, &ChannelWatch::traceChanged);
    QSignalSpy outputs(&watch, &ChannelWatch::outputChanged);
    watch.start();
    QTRY_COMPARE(traces.size(), 1);
    QVERIFY(watch.isConnected());
    QCOMPARE(watch.model(), QStringLiteral("KVX70102"));
    QVERIFY(watch.isOutputOn());
    QCOMPARE(outputs.size(), 1);
    const OutputTrace& trace = watch.trace();
    QCOMPARE(trace.counts, (std::vector<qint16>{0, 1000, -32764}));
    QCOMPARE(trace.step, 1e-6);
    QCOMPARE(trace.voltsAt(1.5e-6), 1.0);
    QCOMPARE(trace.idle, -0.5);
}

void TestChannelWatch::swappedBytes()
{
    FakeInstrument instrument;
    instrument.setState(1, true, 0, {1, 256});
    instrument.answer("FORMat:BORDer?;:TRACe1:POINts?;TIMe:STEP?;:TRACe1:TIMe:STARt?;"
                      ":TRACe1:LEVel:SCALe?;:TRACe1:LEVel:OFFSet?;:TRACe1:LEVel:IDLE?",
                      "SWAP;2;1E-6;0;1E-3;0;0");
    ChannelWatch watch(instrument.port());
    watch.start();
    QTRY_COMPARE(watch.trace().counts, (std::vector<qint16>{256, 1}));
}

void TestChannelWatch::fetchesOnlyNewBursts()
{
    FakeInstrument instrument;
    instrument.setState(1, true, 0, {1, 2});
    ChannelWatch watch(instrument.port());
    watch.start();
    const QByteArray state("TRACe1:SEQuence?;:TRACe1:POINts?;:OUTPut1?;:TRACe1:LEVel:IDLE?");
    QTRY_VERIFY(instrument.count(state) >= 3);
    QCOMPARE(instrument.count("TRACe1:DATA?"), 1);
    instrument.setState(2, true, 0, {3});
    QTRY_COMPARE(watch.trace().counts, (std::vector<qint16>{3}));
    QCOMPARE(instrument.count("TRACe1:DATA?"), 2);
}

void TestChannelWatch::resetTakesTheBurstAway()
{
    FakeInstrument instrument;
    instrument.setState(5, true, 0, {1, 2});
    ChannelWatch watch(instrument.port());
    watch.start();
    QTRY_COMPARE(watch.trace().counts.size(), size_t(2));
    instrument.setState(5, true, -1.25, {});
    QTRY_VERIFY(watch.trace().isEmpty());
    QCOMPARE(watch.trace().idle, -1.25);
}

void TestChannelWatch::outputAndIdle()
{
    FakeInstrument instrument;
    ChannelWatch watch(instrument.port());
    QSignalSpy outputs(&watch, &ChannelWatch::outputChanged);
    watch.start();
    QTRY_VERIFY(watch.isConnected());
    QVERIFY(!watch.isOutputOn());
    QVERIFY(watch.trace().isEmpty());
    instrument.setState(0, true, 1.25, {});
    QTRY_COMPARE(outputs.size(), 1);
    QTRY_COMPARE(watch.trace().idle, 1.25);
    instrument.setState(0, false, 0, {});
    QTRY_COMPARE(outputs.size(), 2);
    QVERIFY(!watch.isOutputOn());
}

void TestChannelWatch::goesAndComesBack()
{
    auto instrument = std::make_unique<FakeInstrument>();
    instrument->setState(7, true, 0, {1, 2});
    const quint16 port = instrument->port();
    ChannelWatch watch(port);
    QSignalSpy gone(&watch, &ChannelWatch::gone);
    QSignalSpy connected(&watch, &ChannelWatch::connected);
    watch.start();
    QTRY_COMPARE(watch.trace().counts.size(), size_t(2));
    instrument.reset();
    QTRY_VERIFY(!gone.isEmpty());
    QVERIFY(!watch.isConnected());
    QVERIFY(!watch.isOutputOn());
    QCOMPARE(watch.trace().counts.size(), size_t(2));
    instrument = std::make_unique<FakeInstrument>(port);
    // The same number of another life of the instrument is another burst.
    instrument->setState(7, true, 0, {5, 6, 7});
    QTRY_COMPARE(connected.size(), 2);
    QTRY_COMPARE(watch.trace().counts.size(), size_t(3));
}

void TestChannelWatch::oddReplies()
{
    FakeInstrument instrument;
    const QByteArray state("TRACe1:SEQuence?;:TRACe1:POINts?;:OUTPut1?;:TRACe1:LEVel:IDLE?");
    instrument.answer(state, "nonsense");
    ChannelWatch watch(instrument.port());
    watch.start();
    QTRY_VERIFY(instrument.count(state) >= 2);
    QVERIFY(!watch.isConnected());
    instrument.setState(1, true, 0, {4});
    QTRY_COMPARE(watch.trace().counts.size(), size_t(1));
}

QTEST_GUILESS_MAIN(TestChannelWatch)
#include "test_channelwatch.moc"
