// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keydriver.h"
#include "keypadserver.h"
#include "keyrecorder.h"
#include "screenstart.h"

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

namespace {

class Client
{
public:
    explicit Client(const QString& path)
    {
        socket.connectToServer(path);
        if (!socket.waitForConnected())
            qFatal("%s", qPrintable(socket.errorString()));
    }

    QByteArray line()
    {
        if (!QTest::qWaitFor([this] { return socket.canReadLine(); }))
            return "(no line)";
        return socket.readLine();
    }

    QLocalSocket socket;
};

Keypad::ScreenDescription someScreen()
{
    Keypad::ScreenDescription screen;
    screen.language = QStringLiteral("de");
    Keypad::ScreenItem item;
    item.text = QStringLiteral("Größe");
    item.rect = QRect(1, 2, 3, 4);
    item.role = QStringLiteral("button");
    screen.items.append(item);
    return screen;
}

} // namespace

class TestKeypadServer : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_strPath = m_folder->filePath(QStringLiteral("keypad"));
        m_driver = std::make_unique<KeyDriver>([] { return false; });
        m_server = makeServer();
        m_window = std::make_unique<KeyRecorder>();
        m_window->show();
        m_window->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void greetsAndTakesKeys()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        QCOMPARE(client.line(), QByteArray("hello kvx-host 1.2\n"));
        client.socket.write("press 705\nrelease 705\nturn -1\n");
        QTRY_COMPARE(m_window->keys.size(), 4);
        QCOMPARE(m_window->keys.mid(0, 2),
                 QStringList({QStringLiteral("+705"), QStringLiteral("-705")}));
    }

    void describesTheScreenOnceKeysAreHandled()
    {
        int keysByThen = -1;
        m_server = std::make_unique<KeypadServer>(
            *m_driver,
            [&] {
                keysByThen = m_window->keys.size();
                return someScreen();
            },
            QStringLiteral("1.2"));
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        client.line();
        client.socket.write("turn 3\ndescribe\n");
        Keypad::Reply reply;
        QCOMPARE(Keypad::parseReply(client.line(), reply), QString());
        QCOMPARE(int(reply.kind), int(Keypad::Reply::Screen));
        QCOMPARE(reply.screen.language, QStringLiteral("de"));
        QCOMPARE(reply.screen.items.size(), 1);
        QCOMPARE(reply.screen.items.first().text, QStringLiteral("Größe"));
        QCOMPARE(keysByThen, 6);
    }

    void linesMayComeInPieces()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        client.line();
        for (const char byte : QByteArray("press 705\n")) {
            client.socket.write(&byte, 1);
            client.socket.flush();
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(m_window->keys.size(), 1);
    }

    void nonsenseIsAnsweredAndTheConnectionGoesOn_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("word") << QByteArray("jump 3");
        QTest::newRow("no code") << QByteArray("press");
        QTest::newRow("no number") << QByteArray("press x");
        QTest::newRow("too far") << QByteArray("turn 101");
        QTest::newRow("bytes") << QByteArray("\xff\xfe\x01");
        QTest::newRow("just not too long") << QByteArray(256, 'x');
    }

    void nonsenseIsAnsweredAndTheConnectionGoesOn()
    {
        QFETCH(QByteArray, line);
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        client.line();
        client.socket.write(line + "\npress 705\n");
        QVERIFY(client.line().startsWith("error "));
        QTRY_COMPARE(m_window->keys.size(), 1);
        QCOMPARE(client.socket.state(), QLocalSocket::ConnectedState);
    }

    void tooLongALineEndsTheConnection_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("with its end") << QByteArray(257, 'x') + "\npress 705\n";
        QTest::newRow("without an end") << QByteArray(100000, 'x');
    }

    void tooLongALineEndsTheConnection()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        client.line();
        client.socket.write(bytes);
        QVERIFY(client.line().startsWith("error "));
        QTRY_COMPARE(client.socket.state(), QLocalSocket::UnconnectedState);
        QVERIFY(m_window->keys.isEmpty());
        // Others are served as ever.
        Client next(m_strPath);
        QVERIFY(next.line().startsWith("hello "));
    }

    void releasesTheKeysOfAClientThatLeaves()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client other(m_strPath);
        {
            Client client(m_strPath);
            client.line();
            client.socket.write("press 705\npress 709\n");
            QTRY_COMPARE(m_window->keys.size(), 2);
        }
        QTRY_COMPARE(m_window->keys.size(), 4);
        QVERIFY(m_window->keys.contains(QStringLiteral("-705")));
        QVERIFY(m_window->keys.contains(QStringLiteral("-709")));
    }

    void belongsToTheUserAlone()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        QCOMPARE(int(QFileInfo(m_strPath).permissions() & 0x77), 0);
    }

    void isGoneAtTheEnd()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        client.line();
        m_server.reset();
        QVERIFY(!QFileInfo::exists(m_strPath));
    }

    void doesNotTakeItFromARunningHost()
    {
        QCOMPARE(m_server->listen(m_strPath), QString());
        const auto second = makeServer();
        QCOMPARE(second->listen(m_strPath),
                 QStringLiteral("keypad %1: a running host has it").arg(m_strPath));
        Client client(m_strPath);
        QVERIFY(client.line().startsWith("hello "));
    }

    void takesOverWhatAKilledHostHasLeft()
    {
        {
            // A socket whose file outlives it, as that of a killed process does.
            QLocalServer dead;
            QVERIFY(dead.listen(m_strPath + QStringLiteral("-made")));
            QVERIFY(QFile::rename(m_strPath + QStringLiteral("-made"), m_strPath));
        }
        QVERIFY(QFileInfo::exists(m_strPath));
        QCOMPARE(m_server->listen(m_strPath), QString());
        Client client(m_strPath);
        QVERIFY(client.line().startsWith("hello "));
    }

    void leavesOtherFilesAlone()
    {
        QFile file(m_strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("precious");
        file.close();
        QCOMPARE(m_server->listen(m_strPath),
                 QStringLiteral("keypad %1: there is another file").arg(m_strPath));
        QCOMPARE(QFileInfo(m_strPath).size(), qint64(8));
    }

    void refusesAFolderForAll()
    {
        QVERIFY(QFile::setPermissions(m_folder->path(), QFileInfo(m_folder->path()).permissions() |
                                                            QFile::WriteOther));
        QVERIFY(m_server->listen(m_strPath).contains(QLatin1String("others")));
        QVERIFY(!QFileInfo::exists(m_strPath));
    }

private:
    std::unique_ptr<KeypadServer> makeServer()
    {
        return std::make_unique<KeypadServer>(*m_driver, someScreen, QStringLiteral("1.2"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strPath;
    std::unique_ptr<KeyDriver> m_driver;
    std::unique_ptr<KeypadServer> m_server;
    std::unique_ptr<KeyRecorder> m_window;
};

QTEST_MAIN(TestKeypadServer)
#include "test_keypadserver.moc"
