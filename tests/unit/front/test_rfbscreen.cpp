// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rfbscreen.h"

#include <QDataStream>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

const quint16 Port = 5911;

// What an RFB server says until the client may ask for pictures; 32 bits for a pixel.
QByteArray greeting(quint16 width, quint16 height)
{
    QByteArray bytes("RFB 003.003\n");
    QDataStream out(&bytes, QIODevice::Append);
    out << quint32(1) << width << height;
    out << quint8(32) << quint8(24) << quint8(0) << quint8(1);
    out << quint16(255) << quint16(255) << quint16(255);
    out << quint8(16) << quint8(8) << quint8(0) << quint8(0) << quint8(0) << quint8(0);
    out << quint32(4);
    return bytes + "desk";
}

struct Rectangle
{
    QRect area;
    qint32 encoding;
    QByteArray data;
};

QByteArray update(const QVector<Rectangle>& rectangles)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << quint8(0) << quint8(0) << quint16(rectangles.size());
    for (const Rectangle& rectangle : rectangles) {
        out << quint16(rectangle.area.x()) << quint16(rectangle.area.y())
            << quint16(rectangle.area.width()) << quint16(rectangle.area.height())
            << rectangle.encoding;
        out.writeRawData(rectangle.data.constData(), rectangle.data.size());
    }
    return bytes;
}

// Blue, green, red and nothing: the order that the client asks for.
QByteArray pixels(int count, const char* bgrx)
{
    return QByteArray(bgrx, 4).repeated(count);
}

const qint32 Raw = 0;
const qint32 NewSize = -223;

// Tells its bytes to every client, whatever that says, and then hangs up if it is to.
class RubbishServer : public QTcpServer
{
public:
    RubbishServer(const QByteArray& bytes, bool hangsUp)
    {
        connect(this, &QTcpServer::newConnection, this, [this, bytes, hangsUp] {
            ++accepted;
            QTcpSocket* const client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [client] { client->readAll(); });
            client->write(bytes);
            if (hangsUp)
                client->disconnectFromHost();
        });
        const bool isOpen = listen(QHostAddress(QHostAddress::LocalHost), Port);
        Q_ASSERT(isOpen);
        Q_UNUSED(isOpen);
    }

    int accepted = 0;
};

} // namespace

class TestRfbScreen : public QObject
{
    Q_OBJECT

private slots:
    void showsThePicture();
    void anySize_data();
    void anySize();
    void sizeChanges();
    void touches();
    void pointerStaysInside();
    void types();
    void serverGoesAndComesBack();
    void lastPictureStays();
    void nobodyThere();
    void silentServer();
    void badServers_data();
    void badServers();
    void rubbish();
    void endsWhileWaiting();
    void keySymbols_data();
    void keySymbols();
    void loopbackAlone();

private:
    static void startField(QProcess& program, const QString& size = QStringLiteral("320x200"));
    static QByteArray waitForLine(QProcess& program, const QByteArray& beginning);
};

void TestRfbScreen::startField(QProcess& program, const QString& size)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       QStringLiteral("vnc:size=%1:port=%2").arg(size).arg(Port));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/touchfield"),
                  QStringList());
    QVERIFY(program.waitForStarted());
}

// Skips lines that begin otherwise.
QByteArray TestRfbScreen::waitForLine(QProcess& program, const QByteArray& beginning)
{
    QByteArray line;
    const bool isThere = QTest::qWaitFor(
        [&] {
            while (program.canReadLine()) {
                line = program.readLine().trimmed();
                if (line.startsWith(beginning))
                    return true;
            }
            return false;
        },
        10000);
    return isThere ? line : QByteArray();
}

void TestRfbScreen::showsThePicture()
{
    QProcess field;
    startField(field);
    RfbScreen screen(Port);
    QSignalSpy connected(&screen, &RfbScreen::connected);
    QVERIFY(screen.image().isNull());
    screen.start();
    QTRY_COMPARE(connected.size(), 1);
    QVERIFY(screen.isConnected());
    QCOMPARE(screen.image().size(), QSize(320, 200));
    QTRY_COMPARE(screen.image().pixelColor(10, 100), QColor(Qt::red));
    QCOMPARE(screen.image().pixelColor(310, 100), QColor(Qt::blue));
    field.kill();
    field.waitForFinished();
}

