// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "runsequence.h"

#include "documents.h"

#include <QtTest>

namespace {

const char DefaultCells[] = "2.000u 10.000u, 2.000u 10.000u";

QVector<QByteArray> commandsOf(const QJsonObject& document)
{
    return RunSequence::runCommands(PulseTrain::fromDocument(document));
}

// The commands that carry the word.
QVector<QByteArray> withWord(const QVector<QByteArray>& commands, const char* word)
{
    QVector<QByteArray> found;
    for (const QByteArray& command : commands) {
        if (command.contains(word))
            found.append(command);
    }
    return found;
}

QVector<QByteArray> triggerCommands(const QByteArray& members)
{
    return withWord(commandsOf(Documents::train(DefaultCells, "1e-05", members)), "TRIGger");
}

} // namespace

class TestRunSequence : public QObject
{
    Q_OBJECT

private slots:
    void wholeSequence();
    void wholeSequenceWithTimer();
    void triggers_data();
    void triggers();
    void timerPeriods_data();
    void timerPeriods();
    void frequencies_data();
    void frequencies();
    void impedances_data();
    void impedances();
    void impedanceOfALoad();
    void levelsAreNotSent();
    void stopAndReset();
};

void TestRunSequence::wholeSequence()
{
    const QVector<QByteArray> expected = {
        "OUTP1 OFF \n",
        "OUTP2 OFF \n",
        "*CLS \n",
        "*RST \n",
        "source1:BURSt  ON \n",
        "source1:function emem \n",
        "function:EFile \"M:/run.mpwv\"\n",
        "function:Shape EFILe \n",
        "source1:burst:ncycles 1 \n",
        "source1:burst:TDELay 0\n",
        "OUTput1:IMPedance 50\n",
        "SOURce1:FREQuency:FIXed 29411.764705999998114\n",
        "TRIGger:SOURce EXTERNAL \n",
        "TRIGger:SLOPE POSitive \n",
        "OUTP1 ON \n",
    };
    QCOMPARE(commandsOf(Documents::train(DefaultCells)), expected);
}

void TestRunSequence::wholeSequenceWithTimer()
{
    const QVector<QByteArray> expected = {
        "OUTP1 OFF \n",
        "OUTP2 OFF \n",
        "*CLS \n",
        "*RST \n",
        "source1:BURSt  ON \n",
        "source1:function emem \n",
        "function:EFile \"M:/run.mpwv\"\n",
        "function:Shape EFILe \n",
        "source1:burst:ncycles 1 \n",
        "source1:burst:TDELay 0\n",
        "OUTput1:IMPedance 10000\n",
        "SOURce1:FREQuency:FIXed inf\n",
        "TRIGger:SOURce TIMER\n",
        "TRIGger:TIMER 0.001\n",
        "OUTP1 ON \n",
    };
    QCOMPARE(commandsOf(Documents::fromText(
                 "{\"trigger source\": 2, \"trigger slope\": 1, \"load impedance\": 10000,"
                 "\"trigger timer\": {\"value\": 0.001}}")),
             expected);
}

void TestRunSequence::triggers_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("detail");
    const auto row = [](const char* name, int source, int slope, const char* command) {
        QTest::newRow(name) << QByteArrayLiteral("\"trigger source\": ") +
                                   QByteArray::number(source) +
                                   ", \"trigger slope\": " + QByteArray::number(slope)
                            << QByteArray(source == 2 ? "TRIGger:SOURce TIMER\n"
                                                      : "TRIGger:SOURce EXTERNAL \n")
                            << QByteArray(command);
    };
    const char positive[] = "TRIGger:SLOPE POSitive \n";
    const char negative[] = "TRIGger:SLOPE NEGative \n";
    row("manual", 0, 0, positive);
    row("manual, negative", 0, 1, negative);
    row("external", 1, 0, positive);
    row("external, negative", 1, 1, negative);
    row("slope 2", 1, 2, negative);
    row("slope -1", 0, -1, negative);
    row("unknown source", 3, 0, positive);
    row("negative source", -2, 1, negative);
    row("timer", 2, 0, "TRIGger:TIMER 0\n");
    row("timer needs no slope", 2, 1, "TRIGger:TIMER 0\n");
}

void TestRunSequence::triggers()
{
    QFETCH(QByteArray, members);
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, detail);
    QCOMPARE(triggerCommands(members), (QVector<QByteArray>{source, detail}));
}

