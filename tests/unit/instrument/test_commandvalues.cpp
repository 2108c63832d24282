// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandvalues.h"

#include <QTest>

#include <limits>

class TestCommandValues : public QObject
{
    Q_OBJECT

private slots:
    void mnemonics_data();
    void mnemonics();
    void numbers_data();
    void numbers();
    void units_data();
    void units();
    void outOfRangeTellsTheValue();
    void infinityWhereItIsAllowed();
    void switches_data();
    void switches();
    void texts_data();
    void texts();
    void choices_data();
    void choices();
    void parameterCounts();
    void numberReplies_data();
    void numberReplies();
    void numberTexts_data();
    void numberTexts();
};

namespace {

const double Infinity = std::numeric_limits<double>::infinity();
const NumberRange Range = {-2, 10, 3};

ScpiParameter word(const char* text)
{
    ScpiParameter parameter;
    parameter.kind = ScpiParameter::Word;
    parameter.text = text;
    return parameter;
}

ScpiParameter number(double value, const QByteArray& unit = QByteArray())
{
    ScpiParameter parameter;
    parameter.kind = ScpiParameter::Number;
    parameter.text = QByteArray::number(value);
    parameter.number = value;
    parameter.unit = unit;
    return parameter;
}

ScpiParameter quoted(const char* text)
{
    ScpiParameter parameter = word(text);
    parameter.kind = ScpiParameter::String;
    return parameter;
}

ScpiCall callWith(const ScpiParameter& parameter)
{
    ScpiCall call;
    call.parameters = {parameter};
    return call;
}

} // namespace

Q_DECLARE_METATYPE(ScpiParameter)

void TestCommandValues::mnemonics_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("is");

    QTest::newRow("short") << QByteArray("EXT") << true;
    QTest::newRow("long") << QByteArray("EXTernal") << true;
    QTest::newRow("capitals") << QByteArray("EXTERNAL") << true;
    QTest::newRow("small letters") << QByteArray("ext") << true;
    QTest::newRow("between the two") << QByteArray("EXTE") << false;
    QTest::newRow("too short") << QByteArray("EX") << false;
    QTest::newRow("too long") << QByteArray("EXTERNALS") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TestCommandValues::mnemonics()
{
    QFETCH(QByteArray, text);
    QTEST(isMnemonic(text, "EXTernal"), "is");
    QCOMPARE(shortForm("EXTernal"), QByteArray("EXT"));
    QCOMPARE(shortForm("BUS"), QByteArray("BUS"));
}

void TestCommandValues::numbers_data()
{
    QTest::addColumn<ScpiParameter>("parameter");
    QTest::addColumn<int>("error");
    QTest::addColumn<double>("value");

    const auto bad = [](const char* name, const ScpiParameter& parameter, int error) {
        QTest::newRow(name) << parameter << error << 7.0;
    };
    QTest::newRow("inside") << number(4.5) << 0 << 4.5;
    QTest::newRow("lowest") << number(-2) << 0 << -2.0;
    QTest::newRow("highest") << number(10) << 0 << 10.0;
    QTest::newRow("min") << word("min") << 0 << -2.0;
    QTest::newRow("MAXIMUM") << word("MAXIMUM") << 0 << 10.0;
    QTest::newRow("DEF") << word("DEF") << 0 << 3.0;
    bad("too low", number(-2.001), -222);
    bad("too high", number(10.001), -222);
    bad("overflow", number(Infinity), -222);
    bad("NaN", number(qQNaN()), -222);
    bad("inf", word("inf"), -222);
    bad("infinity", word("INFinity"), -222);
    bad("ninf", word("ninf"), -222);
    bad("nan", word("nan"), -222);
    bad("a unit where none may be", number(4, "S"), -138);
    bad("another word", word("lots"), -104);
    bad("a text", quoted("4"), -104);
}

