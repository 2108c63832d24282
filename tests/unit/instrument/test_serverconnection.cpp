// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverconnection.h"

#include "logcapture.h"
#include "serverfixture.h"

#include <QElapsedTimer>

#include <sys/socket.h>

class TestServerConnection : public QObject
{
    Q_OBJECT

private slots:
    void talk_data();
    void talk();
    void replyIsOnePiece();
    void executesWhatCameBeforeTheEnd();
    void clientThatOnlyStopsSendingIsAnswered();
    void unreadRepliesHoldCommandsBack();
    void clientThatLeavesRepliesUnread();
    void overrunIsNoted();
    void slow();
    void slowKeepsOrder();
    void split();
    void splitShortReply();
    void closeAfter_data();
    void closeAfter();
    void closeAfterIgnoresTheRest();
    void halfCloseAfter();
    void closeAt();
    void halfCloseAt();
    void noReply();
    void rubbishIsRepeatable();
    void faultsCombine();
};

namespace {

FaultPlan faults(const char* text)
{
    FaultPlan plan;
    if (!addFaults(QLatin1String(text), plan).isEmpty())
        qFatal("%s", text);
    return plan;
}

} // namespace

void TestServerConnection::talk_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("replies");

    QTest::newRow("query") << QByteArray("*IDN?\n") << QByteArray("Maker,KVX70102,S1,1.0\n");
    QTest::newRow("CRLF") << QByteArray("*OPC?\r\n") << QByteArray("1\n");
    QTest::newRow("command and query")
        << QByteArray("*RST \n*IDN? \n") << QByteArray("Maker,KVX70102,S1,1.0\n");
    QTest::newRow("two queries") << QByteArray("*OPC?\nVOLT?\n") << QByteArray("1\n0\n");
    QTest::newRow("unknown query") << QByteArray("NONSENSE?\n*OPC?\n") << QByteArray("1\n");
}

void TestServerConnection::talk()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, replies);
    ServerFixture fixture;
    Client client(fixture);
    client.send(bytes);
    QTRY_COMPARE(client.received, replies);

    Client slowTyper(fixture);
    for (const char c : bytes) {
        slowTyper.send(QByteArray(1, c));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(slowTyper.received, replies);
}

void TestServerConnection::replyIsOnePiece()
{
    ServerFixture fixture;
    fixture.device.longReply = QByteArray(30000, 'x');
    Client client(fixture);
    client.send("LONG?;LONG?\n");
    QTRY_COMPARE(client.received.size(), 60002);
    QCOMPARE(client.pieces.size(), 1);
}

void TestServerConnection::executesWhatCameBeforeTheEnd()
{
    ServerFixture fixture;
    Client client(fixture);
    client.send("VOLT 5\n*RST\n*IDN?\nVOLT 7");
    client.socket.close();
    QTRY_COMPARE(fixture.server.clientCount(), 0);
    QTRY_COMPARE(fixture.device.resets, 1);
    QCOMPARE(fixture.device.level, QByteArray("5"));
    QCOMPARE(fixture.transcript().last(), QByteArray("1 - "));
}

void TestServerConnection::clientThatOnlyStopsSendingIsAnswered()
{
    ServerFixture fixture;
    Client client(fixture);
    client.send("*OPC?\n");
    ::shutdown(int(client.socket.socketDescriptor()), SHUT_WR);
    QTRY_COMPARE(client.received, QByteArray("1\n"));
}

