// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

/// "mpwv commands": the sequence of Run and Stop.
class TestCommandsCommand : public QObject
{
    Q_OBJECT

private slots:
    void printsRun();
    void printsRawBytes();
    void printsStop();
    void takesAnotherLoad();
    void refuses();
};

// 34 us: 29411764706 steps of 1e-06 Hz, written with the digits of the double.
void TestCommandsCommand::printsRun()
{
    const CommandResult result =
        runWith(runCommands, {QStringLiteral("-")}, jsonText(defaultSetup()));
    QCOMPARE(result.exitCode, int(ExitOk));
    const QString expected =
        QStringLiteral("OUTP1_OFF_$\nOUTP2_OFF_$\n*CLS_$\n*RST_$\nsource1:BURSt__ON_$\n"
                       "source1:function_emem_$\nfunction:EFile_\"M:/run.mpwv\"$\n"
                       "function:Shape_EFILe_$\nsource1:burst:ncycles_1_$\n"
                       "source1:burst:TDELay_0$\nOUTput1:IMPedance_50$\n"
                       "SOURce1:FREQuency:FIXed_29411.764705999998114$\n"
                       "TRIGger:SOURce_EXTERNAL_$\nTRIGger:SLOPE_POSitive_$\nOUTP1_ON_$\n"
                       "*IDN?_$\n");
    QString shown = QString::fromUtf8(result.out);
    shown.replace(QChar(0x2423), QLatin1Char('_')).replace(QChar(0x23CE), QLatin1Char('$'));
    QCOMPARE(shown, expected);
}

void TestCommandsCommand::printsRawBytes()
{
    const QJsonObject timer = withMember(defaultSetup(), SetupKey::TriggerSource, 2);
    const CommandResult result =
        runWith(runCommands, {QStringLiteral("--raw"), QStringLiteral("-")}, jsonText(timer));
    QVERIFY(result.out.startsWith("OUTP1 OFF \nOUTP2 OFF \n*CLS \n*RST \nsource1:BURSt  ON \n"));
    QVERIFY(result.out.endsWith("TRIGger:SOURce TIMER\nTRIGger:TIMER 0.001\nOUTP1 ON \n*IDN? \n"));
}

void TestCommandsCommand::printsStop()
{
    const CommandResult result =
        runWith(runCommands, {QStringLiteral("--stop"), QStringLiteral("--raw")});
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(result.out, QByteArray("OUTP1 OFF \n*RST \n*IDN? \n"));
}

void TestCommandsCommand::takesAnotherLoad()
{
    const QStringList arguments = {QStringLiteral("--load"), QStringLiteral("hi-z"),
                                   QStringLiteral("--raw"), QStringLiteral("-")};
    const CommandResult result = runWith(runCommands, arguments, jsonText(defaultSetup()));
    QVERIFY(result.out.contains("\nOUTput1:IMPedance 10000\n"));
}

void TestCommandsCommand::refuses()
{
    QCOMPARE(runWith(runCommands, {}).exitCode, int(ExitUsage));
    for (const char* argument : {"-", "--load=50"}) {
        const CommandResult stop =
            runWith(runCommands, {QStringLiteral("--stop"), QLatin1String(argument)},
                    jsonText(defaultSetup()));
        QCOMPARE(stop.exitCode, int(ExitUsage));
        QCOMPARE(stop.out, QByteArray());
        QVERIFY(stop.err.startsWith("mpwv: commands: --stop is the same for every setup and load"));
    }
    const CommandResult result = runWith(runCommands, {QStringLiteral("-")}, "[]");
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.out, QByteArray());
}

QTEST_GUILESS_MAIN(TestCommandsCommand)
#include "test_commandscommand.moc"
