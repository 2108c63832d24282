// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"

#include "logcapture.h"
#include "scriptedinstrument.h"

class TestInstrumentCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }

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