void TestServerConnection::unreadRepliesHoldCommandsBack()
{
    ServerFixture fixture;
    fixture.device.longReply = QByteArray(1000000, 'x');
    QTcpSocket socket;
    socket.setReadBufferSize(1000);
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), fixture.server.port());
    QVERIFY(QSignalSpy(&socket, &QTcpSocket::connected).wait());
    QByteArray queries;
    for (int i = 0; i < 100; ++i)
        queries += "LONG?\n";
    socket.write(queries);

    // Another client's round trip shows that the server has done what it is ready to do.
    Client other(fixture);
    other.send("*OPC?\n");
    QTRY_COMPARE(other.received, QByteArray("1\n"));
    QVERIFY2(fixture.device.longQueries < 50,
             qPrintable(QString::number(fixture.device.longQueries)));

    socket.setReadBufferSize(0);
    qint64 received = 0;
    connect(&socket, &QTcpSocket::readyRead, this, [&] { received += socket.readAll().size(); });
    received += socket.readAll().size();
    QTRY_COMPARE_WITH_TIMEOUT(received, qint64(100 * 1000001), 20000);
    QCOMPARE(fixture.device.longQueries, 100);
}

// The second reply finds the connection reset, while further commands are still to be executed.
void TestServerConnection::clientThatLeavesRepliesUnread()
{
    const LogCapture log;
    ServerFixture fixture;
    Client client(fixture);
    client.send("*OPC?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n"));
    client.send("*IDN?\n*IDN?\n*IDN?\n*IDN?\nVOLT 5\n");
    client.socket.abort();
    QTRY_COMPARE(fixture.server.clientCount(), 0);
    QCOMPARE(fixture.device.level, QByteArray("5"));
    QCOMPARE(LogCapture::messages(), QStringList());
}

void TestServerConnection::overrunIsNoted()
{
    ServerFixture fixture;
    Client client(fixture);
    client.send(QByteArray(70000, 'x') + "\nSYST:ERR?\n");
    QTRY_COMPARE(client.received, QByteArray("-363,\"Input buffer overrun\"\n"));
    QCOMPARE(fixture.transcript().at(1), QByteArray("1 ! "));
}

void TestServerConnection::slow()
{
    ServerFixture fixture(faults("slow=150"));
    Client client(fixture);
    QElapsedTimer timer;
    timer.start();
    client.send("*OPC?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n"));
    QVERIFY2(timer.elapsed() >= 150, qPrintable(QString::number(timer.elapsed())));
}

void TestServerConnection::slowKeepsOrder()
{
    ServerFixture fixture(faults("slow=20"));
    Client client(fixture);
    client.send("VOLT 1;VOLT?\nVOLT 2\nVOLT?\n*OPC?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n2\n1\n"));
    QCOMPARE(client.pieces.size(), 3);
}

void TestServerConnection::split()
{
    ServerFixture fixture(faults("split=4"));
    Client client(fixture);
    client.send("*IDN?\n");
    QTRY_COMPARE(client.received, QByteArray("Maker,KVX70102,S1,1.0\n"));
    QCOMPARE(client.pieces.size(), 4);
    client.send("VOLT?\n");
    QTRY_COMPARE(client.received.mid(22), QByteArray("0\n"));
}

void TestServerConnection::splitShortReply()
{
    ServerFixture fixture(faults("split=1000"));
    Client client(fixture);
    client.send("*OPC?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n"));
    QCOMPARE(client.pieces.size(), 2);
}

void TestServerConnection::closeAfter_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QByteArray>("replies");

    QTest::newRow("at once") << QByteArray("close-after=0") << QByteArray() << QByteArray();
    QTest::newRow("within the first command")
        << QByteArray("close-after=5") << QByteArray("*OPC?") << QByteArray();
    QTest::newRow("behind the first command")
        << QByteArray("close-after=6") << QByteArray("*OPC?\n") << QByteArray("1\n");
    QTest::newRow("within the second")
        << QByteArray("close-after=11") << QByteArray("*OPC?\n*OPC?") << QByteArray("1\n");
    QTest::newRow("behind the second")
        << QByteArray("close-after=12") << QByteArray("*OPC?\n*OPC?\n") << QByteArray("1\n1\n");
}

