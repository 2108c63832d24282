// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiinstrument.h"

#include "scpifixture.h"

#include <QTest>

class TestScpiInstrument : public QObject
{
    Q_OBJECT

private slots:
    void replies_data();
    void replies();
    void errors_data();
    void errors();
    void errorDetails_data();
    void errorDetails();
    void operationCondition();
    void resetKeepsStatus();
    void clearStatus();
    void triggerReachesDevice();
    void lostTriggerIsAnError();
    void eventBits_data();
    void eventBits();
    void overflowSetsDeviceError();
    void detailReachesQueue();
    void groupsAreWired();
    void deviceWithoutFunctions();
    void endlessRepliesAreRefused();
};

void TestScpiInstrument::replies_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("reply");

    const auto row = [](const char* message, const char* reply) {
        QTest::newRow(message) << QByteArray(message) << QByteArray(reply);
    };
    row("", "");
    row("*IDN?", "Maker,KVX70102,S1,1.0\n");
    row("*idn? ", "Maker,KVX70102,S1,1.0\n");
    row("*TST?", "0\n");
    row("*OPC?", "1\n");
    row("*OPC", "");
    row("*OPC;*ESR?", "129\n");
    row("*ESR?;*ESR?", "128;0\n");
    row("*ESE 60;*ESE?", "60\n");
    row("*ESE #H3C;*ESE?", "60\n");
    row("*ESE 59.6;*ESE?", "60\n");
    row("*SRE 255;*SRE?", "191\n");
    row("*STB?", "0\n");
    row("*IDN?;*STB?", "Maker,KVX70102,S1,1.0;16\n");
    row("NONSENSE;*STB?", "4\n");
    row("*ESE 32;*SRE 32;NONSENSE;*STB?", "100\n");
    row("*WAI;*OPC?", "1\n");
    row("SYST:ERR?", "0,\"No error\"\n");
    row("SYSTEM:ERROR:NEXT?", "0,\"No error\"\n");
    row("syst:err?;err:coun?", "0,\"No error\";0\n");
    row("NONSENSE;:SYST:ERR:COUN?", "1\n");
    row("NONSENSE?;:SYST:ERR?;ERR?", "-113,\"Undefined header;NONSENSE?\";0,\"No error\"\n");
    row("SYST:VERS?", "1999.0\n");
    row("STAT:OPER?", "0\n");
    row("STATus:OPERation:EVENt?", "0\n");
    row("STAT:OPER:COND?", "0\n");
    row("STAT:OPER:ENAB 255;ENAB?", "255\n");
    row("STAT:OPER:ENAB 65535;ENAB?", "32767\n");
    row("STAT:QUES:ENAB 3;ENAB?;EVEN?;COND?", "3;0;0\n");
    row("STAT:QUES:ENAB 3;:STAT:PRES;QUES:ENAB?", "0\n");

    row("VOLT 5;VOLT?", "5\n");
    row("VOLT 1.5 mV;:SOUR2:VOLT:LEV?", "1.5 mV\n");
    row("TRIG:SOUR TIM;SOUR?", "TIM\n");
    row("TRIG:SOUR TIM;*OPC;SOUR?", "TIM\n");
    row("TRIG:SOUR TIM;:VOLT?;:TRIG:SOUR?", "0;TIM\n");
    row("TRIG:SOUR TIM;VOLT?;SOUR?", "TIM\n");
    row("TRIG:NONSENSE 1;SOUR?", "EXT\n");
    row("NONSENSE:SOUR 1;TRIG:SOUR?", "EXT\n");
    row("TRIG:SOUR 'a;b\"c';SOUR?", "a;b\"c\n");
    row("TRIG:SOUR #15a;b'c;SOUR?", "a;b'c\n");
    row("CHAN:NUMB?;:CHAN7:NUMB?;NUMB?", "1;7;7\n");
    row("EMPTY?", "\n");
    row("EMPTY?;EMPTY?", ";\n");
    row("FAIL?", "");
    row("NONSENSE?", "");
    row("VOLT?;FAIL?;NONSENSE?;VOLT?", "0;0\n");
    row("VOLT", "");
    row(" ;; VOLT? ;", "0\n");
    row("\tVOLT\t7;VOLT?\r", "7\n");
}

void TestScpiInstrument::replies()
{
    QFETCH(QByteArray, message);
    ScpiFixture fixture;
    QTEST(fixture.execute(message), "reply");
}