void TestCommandValues::numbers()
{
    QFETCH(ScpiParameter, parameter);
    QFETCH(int, error);
    ScpiCall call = callWith(parameter);
    double value = 7;
    QCOMPARE(readNumber(call, Range, value), error == 0);
    QCOMPARE(call.errorNumber, error);
    QTEST(value, "value");
}

void TestCommandValues::units_data()
{
    QTest::addColumn<QByteArray>("wanted");
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<int>("error");

    QTest::newRow("none") << QByteArray("HZ") << QByteArray() << 0;
    QTest::newRow("the same") << QByteArray("HZ") << QByteArray("HZ") << 0;
    QTest::newRow("another") << QByteArray("HZ") << QByteArray("V") << -131;
    QTest::newRow("volts as an amplitude") << QByteArray("VPP") << QByteArray("V") << 0;
    QTest::newRow("an amplitude as volts") << QByteArray("V") << QByteArray("VPP") << -131;
}

void TestCommandValues::units()
{
    QFETCH(QByteArray, wanted);
    QFETCH(QByteArray, sent);
    QFETCH(int, error);
    const NumberRange range = {-2, 10, 3, false, wanted.constData()};
    ScpiCall call = callWith(number(4, sent));
    double value = 7;
    QCOMPARE(readNumber(call, range, value), error == 0);
    QCOMPARE(call.errorNumber, error);
    QCOMPARE(value, error == 0 ? 4.0 : 7.0);
}

void TestCommandValues::outOfRangeTellsTheValue()
{
    ScpiParameter parameter = number(11);
    parameter.text = "1.1e1";
    ScpiCall call = callWith(parameter);
    double value = 7;
    QVERIFY(!readNumber(call, Range, value));
    QCOMPARE(call.errorDetail, QByteArray("1.1e1"));
}

void TestCommandValues::infinityWhereItIsAllowed()
{
    const NumberRange range = {1, 100, 1, true};
    double value = 0;
    ScpiCall endless = callWith(word("INF"));
    QVERIFY(readNumber(endless, range, value));
    QCOMPARE(value, Infinity);

    for (const ScpiParameter& parameter : {word("NINF"), number(101), word("NAN")}) {
        ScpiCall call = callWith(parameter);
        QVERIFY(!readNumber(call, range, value));
        QCOMPARE(call.errorNumber, -222);
    }
}

void TestCommandValues::switches_data()
{
    QTest::addColumn<ScpiParameter>("parameter");
    QTest::addColumn<bool>("before");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("on");

    QTest::newRow("ON") << word("ON") << false << 0 << true;
    QTest::newRow("off") << word("off") << true << 0 << false;
    QTest::newRow("1") << number(1) << false << 0 << true;
    QTest::newRow("0") << number(0) << true << 0 << false;
    QTest::newRow("0.4") << number(0.4) << true << 0 << false;
    QTest::newRow("-3") << number(-3) << false << 0 << true;
    QTest::newRow("a unit") << number(1, "V") << false << -138 << false;
    QTest::newRow("another word") << word("yes") << true << -224 << true;
    QTest::newRow("a text") << quoted("ON") << false << -104 << false;
}

void TestCommandValues::switches()
{
    QFETCH(ScpiParameter, parameter);
    QFETCH(bool, before);
    QFETCH(int, error);
    ScpiCall call = callWith(parameter);
    bool on = before;
    QCOMPARE(readSwitch(call, on), error == 0);
    QCOMPARE(call.errorNumber, error);
    QTEST(on, "on");
}

void TestCommandValues::texts_data()
{
    QTest::addColumn<ScpiParameter>("parameter");
    QTest::addColumn<int>("error");
    QTest::newRow("text") << quoted("M:/a b.mpwv") << 0;
    QTest::newRow("word") << word("M") << -104;
    QTest::newRow("number") << number(1) << -104;
}

void TestCommandValues::texts()
{
    QFETCH(ScpiParameter, parameter);
    QFETCH(int, error);
    ScpiCall call = callWith(parameter);
    QByteArray text = "before";
    QCOMPARE(readText(call, text), error == 0);
    QCOMPARE(call.errorNumber, error);
    QCOMPARE(text, QByteArray(error == 0 ? "M:/a b.mpwv" : "before"));
}

