// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpinumber.h"

#include <QTest>

#include <cmath>

class TestScpiNumber : public QObject
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void units_data();
    void units();
    void errors_data();
    void errors();
    void beginsInside();
    void radix_data();
    void radix();
};

void TestScpiNumber::values_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("end");

    const auto whole = [](const char* text, double value) {
        QTest::newRow(text) << QByteArray(text) << value << int(qstrlen(text));
    };
    whole("0", 0.0);
    whole("1", 1.0);
    whole("+5", 5.0);
    whole("-5", -5.0);
    whole("1.5", 1.5);
    whole("1.", 1.0);
    whole(".5", 0.5);
    whole("-.5e1", -5.0);
    whole("1e3", 1000.0);
    whole("1.E+3", 1000.0);
    whole("1E-3", 0.001);
    whole("31250.125", 31250.125);
    whole("0.001", 0.001);
    whole("1e-400", 0.0);
    whole("0e30000", 0.0);
    whole("1 s", 1.0);
    whole("1ms", 1e-3);
    whole("100us", 100e-6);
    whole("3 US", 3e-6);
    whole("7ns", 7e-9);
    whole("2ps", 2e-12);
    whole("10kHz", 10000.0);
    whole("1.5 MHZ", 1.5e6);
    whole("1 MAHZ", 1e6);
    whole("2GHz", 2e9);
    whole("5 mV", 5e-3);
    whole("2 VPP", 2.0);
    whole("20 mvpp", 20e-3);
    whole("50 OHM", 50.0);
    whole("10KOHM", 10000.0);
    whole("1MOHM", 1e6);
    whole("2e3 ms", 2.0);
    whole("1EXHZ", 1e18);
    QTest::newRow("stops at a comma") << QByteArray("12,3") << 12.0 << 2;
    QTest::newRow("stops at a blank") << QByteArray("12 ,3") << 12.0 << 2;
    QTest::newRow("stops at a second point") << QByteArray("1.2.3") << 1.2 << 3;
    QTest::newRow("255 digits") << QByteArray(255, '0') << 0.0 << 255;
}

void TestScpiNumber::values()
{
    QFETCH(QByteArray, text);
    QFETCH(int, end);
    QFETCH(double, value);
    ScpiParameter parameter;
    const ScpiNumberResult result = readScpiNumber(text, 0, parameter);
    QCOMPARE(result.errorNumber, 0);
    QCOMPARE(result.end, end);
    QCOMPARE(parameter.kind, ScpiParameter::Number);
    QCOMPARE(parameter.text, text.left(end));
    QVERIFY2(parameter.number == value, QByteArray::number(parameter.number, 'g', 17).constData());
}

void TestScpiNumber::units_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("unit");

    const auto row = [](const char* text, const char* unit) {
        QTest::newRow(text) << QByteArray(text) << QByteArray(unit);
    };
    row("1", "");
    row("1e3", "");
    row("1 kHz", "HZ");
    row("5us", "S");
    row("5 mV", "V");
    row("2Vpp", "VPP");
    row("1MOHM", "OHM");
}

void TestScpiNumber::units()
{
    QFETCH(QByteArray, text);
    ScpiParameter parameter;
    QCOMPARE(readScpiNumber(text, 0, parameter).errorNumber, 0);
    QTEST(parameter.unit, "unit");
}

void TestScpiNumber::errors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("error");

    QTest::newRow("sign alone") << QByteArray("+") << -121;
    QTest::newRow("point alone") << QByteArray(".") << -121;
    QTest::newRow("two signs") << QByteArray("--1") << -121;
    QTest::newRow("exponent without digits") << QByteArray("1e") << -131;
    QTest::newRow("signed exponent without digits") << QByteArray("1e+") << -131;
    QTest::newRow("exponent too large") << QByteArray("1e32001") << -123;
    QTest::newRow("exponent too small") << QByteArray("1e-32001") << -123;
    QTest::newRow("endless exponent") << "1e" + QByteArray(500, '9') << -123;
    QTest::newRow("too many digits") << QByteArray(256, '1') << -124;
    QTest::newRow("beyond a double") << QByteArray("1e400") << -222;
    QTest::newRow("below a double") << QByteArray("-1e400") << -222;
    QTest::newRow("unit carries it beyond") << QByteArray("1e308 GHZ") << -222;
    QTest::newRow("unknown unit") << QByteArray("1 parsec") << -131;
    QTest::newRow("multiplier alone") << QByteArray("1k") << -131;
    QTest::newRow("unknown multiplier") << QByteArray("1 QHZ") << -131;
    QTest::newRow("two multipliers") << QByteArray("1 KKHZ") << -131;
}

void TestScpiNumber::errors()
{
    QFETCH(QByteArray, text);
    ScpiParameter parameter;
    QTEST(readScpiNumber(text, 0, parameter).errorNumber, "error");
    QVERIFY(readScpiNumber(text, 0, parameter).end <= text.size());
}

void TestScpiNumber::beginsInside()
{
    ScpiParameter parameter;
    const ScpiNumberResult result = readScpiNumber("FREQ 5kHz;", 5, parameter);
    QCOMPARE(result.end, 9);
    QCOMPARE(parameter.text, QByteArray("5kHz"));
    QCOMPARE(parameter.number, 5000.0);
}

void TestScpiNumber::radix_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("error");
    QTest::addColumn<double>("value");

    QTest::newRow("hexadecimal") << QByteArray("#H1f") << 0 << 31.0;
    QTest::newRow("octal") << QByteArray("#q17") << 0 << 15.0;
    QTest::newRow("binary") << QByteArray("#B101") << 0 << 5.0;
    QTest::newRow("no digits") << QByteArray("#H") << -121 << 0.0;
    QTest::newRow("wrong digit") << QByteArray("#B102") << -121 << 0.0;
    QTest::newRow("wrong octal digit") << QByteArray("#Q8") << -121 << 0.0;
    QTest::newRow("more than 64 bits") << QByteArray("#H10000000000000000") << -121 << 0.0;
}

void TestScpiNumber::radix()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    ScpiParameter parameter;
    const ScpiNumberResult result = readScpiRadixNumber(text, 0, parameter);
    QTEST(result.errorNumber, "error");
    QCOMPARE(result.end, text.size());
    QCOMPARE(parameter.number, value);
}

QTEST_APPLESS_MAIN(TestScpiNumber)
#include "test_scpinumber.moc"
