// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatorcommands.h"

#include "generatorfixture.h"
#include "runsequence.h"
#include "scpiinstrument.h"

#include <QTest>

class TestGeneratorCommands : public QObject
{
    Q_OBJECT

private slots:
    void settings_data();
    void settings();
    void defaults_data();
    void defaults();
    void refusals_data();
    void refusals();
    void channelsAreApart();
    void frequencyLimitOfEachFamily_data();
    void frequencyLimitOfEachFamily();
    void levelsFollowTheLoad();
    void levelsOfTheFastFamilies();
    void runSequenceAsItIsSent_data();
    void runSequenceAsItIsSent();
    void zeroPeriod();
    void brokenFileLeavesErrors();
    void triggers();
    void traceReplies();
    void traceBeforeTheFirstTrigger();
    void byteOrders();
    void everyFormOfACommandExists();
};

namespace {

/// A generator that is talked to in messages.
class Talk : public GeneratorFixture
{
public:
    explicit Talk(const char* family = "KVX7010X")
        : GeneratorFixture(QLatin1String(family))
        , instrument({"TEST", [this]() { model.reset(); }, [this]() { return model.trigger(); },
                      generatorCommands(model)})
    {}

    QByteArray ask(const QByteArray& message)
    {
        const QByteArray reply = instrument.execute(message);
        return reply.endsWith('\n') ? reply.chopped(1) : reply;
    }

    int error() { return ask("SYST:ERR?").split(',').first().toInt(); }

    /// Sends commands without reply; the number of the first error, or 0.
    int send(const QByteArray& message)
    {
        const QByteArray reply = ask(message);
        return reply.isEmpty() ? error() : 1;
    }

    ScpiInstrument instrument;
};

} // namespace

void TestGeneratorCommands::settings_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<QByteArray>("reply");

    const auto row = [](const char* command, const char* query, const char* reply) {
        QTest::newRow(command) << QByteArray(command) << QByteArray(query) << QByteArray(reply);
    };
    row("OUTP1 ON ", "OUTP?", "1");
    row("OUTPut2:STATe 1", "OUTPut2:STATe?", "1");
    row("OUTput1:IMPedance 10000", "OUTP:IMP?", "10000");
    row("OUTP1:IMP INFinity", "OUTP1:IMP?", "9.9E+37");
    row("OUTP1:IMP MIN", "OUTP1:IMP?", "50");
    row("OUTP1:IMP MAX", "OUTP1:IMP?", "10000");
    row("source1:BURSt  ON ", "SOUR1:BURS:STAT?", "1");
    row("source1:burst:ncycles 7 ", "BURS:NCYC?", "7");
    row("BURS:NCYC 2.6", "BURS:NCYC?", "3");
    row("BURS:NCYC INF", "BURS:NCYC?", "9.9E+37");
    row("source1:burst:TDELay 0.5", "BURSt:TDELay?", "0.5");
    row("source1:function emem ", "FUNC?", "EMEM");
    row("FUNC:SHAP SIN", "FUNC:SHAP?", "SIN");
    row("SOURce1:FREQuency:FIXed 83333.333333000002", "FREQ?", "83333.333333");
    row("SOUR2:FREQ 1 KHZ", "SOUR2:FREQ:FIX?", "1000");
    row("FREQ MIN", "FREQ?", "1E-06");
    row("VOLT 2", "VOLT:LEV:IMM:AMPL?", "2");
    row("VOLT 2 Vpp", "VOLT?", "2");
    row("VOLT 200 mV", "VOLT?", "0.2");
    row("VOLT:OFFS 500mV", "VOLT:OFFS?", "0.5");
    row("OUTP:IMP 1 kOhm", "OUTP:IMP?", "1000");
    row("BURS:TDEL 5us", "BURS:TDEL?", "5E-06");
    row("TRIG:TIM 20 ms", "TRIG:TIM?", "0.02");
    row("VOLT:OFFS -1.5", "SOUR:VOLT:OFFS?", "-1.5");
    row("VOLT:HIGH 2", "VOLT:HIGH?;LOW?;:VOLT?;:VOLT:OFFS?", "2;-0.5;2.5;0.75");
    row("VOLT:LOW -2", "VOLT:HIGH?;LOW?;:VOLT?;:VOLT:OFFS?", "0.5;-2;2.5;-0.75");
    row("TRIGger:SOURce TIMER", "TRIG:SOUR?", "TIM");
    row("TRIGger:SOURce EXTERNAL ", "TRIG:SEQ:SOUR?", "EXT");
    row("TRIG:SOUR MAN", "TRIG:SOUR?", "MAN");
    row("TRIG:SOUR BUS", "TRIG:SOUR?", "MAN");
    row("TRIGger:SLOPE NEGative ", "TRIG:SLOP?", "NEG");
    row("TRIGger:SLOPE POSitive ", "TRIG:SLOP?", "POS");
    row("TRIGger:TIMER 0.001", "TRIG:TIM?", "0.001");
    row("TRIG:TIM 2e-06", "TRIG:TIM?", "2E-06");
    row("TRIG:TIM 500", "TRIG:TIM?", "500");
    row("FORM:BORD SWAP", "FORMat:BORDer?", "SWAP");
}

