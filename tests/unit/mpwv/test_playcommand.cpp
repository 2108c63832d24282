// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"

#include "logcapture.h"
#include "scriptedinstrument.h"

#include <QImage>

class TestPlayCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }

    void play();
    void playWithOtherLoad();
    void playIntoTheFixedFolder();
    void playWarns();
    void playKeepsItsInput();
    void playReportsErrors();
    void playWithoutErrorQueue();
    void playTriggers();
    void playLeavesTheTimerAlone();
    void playAccount();
    void playAccountOfAFault();
    void playTrace_data();
    void playTrace();
    void playBeforeAnyBurst();
    void playNobodyThere();
    void playConnectionLost_data();
    void playConnectionLost();
    void playFolderMissing();
    void playRefusesInput();
};

void TestPlayCommand::play()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    const Ran ran =
        ranWith(runPlay, QStringList(QStringLiteral("-")) + folder.option, setup.json());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, "wrote " + folder.runFile.toUtf8() +
                          "\nsent 15 commands to 127.0.0.1:30000, which confirms: "
                          "Maker,KVX70302,SN1,1.0\n");
    QCOMPARE(server.received(), runBytes(setup) + "SYSTem:ERRor?\n");
    QVERIFY(server.waitForGone(2));
    QCOMPARE(server.accepted(), 2);
    QCOMPARE(QFileInfo(folder.runFile).size(), qint64(512 + 2 * 131070));
    QCOMPARE(QDir(folder.directory.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("run.mpwv")));
}

void TestPlayCommand::playWithOtherLoad()
{
    TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    const QStringList arguments =
        QStringList{QStringLiteral("-"), QStringLiteral("--load=hi-z")} + folder.option;
    QCOMPARE(ranWith(runPlay, arguments, setup.json()).exitCode, int(ExitOk));
    QVERIFY(server.received().contains("OUTput1:IMPedance 10000\n"));
    appPlugins::WaveformFile file;
    QCOMPARE(appPlugins::readWaveform(folder.runFile, file), QString());
    QCOMPARE(file.header.ampValue, 1.0);
}

void TestPlayCommand::playIntoTheFixedFolder()
{
    const TestSetup setup = TestSetup::doublePulse();
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    QCOMPARE(ranWith(runPlay, {QStringLiteral("-")}, setup.json()).exitCode, int(ExitOk));
    QVERIFY(QFile::remove(QStringLiteral("/mnt/user-data/run.mpwv")));
}

void TestPlayCommand::playWarns()
{
    TestSetup setup = TestSetup::doublePulse();
    setup.slope = 2;
    Folder folder;
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    const Ran ran =
        ranWith(runPlay, QStringList(QStringLiteral("-")) + folder.option, setup.json());
    QCOMPARE(ran.err, QByteArray("mpwv: warning: -: multiple pulses.trigger slope: 2 is outside 0 "
                                 "to 1\n"));
    QCOMPARE(ran.exitCode, int(ExitOk));
}

void TestPlayCommand::playKeepsItsInput()
{
    Folder folder;
    const QByteArray json = TestSetup::doublePulse().json();
    const QString path = folder.directory.filePath(QStringLiteral("a.csv"));
    writeFile(path, json);
    writeFile(folder.runFile, json);
    const Ran traced =
        ranWith(runPlay, QStringList{path, QStringLiteral("--trace"), path} + folder.option);
    QCOMPARE(traced.exitCode, int(ExitUsage));
    QVERIFY(traced.err.startsWith("mpwv: play: " + path.toUtf8() + " is the input and would be "));
    QCOMPARE(ranWith(runPlay, QStringList(folder.runFile) + folder.option).exitCode,
             int(ExitUsage));
    QCOMPARE(contentOf(path), json);
    QCOMPARE(contentOf(folder.runFile), json);
}

void TestPlayCommand::playReportsErrors()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    Script script = runScript(setup);
    script.last() = reply("-256,\"File name not found\"\n");
    script << reply("-222,\"Data out of range\"\n") << reply(NoError);
    ScriptedServer server(script);
    expectHeaderWarning();
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--trigger")} + folder.option,
        setup.json());
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(
        ran.err,
        QByteArray("mpwv: 127.0.0.1:30000: the instrument reports -256,\"File name not found\"\n"
                   "mpwv: 127.0.0.1:30000: the instrument reports -222,\"Data out of range\"\n"
                   "mpwv: the output is on; 'mpwv stop' switches it off\n"));
    QCOMPARE(ran.out, "wrote " + folder.runFile.toUtf8() + '\n');
    // What has not been understood is not triggered.
    QVERIFY(!server.received().contains("*TRG"));
}

void TestPlayCommand::playWithoutErrorQueue()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    Script script = runScript(setup);
    script.last() = reply("hello\n");
    ScriptedServer server(script);
    expectHeaderWarning();
    const Ran ran =
        ranWith(runPlay, QStringList(QStringLiteral("-")) + folder.option, setup.json());
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(ran.err,
             QByteArray("mpwv: 127.0.0.1:30000: SYSTem:ERRor?: \"hello\" is no entry of an "
                        "error queue\nmpwv: the output is on; 'mpwv stop' switches it off\n"));
}

void TestPlayCommand::playTriggers()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    ScriptedServer server(runScript(setup) + silence(1) << reply(NoError));
    expectHeaderWarning();
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--trigger")} + folder.option,
        setup.json());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QVERIFY(ran.out.endsWith("\ntriggered one burst\n"));
    QCOMPARE(server.received(), runBytes(setup) + "SYSTem:ERRor?\n*TRG\nSYSTem:ERRor?\n");
}

