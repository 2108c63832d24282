// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "sitext.h"

#include <QtTest>

#include <limits>

class TestSiText : public QObject
{
    Q_OBJECT

private slots:
    void text_data();
    void text();
    void prefix_data();
    void prefix();
    void number_data();
    void number();
};

void TestSiText::text_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0 s");
    QTest::newRow("one") << 1.0 << QStringLiteral("1 s");
    QTest::newRow("micro") << 2e-6 << QStringLiteral("2 µs");
    QTest::newRow("all decimals") << 1.111e-6 << QStringLiteral("1.111 µs");
    QTest::newRow("inner zero") << 10.05e-6 << QStringLiteral("10.05 µs");
    QTest::newRow("trailing zeros before the point") << 150e-6 << QStringLiteral("150 µs");
    QTest::newRow("exact power") << 1e-3 << QStringLiteral("1 ms");
    QTest::newRow("just below a power") << 999.999e-9 << QStringLiteral("999.999 ns");
    QTest::newRow("carry") << 999.9996e-9 << QStringLiteral("1 µs");
    QTest::newRow("negative") << -1.5 << QStringLiteral("−1.5 s");
    QTest::newRow("kilo") << 29411.764706 << QStringLiteral("29.412 ks");
    QTest::newRow("largest prefix") << 5e11 << QStringLiteral("500 Gs");
    QTest::newRow("beyond the prefixes") << 5e12 << QStringLiteral("5.000e+12 s");
    QTest::newRow("huge") << -1e300 << QStringLiteral("−1.000e+300 s");
    QTest::newRow("smallest prefix") << 2e-15 << QStringLiteral("0.002 ps");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QStringLiteral("inf s");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN()
                                  << QStringLiteral("nan s");
}

void TestSiText::text()
{
    QFETCH(double, value);
    QFETCH(QString, expected);
    QCOMPARE(siText(value, QStringLiteral("s")), expected);
}

void TestSiText::prefix_data()
{
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("letter");
    QTest::newRow("none") << 1.0 << 1.0 << QString();
    QTest::newRow("zero") << 0.0 << 1.0 << QString();
    QTest::newRow("hundreds") << 999.0 << 1.0 << QString();
    QTest::newRow("nano") << 34e-9 << 1e-9 << QStringLiteral("n");
    QTest::newRow("milli of a negative") << -0.5 << 1e-3 << QStringLiteral("m");
    QTest::newRow("beyond the largest") << 1e300 << 1e9 << QStringLiteral("G");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1.0 << QString();
}

void TestSiText::prefix()
{
    QFETCH(double, magnitude);
    QFETCH(double, factor);
    QFETCH(QString, letter);
    const SiPrefix prefix = siPrefix(magnitude);
    QCOMPARE(prefix.factor, factor);
    QCOMPARE(prefix.letter, letter);
}

void TestSiText::number_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole") << 200000.0 << 6 << QStringLiteral("200000");
    QTest::newRow("no decimals wanted") << 1200.0 << 0 << QStringLiteral("1200");
    QTest::newRow("rounded away") << 0.00004 << 4 << QStringLiteral("0");
    QTest::newRow("never minus zero") << -0.00004 << 4 << QStringLiteral("0");
    QTest::newRow("negative") << -0.25 << 4 << QStringLiteral("−0.25");
}

void TestSiText::number()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, expected);
    QCOMPARE(trimmedNumber(value, decimals), expected);
}

QTEST_APPLESS_MAIN(TestSiText)
#include "test_sitext.moc"