void TestGeneratorCommands::settings()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, query);
    Talk talk;
    QCOMPARE(talk.send(command), 0);
    QTEST(talk.ask(query), "reply");
    QCOMPARE(talk.error(), 0);
}

void TestGeneratorCommands::defaults_data()
{
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<QByteArray>("reply");

    const auto row = [](const char* query, const char* reply) {
        QTest::newRow(query) << QByteArray(query) << QByteArray(reply);
    };
    row("OUTP1?", "0");
    row("OUTP2?", "0");
    row("OUTP1:IMP?", "50");
    row("BURS?", "0");
    row("BURS:NCYC?", "1");
    row("BURS:TDEL?", "0");
    row("FUNC?", "SIN");
    row("FUNC:EFIL?", "\"\"");
    row("FREQ?", "1000000");
    row("FREQ? DEF", "1000000");
    row("VOLT?", "1");
    row("VOLT:OFFS?", "0");
    row("VOLT:HIGH?", "0.5");
    row("VOLT:LOW?", "-0.5");
    row("VOLT? MIN", "0.001");
    row("VOLT? MAX", "10");
    row("VOLT:HIGH? MAX", "5");
    row("VOLT:LOW? MIN", "-5");
    row("TRIG:SOUR?", "TIM");
    row("TRIG:SLOP?", "POS");
    row("TRIG:TIM?", "0.001");
    row("TRIG:TIM? MIN", "2E-06");
    row("TRIG:TIM? MAX", "500");
    row("FORM:BORD?", "NORM");
}

// The same after switching on as after a reset.
void TestGeneratorCommands::defaults()
{
    QFETCH(QByteArray, query);
    Talk talk;
    QTEST(talk.ask(query).replace("1E+06", "1000000"), "reply");

    QCOMPARE(
        talk.send("OUTP ON;:OUTP2 ON;:OUTP:IMP 75;:BURS ON;:BURS:NCYC 9;:BURS:TDEL 1;:FUNC EMEM;"
                  ":FREQ 10;:VOLT 0.5;:VOLT:OFFS 1;:TRIG:SOUR EXT;:TRIG:SLOP NEG;"
                  ":TRIG:TIM 1;:FORM:BORD SWAP"),
        0);
    QCOMPARE(talk.send("*RST"), 0);
    QTEST(talk.ask(query).replace("1E+06", "1000000"), "reply");
}

