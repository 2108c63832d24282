// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "server.h"

#include "serverfixture.h"

class TestServer : public QObject
{
    Q_OBJECT

private slots:
    void onlyOnLoopback();
    void portTaken();
    void portFreeAgain();
    void refuses();
    void refusesOnAPortOfLateConnections();
    void refusingPortTaken();
    void acceptsNobody();
    void clientsShareTheInstrument();
    void clientsAreCounted();
    void clientsAreNumberedInTheTranscript();
};

void TestServer::onlyOnLoopback()
{
    ServerFixture fixture;
    QTcpSocket other;
    other.connectToHost(QHostAddress(QStringLiteral("127.0.0.2")), fixture.server.port());
    QTRY_COMPARE(other.error(), QAbstractSocket::ConnectionRefusedError);
    Client client(fixture);
    client.send("*OPC?\n");
    QTRY_COMPARE(client.received, QByteArray("1\n"));
}

void TestServer::portTaken()
{
    ServerFixture first;
    ServerClock clock;
    InstrumentServer second({first.device.instrument, clock, FaultPlan(), 1, nullptr});
    QVERIFY(!second.open(first.server.port()));
    QVERIFY(!second.errorString().isEmpty());
}

void TestServer::portFreeAgain()
{
    quint16 port = 0;
    {
        ServerFixture first;
        port = first.server.port();
        Client client(first);
        client.send("*OPC?\n");
        QTRY_COMPARE(client.received, QByteArray("1\n"));
    }
    ScpiFixture device;
    ServerClock clock;
    InstrumentServer second({device.instrument, clock, FaultPlan(), 1, nullptr});
    QVERIFY2(second.open(port), qPrintable(second.errorString()));
    QCOMPARE(second.port(), port);
}

void TestServer::refuses()
{
    FaultPlan faults;
    faults.refuse = true;
    ServerFixture fixture(faults);
    QVERIFY(fixture.server.port() != 0);
    Client client(fixture);
    QTRY_COMPARE(client.socket.error(), QAbstractSocket::ConnectionRefusedError);
}

// The side that closes first keeps its end of the connection, and with it the port, for a while.
void TestServer::refusesOnAPortOfLateConnections()
{
    FaultPlan faults;
    faults.closeAt = 1;
    quint16 port = 0;
    {
        ServerFixture first(faults);
        port = first.server.port();
        Client client(first);
        client.send("*OPC?\n");
        QTRY_VERIFY(!client.isConnected());
        QTRY_COMPARE(first.server.clientCount(), 0);
    }
    faults = FaultPlan();
    faults.refuse = true;
    ScpiFixture device;
    ServerClock clock;
    InstrumentServer second({device.instrument, clock, faults, 1, nullptr});
    QVERIFY2(second.open(port), qPrintable(second.errorString()));
    QCOMPARE(second.port(), port);
}

void TestServer::refusingPortTaken()
{
    ServerFixture first;
    FaultPlan faults;
    faults.refuse = true;
    ServerClock clock;
    InstrumentServer second({first.device.instrument, clock, faults, 1, nullptr});
    QVERIFY(!second.open(first.server.port()));
    QVERIFY(!second.errorString().isEmpty());
}

void TestServer::acceptsNobody()
{
    FaultPlan faults;
    faults.noAccept = true;
    ServerFixture fixture(faults);
    Client client(fixture);
    client.send("*OPC?\n");
    QVERIFY(!QSignalSpy(&client.socket, &QTcpSocket::readyRead).wait(200));
    QVERIFY(client.isConnected());
    QCOMPARE(fixture.server.clientCount(), 0);
    QCOMPARE(fixture.transcript(), QList<QByteArray>());
}

void TestServer::clientsShareTheInstrument()
{
    ServerFixture fixture;
    Client first(fixture);
    Client second(fixture);
    first.send("VOLT 5;NONSENSE;VO");
    second.send("VOLT?;:SYST:ERR:COUN?\n");
    QTRY_COMPARE(second.received, QByteArray("0;0\n"));
    first.send("LT?\n*OPC?\n");
    QTRY_COMPARE(first.received, QByteArray("5\n1\n"));
    second.send("VOLT?;:SYST:ERR?;ERR?;ERR?\n");
    QTRY_COMPARE(
        second.received.mid(4),
        QByteArray("5;-113,\"Undefined header;NONSENSE\";0,\"No error\";0,\"No error\"\n"));
}

void TestServer::clientsAreCounted()
{
    ServerFixture fixture;
    {
        Client first(fixture);
        Client second(fixture);
        QTRY_COMPARE(fixture.server.clientCount(), 2);
    }
    QTRY_COMPARE(fixture.server.clientCount(), 0);
}

void TestServer::clientsAreNumberedInTheTranscript()
{
    ServerFixture fixture;
    {
        Client first(fixture);
        first.send("*OPC?\n");
        QTRY_COMPARE(first.received, QByteArray("1\n"));
    }
    QTRY_COMPARE(fixture.server.clientCount(), 0);
    Client second(fixture);
    second.send("VOLT 5 \r\nVOLT?\n");
    QTRY_COMPARE(second.received, QByteArray("5\n"));
    const QList<QByteArray> expected{"1 + ", "1 > *OPC?\\n",      "1 < 1\\n",     "1 - ",
                                     "2 + ", "2 > VOLT 5 \\r\\n", "2 > VOLT?\\n", "2 < 5\\n"};
    QCOMPARE(fixture.transcript(), expected);
}

QTEST_GUILESS_MAIN(TestServer)
#include "test_server.moc"