void TestServerConnection::closeAfter()
{
    QFETCH(QByteArray, fault);
    QFETCH(QByteArray, sent);
    ServerFixture fixture(faults(fault.constData()));
    Client client(fixture);
    QSignalSpy ended(&client.socket, &QTcpSocket::disconnected);
    client.send(sent);
    QTRY_COMPARE(ended.count(), 1);
    QTEST(client.received, "replies");
    QTRY_COMPARE(fixture.server.clientCount(), 0);
}

void TestServerConnection::closeAfterIgnoresTheRest()
{
    ServerFixture fixture(faults("close-after=9"));
    Client client(fixture);
    QSignalSpy ended(&client.socket, &QTcpSocket::disconnected);
    client.send("VOLT 1\nVOLT 2\nVOLT 3\n");
    QTRY_COMPARE(ended.count(), 1);
    QTRY_COMPARE(fixture.server.clientCount(), 0);
    QCOMPARE(fixture.device.level, QByteArray("1"));
}

void TestServerConnection::halfCloseAfter()
{
    ServerFixture fixture(faults("half-close-after=6"));
    Client client(fixture);
    QSignalSpy ended(&client.socket, &QTcpSocket::disconnected);
    client.send("*OPC?\n");
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(client.received, QByteArray("1\n"));
}

void TestServerConnection::closeAt()
{
    ServerFixture fixture(faults("close-at=3"));
    Client client(fixture);
    client.send("VOLT 1;*OPC?\n \nVOLT 2\nVOLT 3\nVOLT 4\n");
    QTRY_COMPARE(fixture.server.clientCount(), 0);
    QTRY_COMPARE(fixture.device.level, QByteArray("2"));
    QTRY_VERIFY(!client.isConnected());

    Client next(fixture);
    next.send("VOLT?\n");
    QTRY_COMPARE(next.received, QByteArray("2\n"));
}

void TestServerConnection::halfCloseAt()
{
    ServerFixture fixture(faults("half-close-at=2"));
    Client client(fixture);
    client.send("VOLT 1;VOLT?\nVOLT 2;VOLT?\nVOLT 3;VOLT?\n");
    QTRY_COMPARE(fixture.device.level, QByteArray("3"));
    QTRY_VERIFY(!client.isConnected());
    QCOMPARE(client.received, QByteArray("1\n"));
}

void TestServerConnection::noReply()
{
    ServerFixture fixture(faults("no-reply"));
    Client client(fixture);
    client.send("VOLT 1;VOLT?\n");
    QTRY_COMPARE(fixture.device.level, QByteArray("1"));
    QVERIFY(!QSignalSpy(&client.socket, &QTcpSocket::readyRead).wait(200));
    QVERIFY(client.isConnected());
    QCOMPARE(fixture.transcript().last(), QByteArray("1 > VOLT 1;VOLT?\\n"));
}

void TestServerConnection::rubbishIsRepeatable()
{
    QList<QByteArray> replies;
    for (const quint32 seed : {7U, 7U, 8U}) {
        ServerFixture fixture(faults("rubbish"), seed);
        Client client(fixture);
        client.send("*OPC?\n");
        QTRY_VERIFY(!client.received.isEmpty());
        QVERIFY(client.received.size() <= 80);
        replies.append(client.received);
    }
    QCOMPARE(replies.at(1), replies.at(0));
    QVERIFY(replies.at(2) != replies.at(0));
    QVERIFY(!replies.contains("1\n"));
}

void TestServerConnection::faultsCombine()
{
    ServerFixture fixture(faults("split=2,slow=30,close-at=3"));
    Client client(fixture);
    QElapsedTimer timer;
    timer.start();
    client.send("*OPC?\nVOLT?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n0\n"));
    QCOMPARE(client.pieces.size(), 4);
    QVERIFY2(timer.elapsed() >= 120, qPrintable(QString::number(timer.elapsed())));
    client.send("*OPC?\n");
    QTRY_VERIFY(!client.isConnected());
    QCOMPARE(client.received, QByteArray("1\n0\n"));
}

QTEST_GUILESS_MAIN(TestServerConnection)
#include "test_serverconnection.moc"
