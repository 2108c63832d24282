// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadprotocol.h"
#include "trialfolder.h"

#include "frontpanelkeys.h"
#include "hostinterface/kvxsharedmemory.h"

#include <QDataStream>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QSharedMemory>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace {

QString program()
{
    return qEnvironmentVariable("MPB_BIN_DIR") + QStringLiteral("/kvx-host");
}

/// The program, started with a screen on a free port.
class Desk
{
public:
    explicit Desk(const QStringList& options = {})
    {
        keypad = m_folder.filePath(QStringLiteral("keypad"));
        start(options);
    }

    ~Desk()
    {
        process.kill();
        process.waitForFinished();
    }

    void start(const QStringList& options = {})
    {
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        process.setProcessEnvironment(environment);
        process.start(program(), QStringList{QStringLiteral("--screen-port"), QStringLiteral("0"),
                                             QStringLiteral("--keypad"), keypad,
                                             QStringLiteral("--plugins"), plugins.path(),
                                             QStringLiteral("--language"), QStringLiteral("en")} +
                                     options);
        while (!process.canReadLine() && process.waitForReadyRead()) {
        }
        ready = process.readLine();
    }

    quint16 port() const
    {
        const int begin = ready.indexOf("127.0.0.1:") + 10;
        return quint16(ready.mid(begin, ready.indexOf(',', begin) - begin).toInt());
    }

    int end(int signal = SIGTERM)
    {
        ::kill(pid_t(process.processId()), signal);
        process.waitForFinished();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    /// What can be seen, after the keys of @p commands.
    Keypad::ScreenDescription screen(const QByteArray& commands = QByteArray())
    {
        QLocalSocket socket;
        socket.connectToServer(keypad);
        socket.write(commands + "describe\n");
        Keypad::Reply reply;
        while (reply.kind != Keypad::Reply::Screen) {
            while (!socket.canReadLine()) {
                if (!socket.waitForReadyRead())
                    return {};
            }
            Keypad::parseReply(socket.readLine(), reply);
        }
        return reply.screen;
    }

    bool shows(const QString& part)
    {
        for (const Keypad::ScreenItem& item : screen().items) {
            if (item.text.contains(part))
                return true;
        }
        return false;
    }

    static QByteArray stroke(int code)
    {
        return Keypad::commandLine({Keypad::Command::Press, code}) +
               Keypad::commandLine({Keypad::Command::Release, code});
    }

    TrialFolder plugins;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString keypad;
    QProcess process;
    QByteArray ready;

private:
    QTemporaryDir m_folder;
};

bool isSegmentThere()
{
    QSharedMemory segment(QLatin1String(KVXSharedMemory::Key));
    return segment.attach();
}

/// What a viewer sends for a touch at that pixel of the screen.
void touch(quint16 port, const QPoint& at)
{
    QTcpSocket viewer;
    viewer.connectToHost(QStringLiteral("127.0.0.1"), port);
    const auto read = [&viewer](int size) {
        while (viewer.bytesAvailable() < size && viewer.waitForReadyRead()) {
        }
        return viewer.read(size);
    };
    read(12);
    viewer.write("RFB 003.003\n");
    read(4);
    viewer.write(QByteArray(1, 1));
    const int sizeOfStart = 24;
    const int sizeOfName = read(sizeOfStart).right(4).toHex().toInt(nullptr, 16);
    read(sizeOfName);
    for (char buttons : {1, 0}) {
        QByteArray message;
        QDataStream(&message, QIODevice::WriteOnly)
            << quint8(5) << quint8(buttons) << quint16(at.x()) << quint16(at.y());
        viewer.write(message);
    }
    viewer.waitForBytesWritten();
    viewer.disconnectFromHost();
    if (viewer.state() != QAbstractSocket::UnconnectedState)
        viewer.waitForDisconnected();
}

QString builder()
{
    return qEnvironmentVariable("MPB_LIB_DIR") + QStringLiteral("/libMultiPulseBuilder.so");
}

} // namespace

