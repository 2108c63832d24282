// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"

#include "logcapture.h"
#include "outputwaveform.h"
#include "ranwith.h"
#include "runsequence.h"
#include "scriptedserver.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

namespace {

using Script = QVector<ScriptedServer::Turn>;

const char Identity[] = "Maker,KVX70302,SN1,1.0\n";
const char NoError[] = "0,\"No error\"\n";

Script silence(int lines)
{
    return Script(lines);
}

ScriptedServer::Turn reply(const QByteArray& bytes)
{
    return {{bytes}, false};
}

ScriptedServer::Turn closing()
{
    return {{}, true};
}

QByteArray joined(const QVector<QByteArray>& commands)
{
    QByteArray bytes;
    for (const QByteArray& command : commands)
        bytes += command;
    return bytes;
}

QByteArray runBytes(const TestSetup& setup)
{
    return joined(RunSequence::runCommands(setup.train())) + "*IDN? \n";
}

// Answers of an instrument that has taken the run's commands and has no error.
Script runScript(const TestSetup& setup)
{
    Script script = silence(RunSequence::runCommands(setup.train()).size());
    script << reply(Identity) << reply(NoError);
    return script;
}

// The queue after the trigger, and the trace of what the setup's file holds, with a hole where
// samples are put at the base.
Script traceScript(const TestSetup& setup, int holeBegin = 0, int holeEnd = 0)
{
    OutputWaveform waveform;
    const QString reason = outputOfTrain(setup.train(), waveform);
    if (!reason.isEmpty())
        qFatal("%s", qPrintable(reason));
    const int count = int(waveform.volts.size());
    QByteArray data(2 * count, Qt::Uninitialized);
    for (int i = 0; i < count; ++i) {
        const double volts = i >= holeBegin && i < holeEnd ? -1 : waveform.volts[size_t(i)];
        qToBigEndian<qint16>(qint16(volts * 10000), data.data() + 2 * i);
    }
    const QByteArray length = QByteArray::number(data.size());
    return silence(1) << reply(NoError) << reply(QByteArray::number(count) + '\n')
                      << reply(QByteArray::number(waveform.step, 'g', 17) + '\n') << reply("0\n")
                      << reply("1E-4\n") << reply("0\n") << reply("NORM\n")
                      << reply('#' + QByteArray::number(length.size()) + length + data + '\n');
}

struct Folder
{
    QTemporaryDir directory;
    QString runFile = directory.filePath(QStringLiteral("run.mpwv"));
    QStringList option = {QStringLiteral("--user-data"), directory.path()};
};

} // namespace

class TestInstrumentCommands : public QObject
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

    void stop();
    void stopWithoutFile();
    void stopFileStays();
    void stopConnectionLost();

    void identify_data();
    void identify();
    void identifyNoReply();

    void usage_data();
    void usage();
};

void TestInstrumentCommands::play()
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

void TestInstrumentCommands::playWithOtherLoad()
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

void TestInstrumentCommands::playIntoTheFixedFolder()
{
    const TestSetup setup = TestSetup::doublePulse();
    ScriptedServer server(runScript(setup));
    expectHeaderWarning();
    QCOMPARE(ranWith(runPlay, {QStringLiteral("-")}, setup.json()).exitCode, int(ExitOk));
    QVERIFY(QFile::remove(QStringLiteral("/mnt/user-data/run.mpwv")));
}

void TestInstrumentCommands::playWarns()
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

void TestInstrumentCommands::playKeepsItsInput()
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

void TestInstrumentCommands::playReportsErrors()
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

void TestInstrumentCommands::playWithoutErrorQueue()
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

void TestInstrumentCommands::playTriggers()
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

void TestInstrumentCommands::playLeavesTheTimerAlone()
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

void TestInstrumentCommands::playAccount()
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

void TestInstrumentCommands::playAccountOfAFault()
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

