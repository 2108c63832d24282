// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"

#include "frontpanelkeys.h"

using namespace Output;

namespace {

const QString Refused =
    QStringLiteral("TcpSocket connect error! port:30000, reason:Connection refused");

QString errorLine(const QByteArray& command, const char* error)
{
    QString told = QString::fromLatin1(command);
    told.replace(QLatin1String("\""), QLatin1String("\\\""));
    told.replace(QLatin1String("\n"), QLatin1String("\\n"));
    return QStringLiteral("warning: slt_runOrStopWaveformOutput error cmd \"%1\" "
                          "QAbstractSocket::%2")
        .arg(told, QLatin1String(error));
}

/// Where a connection is lost: after so many bytes of a sequence.
void addCuts(const QByteArrayList& commands)
{
    QTest::addColumn<int>("bytes");
    QTest::newRow("before the first") << 0;
    int start = 0;
    for (int i = 0; i < commands.size(); ++i) {
        const QByteArray name = QByteArray::number(i + 1) + ", " + commands.at(i).trimmed();
        QTest::newRow(("in " + name).constData()) << start + commands.at(i).size() / 2;
        start += commands.at(i).size();
        QTest::newRow(("after " + name).constData()) << start;
    }
}

/// How many of the commands are sent when the connection is lost after so many bytes: the loss
/// shows when the next one is to leave.
int commandsSent(const QByteArrayList& commands, int bytes)
{
    int count = 0;
    for (int sent = 0; sent < bytes; ++count)
        sent += commands.at(count).size();
    return count;
}

/// Has the instrument close the connection after so many bytes of the next sequence. Its close is
/// seen before the next command leaves.
void cutAfter(OutputSession& session, int bytes)
{
    QVERIFY(session.server.waitForGone(session.server.accepted()));
    session.server.closeAfter(bytes);
    session.takeSent();
    if (bytes == 0)
        session.tap.connected = [](int socket) { QVERIFY(Wiretap::waitForHangUp(socket)); };
    session.whenSent = [&session, bytes](int socket, const QByteArray& command) {
        const int size = joined(session.sent).size();
        if (size >= bytes && size - command.size() < bytes)
            QVERIFY(Wiretap::waitForHangUp(socket));
    };
}

void mend(OutputSession& session)
{
    session.whenSent = nullptr;
    session.tap.connected = nullptr;
    session.takeSent();
}

} // namespace

/// Run and Stop when the instrument is not there or hangs up. After each, the next press works.
class TestEditorOutputFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void nobodyOnThePort();
    void pressedAgainWhileItWarns();
    void keysWhileItWarns();
    void connectionLostInRun_data();
    void connectionLostInRun();
    void connectionLostInStop_data();
    void connectionLostInStop();
    void resetWithoutInstrument();
    void resetNotWritten();
};

void TestEditorOutputFailures::cleanup()
{
    QFile::remove(WaveformPath);
}

void TestEditorOutputFailures::nobodyOnThePort()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QStringList& warnings = EditorHost::record().warnings;
    host.exec([&] {
        const auto pressRun = [&host] { FrontPanel::tap(host.button(EditorHost::Run)); };
        for (const bool checked : {true, false, true}) {
            warnings.clear();
            EditorHost::record().whileWarning = [&host] {
                QVERIFY(host.discardKeys() && host.blockScpi());
            };
            const int before = LogCapture::messages().size();
            pressRun();
            QCOMPARE(warnings, QStringList(Refused));
            // Beside the one line, nothing of the library's about the query that cannot be sent.
            QCOMPARE(warningsLogged(before), QStringList(errorLine("", "ConnectionRefusedError")));
            QCOMPARE(stateOf(host), (State{checked, RunText, {}}));
            QVERIFY(!host.discardKeys() && !host.blockScpi());
            QVERIFY(!waveformExists());
        }
        EditorHost::record().whileWarning = nullptr;
        warnings.clear();

        // The instrument comes. The press before was a Run, so that this is a Stop.
        ScriptedServer server({});
        server.answer("*IDN? \n", "Maker\n");
        pressRun();
        QCOMPARE(server.received(), joined(stopCommands()));
        QCOMPARE(stateOf(host), stopped());
        pressRun();
        QCOMPARE(server.received(), joined(stopCommands() + runCommands()));
        QCOMPARE(stateOf(host), running());
        QVERIFY(warnings.isEmpty());
    });
}

// A box that lets the user go on: the second press has its own end, and then the first its own.
void TestEditorOutputFailures::pressedAgainWhileItWarns()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    HostRecord& record = EditorHost::record();
    host.exec([&] {
        const auto pressRun = [&host] { FrontPanel::tap(host.button(EditorHost::Run)); };
        record.warnings.clear();
        record.whileWarning = [&] {
            if (record.warnings.size() == 1)
                pressRun();
        };
        pressRun();
        QCOMPARE(record.warnings, (QStringList{Refused, Refused}));
        QCOMPARE(stateOf(host), stopped());
        QVERIFY(!host.discardKeys() && !host.blockScpi());
        QCOMPARE(OutputSession::logged(Unlocked).size(), 2);

        // The instrument comes while the box stands: the second press then works.
        std::unique_ptr<ScriptedServer> server;
        record.warnings.clear();
        record.whileWarning = [&] {
            server = std::make_unique<ScriptedServer>(QVector<ScriptedServer::Turn>());
            server->answer("*IDN? \n", "Maker\n");
            pressRun();
        };
        pressRun();
        QCOMPARE(record.warnings, QStringList(Refused));
        QCOMPARE(server->received(), joined(stopCommands()));
        QCOMPARE(stateOf(host), stopped());
        QVERIFY(!host.discardKeys() && !host.blockScpi());
        pressRun();
        QCOMPARE(stateOf(host), running());
    });
}