void TestRfbScreen::anySize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("one pixel") << 1 << 1;
    QTest::newRow("odd") << 5 << 3;
    QTest::newRow("instrument's") << 800 << 480;
    QTest::newRow("largest") << 4096 << 16;
}

void TestRfbScreen::anySize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    const QRect all(0, 0, width, height);
    RubbishServer server(greeting(quint16(width), quint16(height)) +
                             update({{all, Raw, pixels(width * height, "\x30\x20\x10\x00")}}),
                         false);
    RfbScreen screen(Port);
    QSignalSpy changed(&screen, &RfbScreen::changed);
    screen.start();
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toRect(), all);
    QCOMPARE(screen.image().size(), all.size());
    QCOMPARE(screen.image().pixelColor(width - 1, height - 1), QColor(0x10, 0x20, 0x30));
}

void TestRfbScreen::sizeChanges()
{
    RubbishServer server(
        greeting(4, 4) + update({{{0, 0, 4, 4}, Raw, pixels(16, "\0\0\xff\0")}}) +
            update({{{0, 0, 6, 2}, NewSize, {}}, {{0, 0, 6, 2}, Raw, pixels(12, "\xff\0\0\0")}}),
        false);
    RfbScreen screen(Port);
    screen.start();
    QTRY_COMPARE(screen.image().size(), QSize(6, 2));
    QTRY_COMPARE(screen.image().pixelColor(5, 1), QColor(Qt::blue));
}

void TestRfbScreen::touches()
{
    QProcess field;
    startField(field);
    RfbScreen screen(Port);
    screen.start();
    QTRY_VERIFY(screen.isConnected());
    QTRY_COMPARE(screen.image().pixelColor(10, 100), QColor(Qt::red));
    screen.sendPointer({30, 40}, 1);
    QCOMPARE(waitForLine(field, "press"), QByteArray("press 30 40"));
    QTRY_COMPARE(screen.image().pixelColor(10, 100), QColor(Qt::blue));
    screen.sendPointer({31, 42}, 1);
    QCOMPARE(waitForLine(field, "move"), QByteArray("move 31 42"));
    screen.sendPointer({31, 42}, 0);
    QCOMPARE(waitForLine(field, "release"), QByteArray("release 31 42"));
    field.kill();
    field.waitForFinished();
}

void TestRfbScreen::pointerStaysInside()
{
    QProcess field;
    startField(field);
    RfbScreen screen(Port);
    screen.start();
    QTRY_VERIFY(screen.isConnected());
    screen.sendPointer({-50, 5000}, 1);
    QCOMPARE(waitForLine(field, "press"), QByteArray("press 0 199"));
    screen.sendPointer({5000, -50}, 0);
    QCOMPARE(waitForLine(field, "release"), QByteArray("release 319 0"));
    field.kill();
    field.waitForFinished();
}

void TestRfbScreen::types()
{
    QProcess field;
    startField(field);
    RfbScreen screen(Port);
    screen.start();
    QTRY_VERIFY(screen.isConnected());
    for (const char character : {'a', 'Z', '_'}) {
        const quint32 symbol = RfbScreen::keySymbol(0, QString(QLatin1Char(character)));
        screen.sendKey(symbol, true);
        screen.sendKey(symbol, false);
        QCOMPARE(waitForLine(field, "key"), QByteArray("key ") + character);
    }
    field.kill();
    field.waitForFinished();
}

