// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadclient.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

class TestKeypadClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void sendsKeys();
    void turnsFarInSteps();
    void nothingBeforeTheGreeting();
    void describes();
    void refused();
    void rubbishEndsTheConnection();
    void endlessReply();
    void hostComesBack();
    void nobodyThere();

private:
    QLocalSocket* accept();
    void greet();

    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<QLocalServer> m_host;
    QLocalSocket* m_socket = nullptr;
    std::unique_ptr<KeypadClient> m_client;
};

void TestKeypadClient::init()
{
    m_path = m_folder.filePath(QStringLiteral("keypad"));
    m_host = std::make_unique<QLocalServer>();
    QVERIFY(m_host->listen(m_path));
    m_client = std::make_unique<KeypadClient>(m_path);
    m_client->start();
}

void TestKeypadClient::cleanup()
{
    m_client.reset();
    m_host.reset();
}

QLocalSocket* TestKeypadClient::accept()
{
    const bool isThere = QTest::qWaitFor([this] { return m_host->hasPendingConnections(); }, 10000);
    return isThere ? m_host->nextPendingConnection() : nullptr;
}

void TestKeypadClient::greet()
{
    m_socket = accept();
    QVERIFY(m_socket != nullptr);
    QSignalSpy connected(m_client.get(), &KeypadClient::connected);
    m_socket->write(Keypad::helloLine(QStringLiteral("1.0")));
    QTRY_COMPARE(connected.size(), 1);
    QCOMPARE(connected.first().first().toString(), QStringLiteral("1.0"));
    QVERIFY(m_client->isConnected());
}

void TestKeypadClient::sendsKeys()
{
    greet();
    QVERIFY(m_client->press(705));
    QVERIFY(m_client->release(705));
    QVERIFY(m_client->turn(-3));
    QTRY_COMPARE(m_socket->bytesAvailable(),
                 qint64(sizeof "press 705\nrelease 705\nturn -3\n" - 1));
    QCOMPARE(m_socket->readAll(), QByteArray("press 705\nrelease 705\nturn -3\n"));
}

void TestKeypadClient::turnsFarInSteps()
{
    greet();
    QVERIFY(m_client->turn(250));
    QTRY_COMPARE(m_socket->bytesAvailable(), qint64(sizeof "turn 100\nturn 100\nturn 50\n" - 1));
    QCOMPARE(m_socket->readAll(), QByteArray("turn 100\nturn 100\nturn 50\n"));
}

void TestKeypadClient::nothingBeforeTheGreeting()
{
    m_socket = accept();
    QVERIFY(!m_client->press(705));
    QVERIFY(!m_client->turn(1));
    QVERIFY(!m_client->describe());
    QVERIFY(!m_socket->waitForReadyRead(100));
}

void TestKeypadClient::describes()
{
    greet();
    QSignalSpy described(m_client.get(), &KeypadClient::described);
    QVERIFY(m_client->describe());
    QTRY_COMPARE(m_socket->bytesAvailable(), qint64(9));
    Keypad::ScreenDescription screen;
    screen.language = QStringLiteral("ja");
    screen.items.resize(2000);
    const QByteArray line = Keypad::screenLine(screen);
    m_socket->write(line.left(70));
    m_socket->flush();
    m_socket->write(line.mid(70));
    QTRY_COMPARE(described.size(), 1);
    const auto read = described.first().first().value<Keypad::ScreenDescription>();
    QCOMPARE(read.language, QStringLiteral("ja"));
    QCOMPARE(read.items.size(), 2000);
}

void TestKeypadClient::refused()
{
    greet();
    QSignalSpy refused(m_client.get(), &KeypadClient::refused);
    m_socket->write(Keypad::errorLine(QStringLiteral("no such key")));
    QTRY_COMPARE(refused.size(), 1);
    QCOMPARE(refused.first().first().toString(), QStringLiteral("no such key"));
    QVERIFY(m_client->isConnected());
}

void TestKeypadClient::rubbishEndsTheConnection()
{
    greet();
    QSignalSpy gone(m_client.get(), &KeypadClient::gone);
    m_socket->write("\x01\x02 rubbish\n");
    QTRY_COMPARE(gone.size(), 1);
    QVERIFY(!m_client->isConnected());
    greet();
}

void TestKeypadClient::endlessReply()
{
    greet();
    QSignalSpy gone(m_client.get(), &KeypadClient::gone);
    m_socket->write(QByteArray(Keypad::MaxReplyBytes + 1, 'x'));
    QTRY_COMPARE(gone.size(), 1);
}

void TestKeypadClient::hostComesBack()
{
    greet();
    QSignalSpy gone(m_client.get(), &KeypadClient::gone);
    m_host.reset();
    QTRY_VERIFY(!gone.isEmpty());
    QVERIFY(!m_client->press(705));
    m_host = std::make_unique<QLocalServer>();
    QVERIFY(m_host->listen(m_path));
    greet();
    QVERIFY(m_client->goneReason().isEmpty());
}

void TestKeypadClient::nobodyThere()
{
    KeypadClient client(m_folder.filePath(QStringLiteral("nothing")));
    QSignalSpy gone(&client, &KeypadClient::gone);
    client.start();
    QTRY_COMPARE(gone.size(), 1);
    // Further attempts find nobody either and are not told again.
    QSignalSpy due(client.findChild<Backoff*>(), &Backoff::due);
    QTRY_VERIFY(due.size() >= 3);
    QCOMPARE(gone.size(), 1);
}

QTEST_GUILESS_MAIN(TestKeypadClient)
#include "test_keypadclient.moc"