void TestEditorOutputFailures::keysWhileItWarns()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    HostRecord& record = EditorHost::record();
    host.exec([&] {
        record.warnings.clear();
        const KeyWitness surface(host.surface());
        record.whileWarning = [&] {
            for (const int key : {int(QT_KEY_CH1ON), int(QT_KEY_HOME), int(QT_KEY_HELP)})
                FrontPanel::press(key);
        };
        FrontPanel::tap(host.button(EditorHost::Run));
        QCOMPARE(record.warnings, QStringList(Refused));
        QCOMPARE(OutputSession::logged(QStringLiteral("event tossing")).size(), 6);
        QVERIFY(surface.pressed.isEmpty() && surface.released.isEmpty());
        QCOMPARE(stateOf(host), (State{true, RunText, {}}));
        record.whileWarning = nullptr;
        FrontPanel::press(QT_KEY_CH1ON);
        QCOMPARE(stateOf(host), stopped());
    });
}

void TestEditorOutputFailures::connectionLostInRun_data()
{
    addCuts(runCommands());
}

void TestEditorOutputFailures::connectionLostInRun()
{
    QFETCH(int, bytes);
    const QByteArrayList commands = runCommands();
    const int count = commandsSent(commands, bytes);
    const bool allSent = count >= commands.size() - 1;
    OutputSession session;
    session.host.exec([&] {
        const int before = LogCapture::messages().size();
        cutAfter(session, bytes);
        const QByteArray received = session.server.received();
        session.pressRun();
        QCOMPARE(session.takeSent(), commands.mid(0, count));
        QCOMPARE(session.server.received(), received + joined(commands).left(bytes));
        QCOMPARE(warningsLogged(before),
                 allSent ? QStringList()
                         : QStringList(errorLine(commands.at(count), "RemoteHostClosedError")));
        QCOMPARE(stateOf(session.host),
                 (State{true, allSent ? StopText : RunText, lockedControls()}));
        QVERIFY(waveformExists());
        QVERIFY(session.flagsAreClear());
        QCOMPARE(OutputSession::logged(Unlocked, before).size(), 1);

        mend(session);
        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
        QVERIFY(session.flagsAreClear());
        session.pressRun();
        QCOMPARE(session.takeSent(), commands);
        QCOMPARE(stateOf(session.host), running());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutputFailures::connectionLostInStop_data()
{
    addCuts(stopCommands());
}

void TestEditorOutputFailures::connectionLostInStop()
{
    QFETCH(int, bytes);
    const QByteArrayList commands = stopCommands();
    const int count = commandsSent(commands, bytes);
    const bool allSent = count >= commands.size() - 1;
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        const int before = LogCapture::messages().size();
        cutAfter(session, bytes);
        const QByteArray received = session.server.received();
        session.pressRun();
        QCOMPARE(session.takeSent(), commands.mid(0, count));
        QCOMPARE(session.server.received(), received + joined(commands).left(bytes));
        QCOMPARE(warningsLogged(before),
                 allSent ? QStringList()
                         : QStringList(errorLine(commands.at(count), "RemoteHostClosedError")));
        QCOMPARE(stateOf(session.host),
                 allSent ? stopped() : (State{false, StopText, lockedControls()}));
        // The file is kept as long as the output may still play it.
        QCOMPARE(waveformExists(), count == 0);
        QVERIFY(session.flagsAreClear());
        QCOMPARE(OutputSession::logged(Unlocked, before).size(), 1);

        mend(session);
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(waveformExists());
        session.pressRun();
        QCOMPARE(session.takeSent(), commands);
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutputFailures::resetWithoutInstrument()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    EditorHost::record().warnings.clear();
    const int before = LogCapture::messages().size();
    host.exec([&] {
        QCOMPARE(EditorHost::record().warnings, QStringList(Refused));
        QVERIFY(LogCapture::messages().mid(before).contains(QStringLiteral("info: App sent *RST")));
        QCOMPARE(stateOf(host), stopped());
        QVERIFY(!host.discardKeys() && !host.blockScpi());
    });
}

void TestEditorOutputFailures::resetNotWritten()
{
    OutputSession session;
    cutAfter(session, 0);
    session.host.exec([&] {
        QCOMPARE(EditorHost::record().warnings,
                 QStringList(QStringLiteral("Failed writing *RST to port:30000, reason:The remote "
                                            "host closed the connection")));
        QCOMPARE(session.takeSent(), QByteArrayList());
        QVERIFY(LogCapture::messages().contains(QStringLiteral("info: App sent *RST")));
        EditorHost::record().warnings.clear();
        mend(session);
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

QTEST_MAIN(TestEditorOutputFailures)
#include "test_editoroutputfailures.moc"