void TestRfbScreen::serverGoesAndComesBack()
{
    RfbScreen screen(Port);
    QSignalSpy connected(&screen, &RfbScreen::connected);
    QSignalSpy gone(&screen, &RfbScreen::gone);
    screen.start();
    QTRY_COMPARE(gone.size(), 1);
    for (int time = 1; time <= 2; ++time) {
        QProcess field;
        startField(field);
        QTRY_COMPARE(connected.size(), time);
        QVERIFY(screen.goneReason().isEmpty());
        const int before = gone.size();
        field.kill();
        field.waitForFinished();
        QTRY_VERIFY(gone.size() > before);
        QVERIFY(!screen.isConnected());
        QVERIFY(!screen.goneReason().isEmpty());
    }
}

void TestRfbScreen::lastPictureStays()
{
    auto server = std::make_unique<RubbishServer>(
        greeting(2, 2) + update({{{0, 0, 2, 2}, Raw, pixels(4, "\0\xff\0\0")}}), false);
    RfbScreen screen(Port);
    QSignalSpy connected(&screen, &RfbScreen::connected);
    QSignalSpy gone(&screen, &RfbScreen::gone);
    screen.start();
    QTRY_COMPARE(connected.size(), 1);
    server.reset();
    QTRY_VERIFY(!gone.isEmpty());
    QCOMPARE(screen.image().pixelColor(1, 1), QColor(Qt::green));
    screen.sendPointer({1, 1}, 1);
    screen.sendKey('a', true);
}

void TestRfbScreen::nobodyThere()
{
    RfbScreen screen(Port);
    QSignalSpy gone(&screen, &RfbScreen::gone);
    screen.start();
    QTRY_COMPARE(gone.size(), 1);
    // Further attempts find nobody either and are not told again.
    QSignalSpy due(screen.findChild<Backoff*>(), &Backoff::due);
    QTRY_VERIFY(due.size() >= 3);
    QCOMPARE(gone.size(), 1);
}

// The window is not to wait for a server that takes the connection and says nothing.
void TestRfbScreen::silentServer()
{
    RubbishServer server(QByteArray(), false);
    RfbScreen screen(Port);
    screen.start();
    QTRY_COMPARE(server.accepted, 1);
    QVERIFY(!screen.isConnected());
    screen.stop();
    QVERIFY(!screen.goneReason().isEmpty());
}

void TestRfbScreen::badServers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray hello = greeting(4, 4);
    const QByteArray picture = update({{{0, 0, 4, 4}, Raw, pixels(16, "\0\0\0\0")}});
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("other protocol") << QByteArray("HTTP/1.1 200 OK\r\n\r\n");
    QTest::newRow("no version") << QByteArray("RFB 00x.00y\n");
    QTest::newRow("wants a password")
        << QByteArray("RFB 003.003\n\0\0\0\2", 16) + QByteArray(16, 'c');
    QTest::newRow("refuses") << QByteArray("RFB 003.003\n\0\0\0\0\0\0\0\4full", 24);
    QTest::newRow("greeting cut short") << hello.left(20);
    QTest::newRow("no screen") << greeting(0, 0);
    QTest::newRow("screen too wide") << greeting(65535, 4);
    QTest::newRow("screen too high") << greeting(4, 65535);
    QTest::newRow("unknown message") << hello + QByteArray(100, '\x7f');
    QTest::newRow("outside the screen")
        << hello + update({{{3, 3, 9, 9}, Raw, pixels(81, "\0\0\0\0")}}) + QByteArray(99, '\xee');
    QTest::newRow("far outside the screen")
        << hello + update({{{60000, 60000, 5000, 5000}, Raw, pixels(81, "\0\0\0\0")}});
    QTest::newRow("unknown encoding") << hello + update({{{0, 0, 4, 4}, 12345, {}}});
    QTest::newRow("grows too far")
        << hello + picture + update({{{0, 0, 60000, 60000}, NewSize, {}}});
    QTest::newRow("shrinks to nothing")
        << hello + picture +
               update({{{0, 0, 0, 0}, NewSize, {}}, {{0, 0, 4, 4}, Raw, pixels(16, "\0\0\0\0")}});
    QTest::newRow("copies from outside")
        << hello + update({{{0, 0, 4, 4}, 1, QByteArray("\xff\xff\xff\xff", 4)}});
    QTest::newRow("hextile cut short") << hello + update({{{0, 0, 4, 4}, 5, "\x1f"}});
    QTest::newRow("endless clipboard")
        << hello + QByteArray("\3\0\0\0\xff\xff\xff\xff", 8) + QByteArray(64, 'x');
}