void TestPlayCommand::playLeavesTheTimerAlone()
{
    TestSetup setup = TestSetup::doublePulse();
    setup.source = TriggerTimer;
    Folder folder;
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--trigger")} + folder.option,
        setup.json());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(server.received(), runBytes(setup) + "SYSTem:ERRor?\n");
}

void TestPlayCommand::playAccount()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    expectHeaderWarning(3);
    ScriptedServer server(runScript(setup) + traceScript(setup));
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--account")} + folder.option,
        setup.json());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QVERIFY2(ran.out.endsWith("one sample: 0.2594 ns\nvolts: -1.0000 to 1.0000\n"
                              "setup: agreeing to one sample\n"
                              "file: played as it is, to one sample\n"),
             ran.out.constData());
    QVERIFY(ran.out.contains("\n1             10.0000    10.0000 "));
    QVERIFY(ran.out.contains("\n2             22.0000    22.0000 "));
}

void TestPlayCommand::playAccountOfAFault()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    expectHeaderWarning(3);
    // The first pulse, points 38550 to 46259, loses its last 100 points.
    ScriptedServer server(runScript(setup) + traceScript(setup, 46160, 46260));
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--account")} + folder.option,
        setup.json());
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QVERIFY2(
        ran.out.endsWith(
            "file: not played as it is: pulse 1 is 100.0 samples from where the file has it\n"),
        ran.out.constData());
}

void TestPlayCommand::playTrace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("numbers") << QStringLiteral("trace.csv") << QByteArray("time_s,volts\n0,-1\n");
    QTest::newRow("drawing") << QStringLiteral("trace.svg") << QByteArray("<?xml");
    QTest::newRow("picture") << QStringLiteral("trace.png") << QByteArray("\x89PNG");
}

void TestPlayCommand::playTrace()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, start);
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    const QString path = folder.directory.filePath(name);
    expectHeaderWarning(2);
    ScriptedServer server(runScript(setup) + traceScript(setup));
    const QStringList arguments =
        QStringList{QStringLiteral("-"), QStringLiteral("--trace"), path} + folder.option;
    const Ran ran = ranWith(runPlay, arguments, setup.json());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QVERIFY(ran.out.endsWith("wrote " + path.toUtf8() + '\n'));
    QCOMPARE(contentOf(path).left(start.size()), start);
}

void TestPlayCommand::playBeforeAnyBurst()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    ScriptedServer server(runScript(setup) + silence(1) << reply(NoError) << reply("0\n"));
    expectHeaderWarning();
    const Ran ran = ranWith(
        runPlay, QStringList{QStringLiteral("-"), QStringLiteral("--account")} + folder.option,
        setup.json());
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(ran.err, QByteArray("mpwv: 127.0.0.1:30000: channel 1 has played no burst\n"
                                 "mpwv: the output is on; 'mpwv stop' switches it off\n"));
}

void TestPlayCommand::playNobodyThere()
{
    Folder folder;
    const Ran ran = ranWith(runPlay, QStringList(QStringLiteral("-")) + folder.option,
                            TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(ran.err,
             QByteArray("mpwv: 127.0.0.1:30000: no connection to the instrument: Connection "
                        "refused\n"));
    // Nothing has changed without an instrument.
    QVERIFY(!QFile::exists(folder.runFile));
}

void TestPlayCommand::playConnectionLost_data()
{
    QTest::addColumn<int>("line");
    for (const int line : {0, 1, 7, 14, 15, 16})
        QTest::addRow("at line %d", line) << line;
}

void TestPlayCommand::playConnectionLost()
{
    QFETCH(int, line);
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    Script script = runScript(setup);
    script[line] = closing();
    ScriptedServer server(script);
    // Whether the socket complains about being used after its end is a matter of moments.
    Ran ran;
    {
        const LogCapture log;
        ran = ranWith(runPlay, QStringList(QStringLiteral("-")) + folder.option, setup.json());
    }
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    // A command that is on its way when the instrument hangs up counts as sent, so that the loss
    // shows at a later one, or at the closing query.
    const QRegularExpression form(QStringLiteral(
        "^mpwv: 127\\.0\\.0\\.1:30000: (the connection was lost at the command "
        "\"[^\"]+.*\"|the instrument does not confirm: no reply to the closing query|"
        "SYSTem:ERRor\\?: no reply): [A-Z][^\n]+\n"
        "mpwv: the output (is|may be) on; 'mpwv stop' switches it off\n$"));
    QVERIFY2(form.match(QString::fromUtf8(ran.err)).hasMatch(), ran.err.constData());
    QCOMPARE(ran.err.contains("SYSTem:ERRor"), line == 16);
    QCOMPARE(ran.err.contains("output is on"), line == 16);
}

void TestPlayCommand::playFolderMissing()
{
    const TestSetup setup = TestSetup::doublePulse();
    Folder folder;
    const QString missing = folder.directory.filePath(QStringLiteral("missing"));
    ScriptedServer server({});
    const Ran ran = ranWith(runPlay, {QStringLiteral("-"), QStringLiteral("--user-data"), missing},
                            setup.json());
    QCOMPARE(ran.exitCode, int(ExitOutput));
    QVERIFY2(ran.err.startsWith("mpwv: " + missing.toUtf8() + "/run.mpwv: "), ran.err.constData());
    QVERIFY(server.waitForGone(1));
    QCOMPARE(server.received(), QByteArray());
}

void TestPlayCommand::playRefusesInput()
{
    const Ran ran = ranWith(runPlay, {QStringLiteral("-")}, "{}");
    QCOMPARE(ran.exitCode, int(ExitInput));
    QVERIFY(ran.err.startsWith("mpwv: standard input: not a setup"));
}

QTEST_MAIN(TestPlayCommand)
#include "test_playcommand.moc"