void TestInstrumentCommands::playTrace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("numbers") << QStringLiteral("trace.csv") << QByteArray("time_s,volts\n0,-1\n");
    QTest::newRow("drawing") << QStringLiteral("trace.svg") << QByteArray("<?xml");
    QTest::newRow("picture") << QStringLiteral("trace.png") << QByteArray("\x89PNG");
}

void TestInstrumentCommands::playTrace()
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

void TestInstrumentCommands::playBeforeAnyBurst()
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

void TestInstrumentCommands::playNobodyThere()
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

void TestInstrumentCommands::playConnectionLost_data()
{
    QTest::addColumn<int>("line");
    for (const int line : {0, 1, 7, 14, 15, 16})
        QTest::addRow("at line %d", line) << line;
}

void TestInstrumentCommands::playConnectionLost()
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

void TestInstrumentCommands::playFolderMissing()
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

void TestInstrumentCommands::playRefusesInput()
{
    const Ran ran = ranWith(runPlay, {QStringLiteral("-")}, "{}");
    QCOMPARE(ran.exitCode, int(ExitInput));
    QVERIFY(ran.err.startsWith("mpwv: standard input: not a setup"));
}

void TestInstrumentCommands::stop()
{
    Folder folder;
    writeFile(folder.runFile, "anything");
    ScriptedServer server(silence(2) << reply(Identity));
    const Ran ran = ranWith(runStop, folder.option);
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, folder.runFile.toUtf8() + ": deleted\nthe output is off\n");
    QCOMPARE(server.received(), QByteArray("OUTP1 OFF \n*RST \n*IDN? \n"));
    QVERIFY(!QFile::exists(folder.runFile));
}

void TestInstrumentCommands::stopWithoutFile()
{
    Folder folder;
    ScriptedServer server(silence(2) << reply(Identity));
    const Ran ran = ranWith(runStop, folder.option);
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, folder.runFile.toUtf8() + ": was not there\nthe output is off\n");
}

// A folder of that name cannot be deleted as a file; the output goes off all the same.
void TestInstrumentCommands::stopFileStays()
{
    Folder folder;
    QVERIFY(QDir().mkdir(folder.runFile));
    ScriptedServer server(silence(2) << reply(Identity));
    const Ran ran = ranWith(runStop, folder.option);
    QCOMPARE(ran.exitCode, int(ExitOutput));
    QVERIFY2(ran.err.startsWith("mpwv: " + folder.runFile.toUtf8() + ": "), ran.err.constData());
    QCOMPARE(ran.out, QByteArray("the output is off\n"));
    QCOMPARE(server.received(), QByteArray("OUTP1 OFF \n*RST \n*IDN? \n"));
}

void TestInstrumentCommands::stopConnectionLost()
{
    Folder folder;
    ScriptedServer server(silence(2) << closing());
    const Ran ran = ranWith(runStop, folder.option);
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(ran.err,
             QByteArray("mpwv: 127.0.0.1:30000: the instrument does not confirm: no reply to the "
                        "closing query: The remote host closed the connection\n"));
}