class TestHostProgram : public QObject
{
    Q_OBJECT

private slots:
    void explainsItselfWithoutAScreen_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QByteArray>("word");
        QTest::newRow("help") << QStringLiteral("--help") << QByteArray("--screen-port");
        QTest::newRow("version") << QStringLiteral("--version") << QByteArray("kvx-host ");
    }

    void explainsItselfWithoutAScreen()
    {
        QFETCH(QString, option);
        QFETCH(QByteArray, word);
        QProcess process;
        process.start(program(), {option});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(process.readAllStandardOutput().contains(word));
    }

    void saysWhenItIsReady()
    {
        Desk desk;
        QCOMPARE(desk.ready, QStringLiteral("ready: screen 127.0.0.1:%1, keypad %2\n")
                                 .arg(desk.port())
                                 .arg(desk.keypad)
                                 .toLocal8Bit());
        QVERIFY(isSegmentThere());
        QVERIFY(desk.shows(QStringLiteral("Applications")));
        QCOMPARE(desk.end(), 0);
        QVERIFY(desk.process.readAllStandardOutput().isEmpty());
        QVERIFY(!isSegmentThere());
        QVERIFY(!QFileInfo::exists(desk.keypad));
    }

    void isReachedOnThisMachineAlone()
    {
        const Desk desk;
        QTcpSocket loopback;
        loopback.connectToHost(QStringLiteral("127.0.0.1"), desk.port());
        QVERIFY(loopback.waitForConnected());
        QTRY_VERIFY(loopback.bytesAvailable() >= 12);
        QVERIFY(loopback.readAll().startsWith("RFB "));
        QTcpSocket other;
        other.connectToHost(QStringLiteral("127.0.0.2"), desk.port());
        QVERIFY(!other.waitForConnected());
    }

    void endsCleanlyWithAPluginOpen_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
    }

    void endsCleanlyWithAPluginOpen()
    {
        QFETCH(int, signal);
        Desk desk;
        restartWith(desk, QStringLiteral("TrialGood"));
        desk.screen(Desk::stroke(QT_KEY_KNOB));
        QTRY_VERIFY(desk.shows(QStringLiteral("Trial window")));
        QCOMPARE(desk.end(signal), 0);
        QVERIFY(!isSegmentThere());
    }

    void goesOnAfterABrokenPlugin_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("throws") << "TrialFailsExec"
                                << "trial by fire";
        QTest::newRow("throws while it is made") << "TrialFailsConstructor"
                                                 << "Trial has failed";
        QTest::newRow("interface") << "TrialForeign"
                                   << "org.example.Another";
        QTest::newRow("symbol") << "TrialMissesSymbol"
                                << "nobodyHasThis";
    }

    void goesOnAfterABrokenPlugin()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        Desk desk;
        restartWith(desk, name);
        desk.screen(Desk::stroke(Qt::Key_Return));
        QTRY_VERIFY(desk.shows(reason));
        desk.screen(Desk::stroke(Qt::Key_Return));
        QTRY_VERIFY(desk.shows(QStringLiteral("Applications")));
        QCOMPARE(desk.end(), 0);
    }

    void aPluginStaysOpenWhenATimerOfItThrows()
    {
        Desk desk;
        restartWith(desk, QStringLiteral("TrialFailsTimer"));
        desk.screen(Desk::stroke(Qt::Key_Return));
        QTRY_VERIFY(desk.shows(QStringLiteral("Trial has failed")));
        QVERIFY(desk.shows(QStringLiteral("trial by fire")));
        desk.screen(Desk::stroke(Qt::Key_Return));
        QTRY_VERIFY(!desk.shows(QStringLiteral("trial by fire")));
        QVERIFY(desk.shows(QStringLiteral("Trial window")));
        QCOMPARE(desk.end(), 0);
    }

    void isAsLargeOnEveryDesktop_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::newRow("none") << QString();
        for (const char* variable :
             {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_DEVICE_PIXEL_RATIO"})
            QTest::newRow(variable) << QString::fromLatin1(variable);
    }

    void isAsLargeOnEveryDesktop()
    {
        QFETCH(QString, variable);
        Desk desk;
        desk.end();
        if (!variable.isEmpty())
            desk.environment.insert(variable, QStringLiteral("2"));
        desk.start();
        QRect settings;
        for (const Keypad::ScreenItem& item : desk.screen().items) {
            if (item.text == QLatin1String("Settings"))
                settings = item.rect;
        }
        QVERIFY(settings.isValid());
        touch(desk.port(), settings.center());
        QTRY_VERIFY(desk.shows(QStringLiteral("Language")));
    }

    void aStartHasNothingToReport()
    {
        Desk desk;
        QTRY_VERIFY(desk.shows(QStringLiteral("Channel 2")));
        QCOMPARE(desk.end(), 0);
        // The platform's own line.
        QCOMPARE(desk.process.readAllStandardError(), QByteArray("QVncServer created on port 0\n"));
    }

    void warnsOfUserDataThatOthersCanWrite()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
        Desk desk({QStringLiteral("--user-data"), folder.path()});
        QVERIFY(desk.ready.startsWith("ready: "));
        QCOMPARE(desk.end(), 0);
        const QByteArray warning = "kvx-host: --user-data: others can write to the folder " +
                                   folder.path().toLocal8Bit() + '\n';
        const QByteArray told = desk.process.readAllStandardError();
        QVERIFY2(told.contains(warning), told.constData());
    }

    void changesTheLanguageAboveAPlugin()
    {
        Desk desk;
        QVERIFY(QFile::copy(builder(), desk.plugins.path() + QStringLiteral("/libEditor.so")));
        desk.end();
        desk.start();
        desk.screen(Desk::stroke(QT_KEY_KNOB));
        // No instrument is there: the plug-in says so in a box of the host.
        QTRY_VERIFY(desk.shows(QStringLiteral("TcpSocket connect error!")));
        while (desk.shows(QStringLiteral("TcpSocket connect error!")))
            desk.screen(Desk::stroke(Qt::Key_Return));
        QTRY_VERIFY(desk.shows(QStringLiteral("High Level")));
        desk.screen(Desk::stroke(QT_KEY_UTLITY));
        QTRY_VERIFY(desk.shows(QStringLiteral("Settings")));
        desk.screen("turn 1\n" + Desk::stroke(QT_KEY_KNOB) + Desk::stroke(QT_KEY_BACK));
        QTRY_VERIFY(desk.shows(QStringLiteral("High-Pegel")));
        QCOMPARE(desk.screen().language, QStringLiteral("de"));
        QCOMPARE(desk.end(), 0);
    }

    void takesOverFromAKilledHost()
    {
        Desk desk;
        QSharedMemory segment(QLatin1String(KVXSharedMemory::Key));
        QVERIFY(segment.attach());
        static_cast<KVXSharedMemory*>(segment.data())->SetDiscardKeys(true);
        static_cast<KVXSharedMemory*>(segment.data())->SetBlockSCPI(true);
        QCOMPARE(desk.end(SIGKILL), -1);
        QVERIFY(QFileInfo::exists(desk.keypad));
        desk.start();
        QVERIFY(desk.ready.startsWith("ready: "));
        QVERIFY(!static_cast<KVXSharedMemory*>(segment.data())->GetDiscardKeys());
        QVERIFY(!static_cast<KVXSharedMemory*>(segment.data())->GetBlockSCPI());
        QVERIFY(!desk.screen().busy);
    }

    void tellsWhyItCannotStart_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("error");
        QVERIFY(m_taken.listen(QHostAddress::LocalHost));
        const QString port = QString::number(m_taken.serverPort());
        QTest::newRow("port taken")
            << QStringList{QStringLiteral("--screen-port"), port} << 4
            << "kvx-host: port " + port.toLatin1() + ": Address already in use\n";
        QTest::newRow("user data is a file")
            << QStringList{QStringLiteral("--user-data"), QStringLiteral("/etc/passwd")} << 2
            << QByteArray("kvx-host: --user-data /etc/passwd: not a folder\n");
        QTest::newRow("keypad among all")
            << QStringList{QStringLiteral("--keypad"), QStringLiteral("/nowhere/k")} << 2
            << QByteArray("kvx-host: keypad /nowhere/k: /nowhere is not a folder\n");
        QTest::newRow("usage") << QStringList{QStringLiteral("--language"), QStringLiteral("x")}
                               << 2
                               << QByteArray("kvx-host: --language x: choose one of en, de, "
                                             "zh_CN, ja\n");
    }

    void tellsWhyItCannotStart()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, error);
        Desk desk(options);
        QVERIFY(desk.ready.isEmpty());
        desk.process.waitForFinished();
        QTEST(desk.process.exitCode(), "code");
        const QByteArray told = desk.process.readAllStandardError();
        QVERIFY2(told.contains(error), told.constData());
    }

    void secondHostLeavesTheFirstAlone_data()
    {
        QTest::addColumn<bool>("isSameKeypad");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("same keypad") << true << QByteArray("kvx-host: keypad ");
        QTest::newRow("another keypad")
            << false << QByteArray("kvx-host: the segment of the flags: a running host has it\n");
    }

    void secondHostLeavesTheFirstAlone()
    {
        QFETCH(bool, isSameKeypad);
        QFETCH(QByteArray, error);
        Desk first;
        QSharedMemory segment(QLatin1String(KVXSharedMemory::Key));
        QVERIFY(segment.attach());
        auto* flags = static_cast<KVXSharedMemory*>(segment.data());
        flags->SetDiscardKeys(true);
        flags->SetBlockSCPI(true);
        Desk second(isSameKeypad ? QStringList{QStringLiteral("--keypad"), first.keypad}
                                 : QStringList());
        QVERIFY(second.ready.isEmpty());
        second.process.waitForFinished();
        QCOMPARE(second.process.exitCode(), 2);
        const QByteArray told = second.process.readAllStandardError();
        QVERIFY2(told.contains(error), told.constData());
        QVERIFY(flags->GetDiscardKeys());
        QVERIFY(flags->GetBlockSCPI());
        QVERIFY(first.shows(QStringLiteral("Applications")));
    }

private:
    static void restartWith(Desk& desk, const QString& plugin)
    {
        desk.plugins.add(plugin);
        desk.end();
        desk.start();
    }

    QTcpServer m_taken;
};

QTEST_GUILESS_MAIN(TestHostProgram)
#include "test_hostprogram.moc"