void TestScpiInstrument::errors_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QList<int>>("numbers");

    const auto row = [](const char* message, const QList<int>& numbers) {
        QTest::newRow(message) << QByteArray(message) << numbers;
    };
    row("*CLS;*IDN?;VOLT 1", {});
    row("NONSENSE?", {-113});
    row("*NONSENSE", {-113});
    row("*IDN", {-113});
    row("*RST?", {-113});
    row("SYST:ERR", {-113});
    row("TRIG:SOUR TIM;VOLT?", {-113});
    row("VOLT2 5", {-114});
    row("CHAN0:NUMB?", {-114});
    row("*ESE", {-109});
    row("*ESE 1,2", {-108});
    row("*ESE ON", {-104});
    row("*ESE '1'", {-104});
    row("*ESE 256", {-222});
    row("*ESE -1", {-222});
    row("*ESE 1e30", {-222});
    row("*SRE 256", {-222});
    row("*ESE 5 V", {-138});
    row("STAT:OPER:ENAB 65536", {-222});
    row("STAT:QUES:ENAB", {-109});
    row("*RST 1", {-108});
    row("*CLS 1", {-108});
    row("*OPC 1", {-108});
    row("*WAI 1", {-108});
    row("*TRG 1", {-108});
    row("*IDN? 1", {-108});
    row("SYST:ERR? 1", {-108});
    row("VOLT", {-109});
    row("VOLT 1,", {-102});
    row("VOLT 'a", {-151});
    row("FAIL;FAIL?;NONSENSE", {-256, -230, -113});
}

void TestScpiInstrument::errors()
{
    QFETCH(QByteArray, message);
    ScpiFixture fixture;
    fixture.execute(message);
    QTEST(fixture.errors(), "numbers");
}

void TestScpiInstrument::errorDetails_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("entry");

    const auto row = [](const char* message, const char* entry) {
        QTest::newRow(message) << QByteArray(message) << QByteArray(entry);
    };
    row("foo:Bar 1", "-113,\"Undefined header;FOO:BAR\"");
    row(":FOO:BAR?", "-113,\"Undefined header;FOO:BAR?\"");
    row("*FOO", "-113,\"Undefined header;*FOO\"");
    row("TRIG:SOUR TIM;VOLT 1", "-113,\"Undefined header;TRIG:VOLT\"");
    row("VOLT2 5", "-114,\"Header suffix out of range;VOLT2\"");
    row("*SRE 1e3", "-222,\"Data out of range;1e3\"");
}

void TestScpiInstrument::errorDetails()
{
    QFETCH(QByteArray, message);
    ScpiFixture fixture;
    fixture.execute(message);
    QTEST(fixture.instrument.errors().take(), "entry");
    QVERIFY(fixture.instrument.errors().isEmpty());
}

void TestScpiInstrument::operationCondition()
{
    ScpiFixture fixture;
    QCOMPARE(fixture.execute("STAT:OPER:COND?;EVEN?"), QByteArray("0;0\n"));
    fixture.operation = 32;
    QCOMPARE(fixture.execute("STAT:OPER:ENAB 32;*STB?"), QByteArray("128\n"));
    QCOMPARE(fixture.execute("STAT:OPER:COND?"), QByteArray("32\n"));
    fixture.operation = 256;
    QCOMPARE(fixture.execute("STAT:OPER:COND?"), QByteArray("256\n"));
    QCOMPARE(fixture.execute("STAT:OPER?"), QByteArray("288\n"));
    QCOMPARE(fixture.execute("STAT:OPER?;*STB?"), QByteArray("0;16\n"));
}

void TestScpiInstrument::resetKeepsStatus()
{
    ScpiFixture fixture;
    fixture.execute("*ESE 60;*SRE 32;STAT:OPER:ENAB 7;NONSENSE");
    fixture.execute("*RST");
    QCOMPARE(fixture.resets, 1);
    QCOMPARE(fixture.execute("*ESE?;*SRE?;*ESR?;STAT:OPER:ENAB?"), QByteArray("60;32;160;7\n"));
    QCOMPARE(fixture.errors(), QList<int>{-113});
}