void TestGeneratorCommands::refusals_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("error");

    const auto row = [](const char* command, int error) {
        QTest::newRow(command) << QByteArray(command) << error;
    };
    row("OUTP3 ON", -114);
    row("OUTP", -109);
    row("OUTP ON,ON", -108);
    row("OUTP maybe", -224);
    row("OUTP \"ON\"", -104);
    row("OUTP:IMP 49.9", -222);
    row("OUTP:IMP 10001", -222);
    row("BURS:NCYC 0", -222);
    row("BURS:NCYC 1000001", -222);
    row("BURS:TDEL -1e-9", -222);
    row("BURS:TDEL INF", -222);
    row("FUNC pulse", -224);
    row("FUNC EFIL", -221);
    row("FUNC 1", -104);
    row("FUNC:EFIL run", -104);
    row("FUNC:EFIL", -109);
    row("FUNC:EFIL \"\"", -257);
    row("FUNC:EFIL \"M:/none.mpwv\"", -256);
    row("FUNC:EFIL 'M:/../x'", -257);
    row("SOUR3:FUNC:EFIL \"M:/none.mpwv\"", -114);
    row("SOURce1:FREQuency:FIXed inf", -222);
    row("SOURce1:FREQuency:FIXed nan", -222);
    row("SOURce1:FREQuency:FIXed 0", -222);
    row("SOURce1:FREQuency:FIXed -5", -222);
    row("SOURce1:FREQuency:FIXed 125000001", -222);
    row("SOURce1:FREQuency:FIXed fast", -104);
    row("FREQ 1 V", -131);
    row("VOLT 1 HZ", -131);
    row("VOLT:OFFS 1 VPP", -131);
    row("VOLT:HIGH 1 S", -131);
    row("OUTP:IMP 50 V", -131);
    row("BURS:TDEL 1 HZ", -131);
    row("BURS:NCYC 2 S", -138);
    row("TRIG:TIM 1 KHZ", -131);
    row("OUTP 1 V", -138);
    row("VOLT 0", -222);
    row("VOLT 10.1", -222);
    row("VOLT -1", -222);
    row("VOLT:OFFS 5.1", -222);
    row("VOLT:OFFS 4.6", -221);
    row("VOLT:HIGH -0.5", -221);
    row("VOLT:HIGH -1", -221);
    row("VOLT:LOW 0.4995", -221);
    row("TRIG:SOUR IMM", -224);
    row("TRIG:SLOP EITH", -224);
    row("TRIG:TIM 1e-06", -222);
    row("TRIG:TIM 500.001", -222);
    row("TRIG:TIM INF", -222);
    row("TRIG", -211);
    row("TRIG:IMM now", -108);
    row("*TRG", -211);
    row("SIM:TRIG:EXT", -109);
    row("SIM:TRIG:EXT EITH", -224);
    row("FORM:BORD LITTLE", -224);
    row("TRAC1:DATA", -113);
    row("SIM:TRIG:EXT?", -113);
    row("TRIG:IMM?", -113);
    row("OUTP? ON", -108);
    row("FREQ? 5", -104);
    row("FREQ? MEAN", -224);
    row("TRAC3:DATA?", -114);
    row("TRAC:DATA? CH1", -108);
    row("FUNC:EFIL? 1", -108);
}

void TestGeneratorCommands::refusals()
{
    const QByteArray everything =
        "OUTP?;:OUTP:IMP?;:BURS?;:BURS:NCYC?;:BURS:TDEL?;:FUNC?;:FUNC:EFIL?;:FREQ?;:VOLT?;"
        ":VOLT:OFFS?;:TRIG:SOUR?;:TRIG:SLOP?;:TRIG:TIM?;:FORM:BORD?;:TRAC:SEQ?;:OUTP2?";
    QFETCH(QByteArray, command);
    QFETCH(int, error);

    Talk talk;
    const QByteArray before = talk.ask(everything);
    QCOMPARE(talk.send(command), error);
    QCOMPARE(talk.error(), 0);
    QCOMPARE(talk.ask(everything), before);
}

void TestGeneratorCommands::channelsAreApart()
{
    Talk talk;
    QCOMPARE(talk.send("SOUR2:FREQ 5;:SOUR2:BURS ON;:SOUR2:VOLT 3;:OUTP2:IMP 100;:OUTP2 ON"), 0);
    QCOMPARE(talk.ask("SOUR1:BURS?;:SOUR1:VOLT?;:OUTP1:IMP?;:OUTP1?"), QByteArray("0;1;50;0"));
    QCOMPARE(talk.ask("SOUR2:FREQ?;:SOUR2:BURS?;:OUTP2?"), QByteArray("5;1;1"));
}

