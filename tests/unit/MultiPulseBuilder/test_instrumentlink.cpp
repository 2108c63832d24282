// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentlink.h"

#include "logcapture.h"
#include "runsequence.h"
#include "scriptedserver.h"

#include <QTcpServer>
#include <QtTest>

namespace {

const QHostAddress Loopback(QHostAddress::LocalHost);

} // namespace

class TestInstrumentLink : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void sendsBytesAsTheyAre();
    void sendsAllInOrder();
    void stopsAtTheFirstFailure();
    void repliesComeInOneRead();
    void noReplyBeforeTheClose();
    void confirmAsksTheClosingQuery();
    void connectsToAnotherPort();
    void connectsAgainAfterClose();
    void refused();
    void sendsNothingUnconnected();
};

void TestInstrumentLink::defaults()
{
    QCOMPARE(int(InstrumentLink::DefaultPort), 30000);
    QCOMPARE(int(InstrumentLink::TimeoutMs), 30000);
}

void TestInstrumentLink::sendsBytesAsTheyAre()
{
    ScriptedServer server({});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QVERIFY(link.send("source1:BURSt  ON \n"));
    QVERIFY(link.send("no end"));
    link.close();
    QVERIFY(server.waitForGone(1));
    QCOMPARE(server.received(), QByteArray("source1:BURSt  ON \nno end"));
    QCOMPARE(server.accepted(), 1);
}

void TestInstrumentLink::sendsAllInOrder()
{
    ScriptedServer server({});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray failed("untouched");
    QVERIFY(link.sendAll({"one\n", "two \n", "three\n"}, failed));
    QCOMPARE(failed, QByteArray("untouched"));
    QVERIFY(link.sendAll({}, failed));
    link.close();
    QVERIFY(server.waitForGone(1));
    QCOMPARE(server.received(), QByteArray("one\ntwo \nthree\n"));
}

void TestInstrumentLink::stopsAtTheFirstFailure()
{
    // The server leaves after the first line; its reply tells that it has read that far.
    ScriptedServer server({{{"going\n"}, true}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QVERIFY(link.send("one\n"));
    QCOMPARE(link.waitForReply(), QByteArray("going\n"));
    QVERIFY(server.waitForGone(1));
    QVERIFY(link.waitForReply().isEmpty());

    QByteArray failed;
    QVERIFY(!link.sendAll({"two\n", "three\n"}, failed));
    QCOMPARE(failed, QByteArray("two\n"));
    QCOMPARE(server.received(), QByteArray("one\n"));
}

void TestInstrumentLink::repliesComeInOneRead()
{
    ScriptedServer server({{{"first ", "second\n"}, false}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QVERIFY(link.send("*IDN?\n"));
    QCOMPARE(link.waitForReply(), QByteArray("first "));
    server.sendNextPiece();
    QCOMPARE(link.waitForReply(), QByteArray("second\n"));
}

void TestInstrumentLink::noReplyBeforeTheClose()
{
    ScriptedServer server({{{}, true}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QVERIFY(link.send("*IDN?\n"));
    QCOMPARE(link.waitForReply(), QByteArray());
    QCOMPARE(link.error(), QAbstractSocket::RemoteHostClosedError);
}

void TestInstrumentLink::confirmAsksTheClosingQuery()
{
    ScriptedServer server({{{"Maker,KVX7010C\n"}, false}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QCOMPARE(link.confirm(RunSequence::ClosingQuery), QByteArray("Maker,KVX7010C\n"));
    QCOMPARE(server.received(), QByteArray("*IDN? \n"));
}

void TestInstrumentLink::connectsToAnotherPort()
{
    ScriptedServer server({{{"yes\n"}, false}}, ScriptedServer::Serve, 30001);
    InstrumentLink link(Loopback, 30001);
    QVERIFY(link.connectToInstrument());
    QVERIFY(link.send("there?\n"));
    QCOMPARE(link.waitForReply(), QByteArray("yes\n"));
}

void TestInstrumentLink::connectsAgainAfterClose()
{
    ScriptedServer server({{{"1\n"}, false}, {{"2\n"}, false}});
    InstrumentLink link;
    for (const QByteArray& reply : {QByteArray("1\n"), QByteArray("2\n")}) {
        QVERIFY(link.connectToInstrument());
        QVERIFY(link.send("?\n"));
        QCOMPARE(link.waitForReply(), reply);
        link.close();
    }
    QVERIFY(server.waitForGone(2));
    QCOMPARE(server.accepted(), 2);
}

void TestInstrumentLink::refused()
{
    InstrumentLink link;
    QVERIFY(!link.connectToInstrument());
    QCOMPARE(link.error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(link.errorString(), QStringLiteral("Connection refused"));
    QCOMPARE(link.connectWarning(),
             QStringLiteral("TcpSocket connect error! port:30000, reason:Connection refused"));
}

void TestInstrumentLink::sendsNothingUnconnected()
{
    const LogCapture log;
    InstrumentLink link;
    QVERIFY(!link.send("lost\n"));
    QCOMPARE(link.confirm(RunSequence::ClosingQuery), QByteArray());
    QVERIFY(!link.connectToInstrument());
    QCOMPARE(link.confirm(RunSequence::ClosingQuery), QByteArray());
    QCOMPARE(link.error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(LogCapture::messages(), QStringList());
}

QTEST_GUILESS_MAIN(TestInstrumentLink)

#include "test_instrumentlink.moc"
