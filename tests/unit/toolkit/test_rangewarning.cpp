// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rangewarning.h"

#include "testtranslator.h"

#include <QtTest>

class TestRangeWarning : public QObject
{
    Q_OBJECT

private slots:
    void tellsValueAndRange_data();
    void tellsValueAndRange();
    void followsLanguage();
};

void TestRangeWarning::tellsValueAndRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("numbers");

    QTest::newRow("seconds") << 0.005 << 2e-8 << 0.00015
                             << QStringLiteral("0.005|2e-08 \u2014 0.00015");
    QTest::newRow("count") << 31.0 << 2.0 << 30.0 << QStringLiteral("31|2 \u2014 30");
    QTest::newRow("six digits") << -12345678.9 << -5.0 << 1.23456789
                                << QStringLiteral("-1.23457e+07|-5 \u2014 1.23457");
    QTest::newRow("zero") << 0.0 << 1e-6 << 1.0 << QStringLiteral("0|1e-06 \u2014 1");
}

void TestRangeWarning::tellsValueAndRange()
{
    QFETCH(double, value);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, numbers);

    const QStringList parts = numbers.split(QLatin1Char('|'));
    QCOMPARE(appPlugins::rangeWarning(value, min, max),
             QStringLiteral("ARBID_ERROR_CODE_S0207(") + parts[0] +
                 QStringLiteral(") \nSTR_ID_VALID_RANGE   (") + parts[1] + QLatin1Char(')'));
}

void TestRangeWarning::followsLanguage()
{
    const TestTranslator german(QStringLiteral("de:"));
    QCOMPARE(appPlugins::rangeWarning(3, 0, 1),
             QStringLiteral("de:ARBID_ERROR_CODE_S0207(3) \nde:STR_ID_VALID_RANGE   (0 \u2014 1)"));
}

QTEST_GUILESS_MAIN(TestRangeWarning)
#include "test_rangewarning.moc"
