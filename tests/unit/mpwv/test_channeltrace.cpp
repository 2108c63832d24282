// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channeltrace.h"

#include "instrumentlink.h"
#include "scriptedserver.h"

#include <QtTest>

namespace {

using Replies = QVector<QByteArray>;

// What a sound instrument answers: points, step, start, scale, offset, byte order, data.
Replies soundReplies()
{
    return {
        "3\n", "0.5\n", "0.25\n", "2.0E-4\n", "-1\n", "NORM\n", "#16\x80\x04\x00\x00\x7F\xFC\n"};
}

Replies with(int index, const QByteArray& reply)
{
    Replies replies = soundReplies();
    // Bytes that are zero end a string literal.
    replies[6] = QByteArray("#16\x80\x04\x00\x00\x7F\xFC\n", 10);
    if (index >= 0)
        replies[index] = reply;
    return replies;
}

QVector<ScriptedServer::Turn> scriptOf(const Replies& replies)
{
    QVector<ScriptedServer::Turn> script;
    for (const QByteArray& reply : replies)
        script.append({{reply}, false});
    return script;
}

} // namespace

class TestChannelTrace : public QObject
{
    Q_OBJECT

private slots:
    void fetches();
    void swappedBytes();
    void refuses_data();
    void refuses();
    void lostWithinTheData();
};

void TestChannelTrace::fetches()
{
    ScriptedServer server(scriptOf(with(-1, QByteArray())));
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    ChannelTrace trace;
    QCOMPARE(fetchTrace(link, trace), QString());
    QCOMPARE(trace.start, 0.25);
    QCOMPARE(trace.waveform.step, 0.5);
    QCOMPARE(trace.waveform.volts,
             std::vector<double>({-1 - 32764 * 2e-4, -1.0, -1 + 32764 * 2e-4}));
    QCOMPARE(trace.waveform.low, -1 - 32764 * 2e-4);
    QCOMPARE(trace.waveform.high, -1 + 32764 * 2e-4);
    QCOMPARE(server.received(),
             QByteArray("TRACe1:POINts?\nTRACe1:TIMe:STEP?\nTRACe1:TIMe:STARt?\n"
                        "TRACe1:LEVel:SCALe?\nTRACe1:LEVel:OFFSet?\nFORMat:BORDer?\n"
                        "TRACe1:DATA?\n"));
}

void TestChannelTrace::swappedBytes()
{
    Replies replies = with(5, "SWAP\n");
    replies[6] = QByteArray("#16\x04\x80\x00\x00\xFC\x7F\n", 10);
    ScriptedServer server(scriptOf(replies));
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    ChannelTrace trace;
    QCOMPARE(fetchTrace(link, trace), QString());
    QCOMPARE(trace.waveform.volts.front(), -1 - 32764 * 2e-4);
}

void TestChannelTrace::refuses_data()
{
    QTest::addColumn<QVector<QByteArray>>("replies");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no burst") << with(0, "0\n") << QStringLiteral("channel 1 has played no burst");
    QTest::newRow("points no number")
        << with(0, "many\n") << QStringLiteral("TRACe1:POINts?: \"many\" is no number");
    QTest::newRow("step not a number")
        << with(1, "9.91E+37\n") << QStringLiteral("TRACe1:TIMe:STEP?: \"9.91E+37\" is no number");
    QTest::newRow("half a sample")
        << with(6, "#13abc\n") << QStringLiteral("the trace ends within a sample: 3 bytes");
    QTest::newRow("too few samples")
        << with(6, "#14abcd\n") << QStringLiteral("the trace has 2 samples instead of 3");
    QTest::newRow("no block")
        << with(6, "1,2,3\n")
        << QStringLiteral("TRACe1:DATA?: the reply is no block of data: \"1,2,3\\u000a\"");
}

void TestChannelTrace::refuses()
{
    QFETCH(QVector<QByteArray>, replies);
    QFETCH(QString, reason);
    ScriptedServer server(scriptOf(replies));
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    ChannelTrace trace;
    QCOMPARE(fetchTrace(link, trace), reason);
    QVERIFY(trace.waveform.volts.empty());
}

void TestChannelTrace::lostWithinTheData()
{
    QVector<ScriptedServer::Turn> script = scriptOf(with(6, "#16\x01\x02"));
    script.last().closeAfterwards = true;
    ScriptedServer server(script);
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    ChannelTrace trace;
    QCOMPARE(fetchTrace(link, trace),
             QStringLiteral("TRACe1:DATA?: the reply has no end: \"#16\\u0001\\u0002\""));
}

QTEST_GUILESS_MAIN(TestChannelTrace)
#include "test_channeltrace.moc"