void TestRunSequence::timerPeriods_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("default") << QByteArray("0.001") << QByteArray("0.001");
    QTest::newRow("shortest") << QByteArray("2e-06") << QByteArray("2e-06");
    QTest::newRow("longest") << QByteArray("500") << QByteArray("500");
    QTest::newRow("off the grid") << QByteArray("0.00100004") << QByteArray("0.001");
    QTest::newRow("half a step") << QByteArray("2.05e-06") << QByteArray("2.1e-06");
    QTest::newRow("six digits") << QByteArray("123.4567891") << QByteArray("123.457");
    QTest::newRow("exponent") << QByteArray("1.23e-05") << QByteArray("1.23e-05");
    QTest::newRow("large") << QByteArray("1000000") << QByteArray("1e+06");
    QTest::newRow("text") << QByteArray("\"1\"") << QByteArray("0");
}

void TestRunSequence::timerPeriods()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, sent);
    const QVector<QByteArray> commands =
        triggerCommands("\"trigger source\": 2, \"trigger timer\": {\"value\": " + stored + "}");
    QCOMPARE(commands.last(), "TRIGger:TIMER " + sent + "\n");
}

void TestRunSequence::frequencies_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<QByteArray>("hertz");
    QTest::newRow("no rows: the delay alone") << Documents::train("") << QByteArray("100000");
    QTest::newRow("zero period") << Documents::train("", "0") << QByteArray("inf");
    QTest::newRow("edges count") << Documents::train(
                                        "2.000u 10.000u, 3.500u 10.000u", "1e-05",
                                        "\"pulse leading\": 1e-07, \"pulse trailing\": 3e-07")
                                 << QByteArray("27548.209365999999136");
    QTest::newRow("delay on its grid")
        << Documents::train("", "1.00004e-05") << QByteArray("99996.000159999995958");
    QTest::newRow("longest delay")
        << Documents::train("", "0.00015") << QByteArray("6666.6666669999995065");
    QTest::newRow("one nanosecond")
        << Documents::train("1.000n 0.000n", "0") << QByteArray("1000000000.0000009537");
}

void TestRunSequence::frequencies()
{
    QFETCH(QJsonObject, document);
    QFETCH(QByteArray, hertz);
    QCOMPARE(withWord(commandsOf(document), "FREQuency"),
             (QVector<QByteArray>{"SOURce1:FREQuency:FIXed " + hertz + "\n"}));
}

void TestRunSequence::impedances_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("50") << QByteArray("50") << QByteArray("50");
    QTest::newRow("75") << QByteArray("75") << QByteArray("50");
    QTest::newRow("101") << QByteArray("101") << QByteArray("10000");
    QTest::newRow("10000") << QByteArray("10000") << QByteArray("10000");
}

void TestRunSequence::impedances()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, sent);
    const QJsonObject document =
        Documents::train(DefaultCells, "1e-05", "\"load impedance\": " + stored);
    QCOMPARE(withWord(commandsOf(document), "IMPedance"),
             (QVector<QByteArray>{"OUTput1:IMPedance " + sent + "\n"}));
}

void TestRunSequence::impedanceOfALoad()
{
    QCOMPARE(RunSequence::impedanceCommand(LoadImpedance::Ohm50),
             QByteArray("OUTput1:IMPedance 50\n"));
    QCOMPARE(RunSequence::impedanceCommand(LoadImpedance::HighZ),
             QByteArray("OUTput1:IMPedance 10000\n"));
}

void TestRunSequence::levelsAreNotSent()
{
    QJsonObject document = Documents::train(DefaultCells);
    const QVector<QByteArray> commands = commandsOf(document);
    QJsonObject members = document.value(QLatin1String("multiple pulses")).toObject();
    members.remove(QStringLiteral("voltage"));
    document.insert(QStringLiteral("multiple pulses"), members);
    QCOMPARE(commandsOf(document), commands);
}

void TestRunSequence::stopAndReset()
{
    QCOMPARE(RunSequence::stopCommandsBeforeDelete(), (QVector<QByteArray>{"OUTP1 OFF \n"}));
    QCOMPARE(RunSequence::stopCommandsAfterDelete(), (QVector<QByteArray>{"*RST \n"}));
    QCOMPARE(QByteArray(RunSequence::ClosingQuery), QByteArray("*IDN? \n"));
    QCOMPARE(QByteArray(RunSequence::Reset), QByteArray("*RST\n"));
    QCOMPARE(QByteArray(RunSequence::WaveformPath), QByteArray("/mnt/user-data/run.mpwv"));
}

QTEST_APPLESS_MAIN(TestRunSequence)

#include "test_runsequence.moc"