void TestCommandValues::choices_data()
{
    QTest::addColumn<ScpiParameter>("parameter");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("error");
    QTest::newRow("first") << word("POSITIVE") << 0 << 0;
    QTest::newRow("second") << word("neg") << 1 << 0;
    QTest::newRow("none") << word("both") << -1 << -224;
    QTest::newRow("number") << number(1) << -1 << -104;
}

void TestCommandValues::choices()
{
    QFETCH(ScpiParameter, parameter);
    QFETCH(int, index);
    ScpiCall call = callWith(parameter);
    QCOMPARE(readMnemonic(call, {"POSitive", "NEGative"}), index);
    QTEST(call.errorNumber, "error");
}

void TestCommandValues::parameterCounts()
{
    double value = 0;
    ScpiCall none;
    QVERIFY(!readNumber(none, Range, value));
    QCOMPARE(none.errorNumber, -109);
    QVERIFY(expectNoParameter(none));

    ScpiCall two;
    two.parameters = {number(1), number(2)};
    QVERIFY(!readNumber(two, Range, value));
    QCOMPARE(two.errorNumber, -108);

    bool on = false;
    ScpiCall noSwitch;
    QVERIFY(!readSwitch(noSwitch, on));
    QCOMPARE(noSwitch.errorNumber, -109);

    ScpiCall one = callWith(number(1));
    QVERIFY(!expectNoParameter(one));
    QCOMPARE(one.errorNumber, -108);
    ScpiCall plain = callWith(number(1));
    replyPlain(plain, "reply");
    QCOMPARE(plain.errorNumber, -108);
    QVERIFY(plain.reply.isEmpty());
}

void TestCommandValues::numberReplies_data()
{
    QTest::addColumn<QVector<ScpiParameter>>("parameters");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("error");
    using Parameters = QVector<ScpiParameter>;
    QTest::newRow("value") << Parameters() << QByteArray("4.25") << 0;
    QTest::newRow("minimum") << Parameters{word("MIN")} << QByteArray("-2") << 0;
    QTest::newRow("maximum") << Parameters{word("maximum")} << QByteArray("10") << 0;
    QTest::newRow("default") << Parameters{word("DEF")} << QByteArray("3") << 0;
    QTest::newRow("another word") << Parameters{word("mean")} << QByteArray() << -224;
    QTest::newRow("number") << Parameters{number(1)} << QByteArray() << -104;
    QTest::newRow("two") << Parameters{word("MIN"), word("MAX")} << QByteArray() << -108;
}

void TestCommandValues::numberReplies()
{
    QFETCH(QVector<ScpiParameter>, parameters);
    ScpiCall call;
    call.parameters = parameters;
    call.isQuery = true;
    replyNumber(call, Range, 4.25);
    QTEST(call.reply, "reply");
    QTEST(call.errorNumber, "error");
}

void TestCommandValues::numberTexts_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("zero") << 0.0 << QByteArray("0");
    QTest::newRow("whole") << 50.0 << QByteArray("50");
    QTest::newRow("small") << 2e-6 << QByteArray("2E-06");
    QTest::newRow("third") << 1 / 3.0 << QByteArray("0.3333333333333333");
    QTest::newRow("infinite") << Infinity << QByteArray("9.9E+37");
    QTest::newRow("minus infinite") << -Infinity << QByteArray("-9.9E+37");
    QTest::newRow("not a number") << qQNaN() << QByteArray("9.91E+37");
}

void TestCommandValues::numberTexts()
{
    QFETCH(double, value);
    QTEST(numberText(value), "text");
    if (qIsFinite(value)) {
        QVERIFY(numberText(value).toDouble() == value);
        QVERIFY(numberText(value * 1.1).toDouble() == value * 1.1);
    }
}

QTEST_APPLESS_MAIN(TestCommandValues)
#include "test_commandvalues.moc"