void TestGeneratorCommands::frequencyLimitOfEachFamily_data()
{
    QTest::addColumn<QByteArray>("family");
    QTest::addColumn<double>("limit");
    QTest::newRow("KVX705XX") << QByteArray("KVX705XX") << 1e9;
    QTest::newRow("KVX7040X") << QByteArray("KVX7040X") << 1e9;
    QTest::newRow("KVX7030X") << QByteArray("KVX7030X") << 5e8;
    QTest::newRow("KVX7020X") << QByteArray("KVX7020X") << 5e8;
    QTest::newRow("KVX7010X") << QByteArray("KVX7010X") << 125e6;
}

void TestGeneratorCommands::frequencyLimitOfEachFamily()
{
    QFETCH(QByteArray, family);
    QFETCH(double, limit);
    Talk talk(family.constData());
    QCOMPARE(talk.ask("FREQ? MAX").toDouble(), limit);
    QCOMPARE(talk.send("FREQ " + QByteArray::number(limit, 'f')), 0);
    QCOMPARE(talk.send("FREQ " + QByteArray::number(limit + 1, 'f')), -222);
    QCOMPARE(talk.ask("FREQ?").toDouble(), limit);
}

void TestGeneratorCommands::levelsFollowTheLoad()
{
    Talk talk;
    QCOMPARE(talk.send("VOLT 3;:VOLT:OFFS 0.5;:OUTP:IMP 10000"), 0);
    QCOMPARE(talk.ask("VOLT?;:VOLT:OFFS?;HIGH?;LOW?"), QByteArray("6;1;4;-2"));
    QCOMPARE(talk.ask("VOLT? MAX;:VOLT:HIGH? MAX"), QByteArray("20;10"));
    QCOMPARE(talk.send("VOLT 8"), 0);
    QCOMPARE(talk.send("OUTP:IMP 50"), 0);
    QCOMPARE(talk.ask("VOLT?"), QByteArray("4"));
    QCOMPARE(talk.send("OUTP:IMP 150"), 0);
    QCOMPARE(talk.ask("VOLT?"), QByteArray("6"));
}

void TestGeneratorCommands::levelsOfTheFastFamilies()
{
    for (const char* family : {"KVX705XX", "KVX7040X"}) {
        Talk talk(family);
        QCOMPARE(talk.send("VOLT 5.1"), -222);
        QCOMPARE(talk.send("VOLT:HIGH 2.6"), -222);
        QCOMPARE(talk.send("VOLT 5"), 0);
        QCOMPARE(talk.send("VOLT:OFFS 0.01"), -221);
        QCOMPARE(talk.send("VOLT 1;:VOLT:OFFS 1.5"), 0);
        QCOMPARE(talk.send("VOLT 3"), -221);
        QCOMPARE(talk.ask("VOLT?;:VOLT:OFFS?"), QByteArray("1;1.5"));
    }
}

void TestGeneratorCommands::runSequenceAsItIsSent_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("slope");
    QTest::addColumn<bool>("highImpedance");
    QTest::addColumn<QByteArray>("state");

    QTest::newRow("manual") << 0 << 0 << false << QByteArray("EXT;POS;0.001;50");
    QTest::newRow("external, falling") << 1 << 1 << false << QByteArray("EXT;NEG;0.001;50");
    QTest::newRow("timer") << 2 << 0 << true << QByteArray("TIM;POS;0.25;10000");
}