void TestRfbScreen::badServers()
{
    QFETCH(QByteArray, bytes);
    RubbishServer server(bytes, true);
    RfbScreen screen(Port);
    QSignalSpy gone(&screen, &RfbScreen::gone);
    screen.start();
    QTRY_VERIFY(!gone.isEmpty());
    QVERIFY(!gone.first().first().toString().isEmpty());
    QVERIFY(!screen.isConnected() || screen.image().size() == QSize(4, 4));
}

// What a sound server says, with some bytes changed, at random but the same each time.
void TestRfbScreen::rubbish()
{
    const QByteArray sound =
        greeting(16, 16) + update({{{0, 0, 16, 16}, Raw, pixels(256, "\1\2\3\0")}}) +
        update({{{0, 0, 16, 16}, 5, QByteArray("\x1f\1\2\3\0\3\2\1\0\1\x11\x22", 12)},
                {{4, 4, 4, 4}, 1, QByteArray("\0\0\0\0", 4)}});
    QRandomGenerator random(20261121);
    for (int round = 0; round < 100; ++round) {
        QByteArray bytes = sound;
        for (int change = random.bounded(8); change >= 0; --change)
            bytes[random.bounded(12, bytes.size())] = char(random.bounded(256));
        RubbishServer server(bytes, true);
        RfbScreen screen(Port);
        QSignalSpy gone(&screen, &RfbScreen::gone);
        screen.start();
        QTRY_VERIFY2(!gone.isEmpty(), qPrintable(QStringLiteral("round %1").arg(round)));
    }
}

void TestRfbScreen::endsWhileWaiting()
{
    RubbishServer half(greeting(4, 4) + update({{{0, 0, 4, 4}, Raw, pixels(8, "\0\0\0\0")}}),
                       false);
    for (int round = 0; round < 20; ++round) {
        RfbScreen screen(Port);
        screen.start();
        // Each time it has come a little further.
        for (int turn = 0; turn < round; ++turn)
            QCoreApplication::processEvents();
    }
}

void TestRfbScreen::keySymbols_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<uint>("symbol");
    QTest::newRow("letter") << int(Qt::Key_A) << QStringLiteral("a") << 0x61u;
    QTest::newRow("capital") << int(Qt::Key_A) << QStringLiteral("A") << 0x41u;
    QTest::newRow("Latin 1") << int(Qt::Key_Adiaeresis) << QStringLiteral("ä") << 0xe4u;
    QTest::newRow("beyond") << 0 << QStringLiteral("日") << 0x010065e5u;
    QTest::newRow("Return") << int(Qt::Key_Return) << QStringLiteral("\r") << 0xff0du;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << QStringLiteral("\b") << 0xff08u;
    QTest::newRow("Left") << int(Qt::Key_Left) << QString() << 0xff51u;
    QTest::newRow("control character") << 0 << QStringLiteral("\x03") << 0u;
    QTest::newRow("nothing") << int(Qt::Key_F1) << QString() << 0u;
    QTest::newRow("two characters") << 0 << QStringLiteral("ab") << 0u;
}

void TestRfbScreen::keySymbols()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(uint, symbol);
    QCOMPARE(RfbScreen::keySymbol(key, text), symbol);
}

// A server on another of the machine's addresses is another machine's.
void TestRfbScreen::loopbackAlone()
{
    QTcpServer elsewhere;
    QVERIFY(elsewhere.listen(QHostAddress(QStringLiteral("127.0.0.2")), Port));
    RfbScreen screen(Port);
    QSignalSpy gone(&screen, &RfbScreen::gone);
    screen.start();
    QTRY_COMPARE(gone.size(), 1);
    QVERIFY(!elsewhere.hasPendingConnections());
}

QTEST_GUILESS_MAIN(TestRfbScreen)
#include "test_rfbscreen.moc"