void TestInstrumentCommands::identify_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("err");
    const QByteArray unknown = "the limits are those that are taken for unknown models\n";
    QTest::newRow("large family")
        << QByteArray("Maker,KVX70501,SN1,1.0\n")
        << QByteArray(
               "reply:      Maker,KVX70501,SN1,1.0\nmodel:      KVX70501\n"
               "family:     KVX705XX\namplitude:  0.001 to 5 Vpp\nlevels:     -2.5 to 2.5 V\n"
               "sampling:   2000000000 samples/s\nmemory:     1048576 points\n")
        << QByteArray();
    QTest::newRow("default family is a known one")
        << QByteArray("Maker,KVX70102,SN1,1.0\n")
        << QByteArray("reply:      Maker,KVX70102,SN1,1.0\nmodel:      KVX70102\n"
                      "family:     KVX7010X\namplitude:  0.001 to 10 Vpp\nlevels:     -5 to 5 V\n"
                      "sampling:   250000000 samples/s\nmemory:     1048576 points\n")
        << QByteArray();
    QTest::newRow("unknown model")
        << QByteArray("Maker,KVX99999,SN1,1.0\n")
        << QByteArray("reply:      Maker,KVX99999,SN1,1.0\nmodel:      KVX99999\n"
                      "family:     KVX7010X\namplitude:  0.001 to 10 Vpp\nlevels:     -5 to 5 V\n"
                      "sampling:   250000000 samples/s\nmemory:     1048576 points\n")
        << "mpwv: the model \"KVX99999\" is not known: " + unknown;
    QTest::newRow("rubbish")
        << QByteArray("\x01rub\n")
        << QByteArray("reply:      \\u0001rub\nmodel:      \\u0001rub\n"
                      "family:     KVX7010X\namplitude:  0.001 to 10 Vpp\nlevels:     -5 to 5 V\n"
                      "sampling:   250000000 samples/s\nmemory:     1048576 points\n")
        << "mpwv: the model \"\\u0001rub\" is not known: " + unknown;
}

void TestInstrumentCommands::identify()
{
    QFETCH(QByteArray, answer);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, err);
    ScriptedServer server({reply(answer)});
    const Ran ran = ranWith(runIdentify, {});
    QCOMPARE(ran.out, out);
    QCOMPARE(ran.err, err);
    QCOMPARE(ran.exitCode, int(err.isEmpty() ? ExitOk : ExitInstrument));
    QCOMPARE(server.received(), QByteArray("*IDN?\n"));
}

void TestInstrumentCommands::identifyNoReply()
{
    ScriptedServer server({closing()}, ScriptedServer::Serve, 30007);
    const Ran ran =
        ranWith(runIdentify, {QStringLiteral("--port=30007"), QStringLiteral("--host=localhost")});
    QCOMPARE(ran.exitCode, int(ExitInstrument));
    QCOMPARE(ran.out, QByteArray());
    QCOMPARE(ran.err,
             QByteArray("mpwv: 127.0.0.1:30007: *IDN?: no reply: The remote host closed the "
                        "connection\n"));
}

void TestInstrumentCommands::usage_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, int command, const QStringList& arguments,
                        const char* complaint) {
        QTest::newRow(name) << command << arguments << QByteArray(complaint);
    };
    row("play nothing", 0, {}, "play: too few arguments");
    row("play two", 0, {QStringLiteral("a"), QStringLiteral("b")},
        "play: one argument too many: b");
    row("trace of no kind", 0, {QStringLiteral("-"), QStringLiteral("--trace=a.pdf")},
        "play: --trace a.pdf: the name ends in none of .svg, .png and .csv");
    row("port no number", 0, {QStringLiteral("-"), QStringLiteral("--port=http")},
        "play: --port: \"http\" is no number from 1 to 65535");
    row("port zero", 1, {QStringLiteral("--port=0")},
        "stop: --port: \"0\" is no number from 1 to 65535");
    row("port too large", 2, {QStringLiteral("--port=65536")},
        "identify: --port: \"65536\" is no number from 1 to 65535");
    row("stop with argument", 1, {QStringLiteral("x")}, "stop: one argument too many: x");
    row("no such host", 2, {QStringLiteral("--host=no.such.host.invalid")},
        "identify: --host: \"no.such.host.invalid\" is not known");
}

void TestInstrumentCommands::usage()
{
    QFETCH(int, command);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const CommandFunction commands[] = {runPlay, runStop, runIdentify};
    const Ran ran = ranWith(commands[command], arguments, TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitUsage));
    QCOMPARE(ran.out, QByteArray());
    QCOMPARE(ran.err.split('\n').at(0), "mpwv: " + complaint);
}

QTEST_MAIN(TestInstrumentCommands)
#include "test_instrumentcommands.moc"
