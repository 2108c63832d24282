// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentclient.h"

#include "scriptedserver.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

const quint16 Port = 30000;

// What a query came to, once it has.
struct Answer
{
    bool isThere = false;
    InstrumentReply reply;

    InstrumentClient::Handler taker()
    {
        return [this](const InstrumentReply& given) {
            isThere = true;
            reply = given;
        };
    }
};

} // namespace

class TestInstrumentClient : public QObject
{
    Q_OBJECT

private slots:
    void asksInOrder();
    void splitReply();
    void block();
    void blockInPieces();
    void badBlock();
    void blockWithoutLineEnd();
    void commandsBetweenQueries();
    void timeoutDropsTheConnection();
    void lateReplyIsNobodys();
    void strayReply();
    void twoReplies();
    void endlessReply();
    void serverHangsUp();
    void nobodyThere();
    void comesBack();
    void notConnected();
    void stopped();
    void askedFromAHandler();
    void numbers_data();
    void numbers();

private:
    static void connectTo(InstrumentClient& client);
};

void TestInstrumentClient::connectTo(InstrumentClient& client)
{
    client.start();
    QTRY_VERIFY(client.isConnected());
}

void TestInstrumentClient::asksInOrder()
{
    ScriptedServer server({{{"one\n"}}, {{"two\r\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer first;
    Answer second;
    client.ask("A?", first.taker());
    client.ask("B?\n", second.taker());
    QVERIFY(!first.isThere);
    QTRY_VERIFY(second.isThere);
    QVERIFY(first.reply.ok);
    QCOMPARE(first.reply.data, QByteArray("one"));
    QCOMPARE(second.reply.data, QByteArray("two"));
    QCOMPARE(server.received(), QByteArray("A?\nB?\n"));
}

void TestInstrumentClient::splitReply()
{
    ScriptedServer server({{{"1.", "5e", "-3\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    client.ask("A?", answer.taker());
    server.sendNextPiece();
    server.sendNextPiece();
    QTRY_VERIFY(answer.isThere);
    QCOMPARE(answer.reply.data, QByteArray("1.5e-3"));
}

void TestInstrumentClient::block()
{
    const QByteArray data("a\nb\0c", 5);
    ScriptedServer server(QVector<ScriptedServer::Turn>{{{"#15" + data + '\n'}, false}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    client.askBlock("A?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QVERIFY(answer.reply.ok);
    QCOMPARE(answer.reply.data, data);
}

void TestInstrumentClient::blockInPieces()
{
    const QByteArray data = QByteArray(1000, '\n') + QByteArray(1000, 'x');
    const QByteArray whole = "#42000" + data + '\n';
    ScriptedServer server(
        {{{whole.left(3), whole.mid(3, 1200), whole.mid(1203, 803), whole.mid(2006)}},
         {{"next\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    Answer next;
    client.askBlock("A?", answer.taker());
    client.ask("B?", next.taker());
    for (int piece = 1; piece < 4; ++piece)
        server.sendNextPiece();
    QTRY_VERIFY(next.isThere);
    QVERIFY(answer.reply.ok);
    QCOMPARE(answer.reply.data, data);
    QCOMPARE(next.reply.data, QByteArray("next"));
}

void TestInstrumentClient::badBlock()
{
    ScriptedServer server({{{"no block\n"}}});
    InstrumentClient client(Port);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    connectTo(client);
    Answer answer;
    client.askBlock("TRACe1:DATA?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
    QVERIFY(answer.reply.reason.contains(QLatin1String("TRACe1:DATA?")));
    QCOMPARE(gone.size(), 1);
}

void TestInstrumentClient::blockWithoutLineEnd()
{
    ScriptedServer server({{{"#13abcd\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    client.askBlock("A?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
}

void TestInstrumentClient::commandsBetweenQueries()
{
    ScriptedServer server({});
    server.answer("A?\n", "1\n");
    server.answer("B?\n", "2\n");
    InstrumentClient client(Port);
    connectTo(client);
    Answer first;
    Answer second;
    QVERIFY(client.send("*RST"));
    client.ask("A?", first.taker());
    QVERIFY(client.send("*TRG\n"));
    client.ask("B?", second.taker());
    QTRY_VERIFY(second.isThere);
    QCOMPARE(server.received(), QByteArray("*RST\nA?\n*TRG\nB?\n"));
}

void TestInstrumentClient::timeoutDropsTheConnection()
{
    ScriptedServer server(QVector<ScriptedServer::Turn>{{{}, false}});
    server.answer("C?\n", "3\n");
    InstrumentClient client(Port);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    connectTo(client);
    Answer first;
    Answer waiting;
    client.ask("A?", first.taker(), 50);
    client.ask("B?", waiting.taker());
    QTRY_VERIFY(waiting.isThere);
    QVERIFY(!first.reply.ok);
    QVERIFY(!waiting.reply.ok);
    QCOMPARE(gone.size(), 1);
    QVERIFY(gone.first().first().toString().contains(QLatin1String("A?")));
    QVERIFY(server.waitForGone(1));
    QTRY_VERIFY(client.isConnected());
    Answer again;
    client.ask("C?", again.taker());
    QTRY_VERIFY(again.isThere);
    QCOMPARE(again.reply.data, QByteArray("3"));
}

// The first query's reply leaves when it is no longer waited for.
void TestInstrumentClient::lateReplyIsNobodys()
{
    ScriptedServer server({{{"", "late\n"}}});
    server.answer("B?\n", "right\n");
    InstrumentClient client(Port);
    connectTo(client);
    Answer first;
    client.ask("A?", first.taker(), 50);
    QTRY_VERIFY(first.isThere);
    QVERIFY(!first.reply.ok);
    server.sendNextPiece();
    QTRY_VERIFY(client.isConnected());
    Answer second;
    client.ask("B?", second.taker());
    QTRY_VERIFY(second.isThere);
    QCOMPARE(second.reply.data, QByteArray("right"));
}

void TestInstrumentClient::strayReply()
{
    ScriptedServer server({{{"stray\n"}}});
    server.answer("A?\n", "right\n");
    InstrumentClient client(Port);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    connectTo(client);
    // To a command that has none.
    QVERIFY(client.send("*TRG"));
    QTRY_COMPARE(gone.size(), 1);
    QTRY_VERIFY(client.isConnected());
    Answer answer;
    client.ask("A?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QCOMPARE(answer.reply.data, QByteArray("right"));
}

void TestInstrumentClient::twoReplies()
{
    ScriptedServer server({{{"one\ntwo\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer first;
    Answer second;
    client.ask("A?", first.taker());
    client.ask("B?", second.taker());
    QTRY_VERIFY(second.isThere);
    QVERIFY(!first.reply.ok);
    QVERIFY(!second.reply.ok);
}

void TestInstrumentClient::endlessReply()
{
    ScriptedServer server(QVector<ScriptedServer::Turn>{{{QByteArray(70000, 'x')}, false}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    client.ask("A?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
    QVERIFY(answer.reply.reason.contains(QLatin1String("no end")));
}

void TestInstrumentClient::serverHangsUp()
{
    ScriptedServer server({{{"half"}, true}});
    InstrumentClient client(Port);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    connectTo(client);
    Answer answer;
    client.ask("A?", answer.taker());
    QTRY_VERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
    QCOMPARE(gone.size(), 1);
    QVERIFY(!client.goneReason().isEmpty());
}

void TestInstrumentClient::nobodyThere()
{
    InstrumentClient client(Port);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    client.start();
    QTRY_COMPARE(gone.size(), 1);
    QVERIFY(!client.isConnected());
    // Further attempts find nobody either and are not told again.
    QSignalSpy due(client.findChild<Backoff*>(), &Backoff::due);
    QTRY_VERIFY(due.size() >= 3);
    QCOMPARE(gone.size(), 1);
}

void TestInstrumentClient::comesBack()
{
    InstrumentClient client(Port);
    QSignalSpy connected(&client, &InstrumentClient::connected);
    QSignalSpy gone(&client, &InstrumentClient::gone);
    client.start();
    QTRY_COMPARE(gone.size(), 1);
    for (int time = 1; time <= 2; ++time) {
        {
            ScriptedServer server({});
            QTRY_COMPARE(connected.size(), time);
            QVERIFY(client.goneReason().isEmpty());
        }
        QTRY_COMPARE(gone.size(), time + 1);
    }
}

void TestInstrumentClient::notConnected()
{
    InstrumentClient client(Port);
    QVERIFY(!client.send("*RST"));
    Answer answer;
    client.ask("A?", answer.taker());
    QVERIFY(!answer.isThere);
    QTRY_VERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
    QVERIFY(!answer.reply.reason.isEmpty());
}

void TestInstrumentClient::stopped()
{
    ScriptedServer server(QVector<ScriptedServer::Turn>{{{}, false}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer answer;
    client.ask("A?", answer.taker());
    client.stop();
    QVERIFY(answer.isThere);
    QVERIFY(!answer.reply.ok);
    QVERIFY(server.waitForGone(1));
    // One that connected again would have been due by the time that another while is over.
    Backoff clock;
    QSignalSpy due(&clock, &Backoff::due);
    clock.wait();
    QTRY_COMPARE(due.size(), 1);
    QCOMPARE(server.accepted(), 1);
}

void TestInstrumentClient::askedFromAHandler()
{
    ScriptedServer server({{{"1\n"}}, {{"2\n"}}});
    InstrumentClient client(Port);
    connectTo(client);
    Answer second;
    client.ask("A?",
               [&client, &second](const InstrumentReply&) { client.ask("B?", second.taker()); });
    QTRY_VERIFY(second.isThere);
    QCOMPARE(second.reply.data, QByteArray("2"));
}

void TestInstrumentClient::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("value");
    QTest::newRow("exponent") << QByteArray("-1.5E-6") << true << -1.5e-6;
    QTest::newRow("whole") << QByteArray("12") << true << 12.0;
    QTest::newRow("not a number") << QByteArray("9.91E+37") << false << 0.0;
    QTest::newRow("infinity") << QByteArray("9.9E+37") << false << 0.0;
    QTest::newRow("nan") << QByteArray("nan") << false << 0.0;
    QTest::newRow("word") << QByteArray("ON") << false << 0.0;
    QTest::newRow("empty") << QByteArray() << false << 0.0;
}

void TestInstrumentClient::numbers()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isNumber);
    QFETCH(double, value);
    double number = -7;
    QCOMPARE((InstrumentReply{true, text, QString()}).toNumber(number), isNumber);
    QCOMPARE(number, isNumber ? value : -7);
    QVERIFY(!(InstrumentReply{false, text, QString()}).toNumber(number));
}

QTEST_GUILESS_MAIN(TestInstrumentClient)
#include "test_instrumentclient.moc"