void TestScpiInstrument::clearStatus()
{
    ScpiFixture fixture;
    fixture.operation = 4;
    fixture.execute("*ESE 60;NONSENSE;*OPC");
    QCOMPARE(fixture.execute("*CLS"), QByteArray());
    QCOMPARE(fixture.execute("*ESR?;*ESE?;:SYST:ERR?"), QByteArray("0;60;0,\"No error\"\n"));
    QCOMPARE(fixture.execute("STAT:OPER?;OPER:COND?"), QByteArray("0;4\n"));
    QCOMPARE(fixture.errors(), QList<int>());
    QCOMPARE(fixture.resets, 0);
}

void TestScpiInstrument::triggerReachesDevice()
{
    ScpiFixture fixture;
    QCOMPARE(fixture.execute("*TRG;*TRG"), QByteArray());
    QCOMPARE(fixture.triggers, 2);
    QCOMPARE(fixture.errors(), QList<int>());
}

void TestScpiInstrument::lostTriggerIsAnError()
{
    ScpiFixture fixture;
    fixture.takesTriggers = false;
    fixture.execute("*CLS;*TRG");
    QCOMPARE(fixture.triggers, 1);
    QCOMPARE(fixture.execute("*ESR?;:SYST:ERR?"), QByteArray("16;-211,\"Trigger ignored\"\n"));
}

void TestScpiInstrument::eventBits_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QByteArray>("events");

    QTest::newRow("command") << -113 << QByteArray("32\n");
    QTest::newRow("execution") << -222 << QByteArray("16\n");
    QTest::newRow("device") << -363 << QByteArray("8\n");
    QTest::newRow("query") << -430 << QByteArray("4\n");
}

void TestScpiInstrument::eventBits()
{
    QFETCH(int, error);
    ScpiFixture fixture;
    fixture.execute("*CLS");
    fixture.instrument.reportError(error);
    QTEST(fixture.execute("*ESR?"), "events");
    QCOMPARE(fixture.execute("*ESR?"), QByteArray("0\n"));
}

void TestScpiInstrument::overflowSetsDeviceError()
{
    ScpiFixture fixture;
    fixture.execute("*CLS");
    for (int i = 0; i < 20; ++i)
        fixture.execute("NONSENSE");
    QCOMPARE(fixture.execute("*ESR?"), QByteArray("32\n"));
    fixture.execute("NONSENSE");
    QCOMPARE(fixture.execute("*ESR?;:SYST:ERR:COUN?"), QByteArray("40;20\n"));
}

void TestScpiInstrument::detailReachesQueue()
{
    ScpiFixture fixture;
    fixture.execute("FAIL 'M:/\"a'");
    QCOMPARE(fixture.execute("SYST:ERR?"), QByteArray("-256,\"File name not found;M:/\"\"a\"\n"));
}

void TestScpiInstrument::groupsAreWired()
{
    ScpiFixture fixture;
    fixture.operation = 0x20;
    fixture.instrument.status().questionable().setCondition(0x01);
    QCOMPARE(fixture.execute("STAT:OPER:COND?;ENAB 32;*STB?;EVEN?;EVEN?;*STB?"),
             QByteArray("32;144;32;0;16\n"));
    QCOMPARE(fixture.execute("STAT:QUES:COND?;ENAB 1;*STB?;EVEN?;EVEN?;*STB?"),
             QByteArray("1;24;1;0;16\n"));
}

void TestScpiInstrument::deviceWithoutFunctions()
{
    ScpiInstrument instrument({"I", {}, {}, {}});
    QCOMPARE(instrument.execute("*RST;*IDN?"), QByteArray("I\n"));
    instrument.execute("*TRG");
    QCOMPARE(instrument.errors().take(), QByteArray("-211,\"Trigger ignored\""));
}

void TestScpiInstrument::endlessRepliesAreRefused()
{
    ScpiFixture fixture;
    QByteArray message;
    for (int i = 0; i < 1000; ++i)
        message += "LONG?;";
    const QByteArray reply = fixture.execute(message);
    const int answered = ScpiInstrument::MaxReplyLength / (fixture.longReply.size() + 1) + 1;
    QCOMPARE(reply.size(), answered * (fixture.longReply.size() + 1));
    QCOMPARE(reply.count('\n'), 1);
    QCOMPARE(fixture.errors().first(), -430);
}

QTEST_APPLESS_MAIN(TestScpiInstrument)
#include "test_scpiinstrument.moc"
