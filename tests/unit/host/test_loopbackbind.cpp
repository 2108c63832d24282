// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "loopbackbind.h"

#include <QHostAddress>
#include <QLocalServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <cerrno>

Q_DECLARE_METATYPE(QHostAddress)

class TestLoopbackBind : public QObject
{
    Q_OBJECT

private slots:
    void screenIsTheFirstOfAll()
    {
        QCOMPARE(int(LoopbackBind::screen().state), int(LoopbackBind::Screen::NotBound));
        QTcpServer taken;
        QVERIFY(taken.listen(QHostAddress::LocalHost));
        // Bound to an address of its own: not the screen.
        QCOMPARE(int(LoopbackBind::screen().state), int(LoopbackBind::Screen::NotBound));
        QTcpServer failing;
        QVERIFY(!failing.listen(QHostAddress::Any, taken.serverPort()));
        QCOMPARE(int(LoopbackBind::screen().state), int(LoopbackBind::Screen::Failed));
        QCOMPARE(LoopbackBind::screen().error, EADDRINUSE);
        QVERIFY(m_screen.listen(QHostAddress::Any));
        QCOMPARE(int(LoopbackBind::screen().state), int(LoopbackBind::Screen::Listening));
        QCOMPARE(LoopbackBind::screen().port, m_screen.serverPort());
    }

    void anyBecomesLoopback_data()
    {
        QTest::addColumn<QHostAddress>("asked");
        QTest::addColumn<QHostAddress>("bound");
        QTest::newRow("both versions")
            << QHostAddress(QHostAddress::Any) << QHostAddress(QStringLiteral("::ffff:127.0.0.1"));
        QTest::newRow("version 4")
            << QHostAddress(QHostAddress::AnyIPv4) << QHostAddress(QHostAddress::LocalHost);
        QTest::newRow("version 6")
            << QHostAddress(QHostAddress::AnyIPv6) << QHostAddress(QHostAddress::LocalHostIPv6);
        QTest::newRow("an address") << QHostAddress(QStringLiteral("127.0.0.2"))
                                    << QHostAddress(QStringLiteral("127.0.0.2"));
    }

    void anyBecomesLoopback()
    {
        QFETCH(QHostAddress, asked);
        QFETCH(QHostAddress, bound);
        QTcpServer server;
        if (!server.listen(asked))
            QSKIP("no such addresses here");
        QVERIFY2(server.serverAddress().isEqual(bound, QHostAddress::TolerantConversion),
                 qPrintable(server.serverAddress().toString()));
        QTcpSocket client;
        client.connectToHost(bound, server.serverPort());
        QVERIFY(client.waitForConnected());
        QTcpSocket other;
        other.connectToHost(QStringLiteral("127.0.0.3"), server.serverPort());
        QVERIFY(!other.waitForConnected());
    }

    void otherSocketsAreLeftAlone()
    {
        const QTemporaryDir folder;
        QLocalServer local;
        QVERIFY(local.listen(folder.filePath(QStringLiteral("socket"))));
        QUdpSocket datagrams;
        QVERIFY(datagrams.bind(QHostAddress(QHostAddress::AnyIPv4)));
        QCOMPARE(datagrams.localAddress(), QHostAddress(QHostAddress::LocalHost));
    }

private:
    QTcpServer m_screen;
};

QTEST_GUILESS_MAIN(TestLoopbackBind)
#include "test_loopbackbind.moc"