void TestGeneratorCommands::runSequenceAsItIsSent()
{
    QFETCH(int, source);
    QFETCH(int, slope);
    QFETCH(bool, highImpedance);
    PulseTrain train;
    train.delay = 10e-6;
    train.pulses = {{5e-6, 5e-6}};
    train.triggerSource = source;
    train.triggerSlope = slope;
    train.triggerTimer = 0.25;
    train.load = highImpedance ? LoadImpedance::HighZ : LoadImpedance::Ohm50;

    Talk talk;
    writeBytes(talk.path("run.mpwv"), waveformBytes(ramp(100), 2, 0));
    for (const QByteArray& command : RunSequence::runCommands(train)) {
        QVERIFY(command.endsWith('\n'));
        QVERIFY2(talk.send(command.chopped(1)) == 0, command.constData());
    }
    QCOMPARE(talk.ask("OUTP1?;:OUTP2?;:BURS?;:BURS:NCYC?;:BURS:TDEL?;:FUNC?;:FUNC:EFIL?"),
             QByteArray("1;0;1;1;0;EFIL;\"M:/run.mpwv\""));
    QCOMPARE(talk.ask("FREQ?").toDouble(), 50000.0);
    QTEST(talk.ask("TRIG:SOUR?;SLOP?;TIM?;:OUTP:IMP?"), "state");

    QCOMPARE(talk.ask("TRAC:COUN?"), QByteArray(source == 2 ? "1" : "0"));
    talk.now += 1000000;
    QCOMPARE(talk.send("*TRG"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?;POIN?"), QByteArray(source == 2 ? "2;100" : "1;100"));

    for (const QByteArray& command :
         RunSequence::stopCommandsBeforeDelete() + RunSequence::stopCommandsAfterDelete())
        QVERIFY2(talk.send(command.chopped(1)) == 0, command.constData());
    QCOMPARE(talk.ask("OUTP?;:FUNC?;:FUNC:EFIL?"), QByteArray("0;SIN;\"\""));
}

// A train without any time has an infinite frequency and a file without points: three refusals, and
// an output that plays the edit memory.
void TestGeneratorCommands::zeroPeriod()
{
    Talk talk;
    writeBytes(talk.path("run.mpwv"), waveformBytes({}, 2, 0));
    for (const QByteArray& command : RunSequence::runCommands(PulseTrain()))
        QVERIFY(talk.ask(command.chopped(1)).isEmpty());
    QCOMPARE(talk.error(), -250);
    QCOMPARE(talk.error(), -221);
    QCOMPARE(talk.error(), -222);
    QCOMPARE(talk.error(), 0);
    QCOMPARE(talk.ask("OUTP?;:FUNC?"), QByteArray("1;EMEM"));
}

void TestGeneratorCommands::brokenFileLeavesErrors()
{
    Talk talk;
    writeBytes(talk.path("run.mpwv"), waveformBytes(ramp(10), 2, 0).left(520));
    QVERIFY(talk.ask("FUNC:EFIL \"M:/run.mpwv\"").isEmpty());
    QCOMPARE(
        talk.ask("SYST:ERR?"),
        QByteArray("-250,\"Mass storage error;size: 520 bytes instead of 532 for 10 points\""));
    QVERIFY(talk.ask("FUNC:EFIL \"M:/a\"\"b\"").isEmpty());
    QCOMPARE(talk.ask("SYST:ERR?"), QByteArray("-256,\"File name not found;M:/a'b\""));
    QCOMPARE(talk.ask("FUNC:EFIL?"), QByteArray("\"\""));
}

void TestGeneratorCommands::triggers()
{
    Talk talk;
    QCOMPARE(talk.send("FREQ 1e6;:BURS ON;:TRIG:SOUR EXT;SLOP NEG;:OUTP ON"), 0);
    QCOMPARE(talk.send("SIM:TRIG:EXT POS"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?"), QByteArray("0"));
    QCOMPARE(talk.send("SIMulate:TRIGger:EXTernal NEGative"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?;SEQ?"), QByteArray("1;1"));
    QCOMPARE(talk.send("TRIG"), -211);
    QCOMPARE(talk.send("SIM:TRIG:EXT NEG"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?"), QByteArray("1"));
    talk.now += 1000;
    QCOMPARE(talk.send("TRIG:SEQ:IMM"), 0);
    talk.now += 1000;
    QCOMPARE(talk.send("*TRG"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?;SEQ?"), QByteArray("3;3"));
    QCOMPARE(talk.ask("TRAC2:COUN?;SEQ?"), QByteArray("0;0"));

    QCOMPARE(talk.send("OUTP OFF;:OUTP ON"), 0);
    QCOMPARE(talk.ask("TRAC:COUN?;SEQ?"), QByteArray("0;3"));
}

void TestGeneratorCommands::traceReplies()
{
    Talk talk;
    talk.load({-32764, 0x0102, 32764, 0}, 3, 0.5, 1e5);
    QCOMPARE(talk.send("TRIG:SOUR MAN;:BURS:TDEL 2e-6;:OUTP:IMP 10000;:OUTP ON;*TRG"), 0);
    QCOMPARE(talk.ask("TRAC1:DATA?"), QByteArray("#18\x80\x04\x01\x02\x7F\xFC\x00\x00", 11));
    QCOMPARE(talk.ask("TRAC?"), talk.ask("TRACe1:DATA?"));
    QCOMPARE(talk.ask("TRAC:POIN?;CYCL?;COUN?;TIM:STEP?;STAR?;:TRAC:LEV:OFFS?;IDLE?"),
             QByteArray("4;1;1;2.5E-06;2E-06;1;-2"));
    const double scale = talk.ask("TRAC:LEV:SCAL?").toDouble();
    QVERIFY(scale == 3 * 0.5 / 32764 * 2);
    QCOMPARE(1 + 32764 * scale, 4.0);

    QCOMPARE(talk.send("BURS:NCYC 2;:OUTP OFF;:OUTP ON;*TRG"), 0);
    QCOMPARE(talk.ask("TRAC:POIN?;CYCL?"), QByteArray("8;2"));
    QCOMPARE(talk.ask("TRAC:DATA?").left(4), QByteArray("#216"));
    QCOMPARE(talk.send("OUTP OFF"), 0);
    QCOMPARE(talk.ask("TRAC:LEV:IDLE?;:TRAC:POIN?"), QByteArray("0;8"));
}

void TestGeneratorCommands::traceBeforeTheFirstTrigger()
{
    Talk talk;
    talk.load({-32764, 0}, 3, 0.5, 1e5);
    QCOMPARE(talk.send("TRIG:SOUR EXT;:OUTP ON"), 0);
    QCOMPARE(talk.ask("TRAC:DATA?;POIN?;CYCL?;COUN?"), QByteArray("#10;0;0;0"));
    QCOMPARE(talk.ask("TRAC:TIM:STEP?;STAR?"), QByteArray("9.91E+37;9.91E+37"));
    QCOMPARE(talk.ask("TRAC:LEV:SCAL?;OFFS?;IDLE?"), QByteArray("9.91E+37;9.91E+37;-1"));
}

void TestGeneratorCommands::byteOrders()
{
    Talk talk;
    talk.load({0x0102, -2}, 1, 0, 1e5);
    QCOMPARE(talk.send("TRIG:SOUR MAN;:OUTP ON;*TRG"), 0);
    QCOMPARE(talk.ask("TRAC:DATA?"), QByteArray("#14\x01\x02\xFF\xFE", 7));
    QCOMPARE(talk.send("FORM:BORD SWAPPED"), 0);
    QCOMPARE(talk.ask("TRAC:DATA?"), QByteArray("#14\x02\x01\xFE\xFF", 7));
}

// Whatever can be set can be asked for; only events and what is measured go one way.
void TestGeneratorCommands::everyFormOfACommandExists()
{
    GeneratorFixture generator;
    int bothWays = 0;
    for (const ScpiCommand& command : generator.model.commands()) {
        const QByteArray pattern = command.pattern;
        const bool isEvent =
            pattern == "TRIGger[:SEQuence][:IMMediate]" || pattern == "SIMulate:TRIGger:EXTernal";
        const bool isMeasured = pattern.startsWith("TRACe#");
        QVERIFY2(bool(command.set) == !isMeasured, pattern.constData());
        QVERIFY2(bool(command.query) == !isEvent, pattern.constData());
        bothWays += command.set && command.query;
    }
    QCOMPARE(bothWays, 16);
}

QTEST_GUILESS_MAIN(TestGeneratorCommands)
#include "test_generatorcommands.moc"
