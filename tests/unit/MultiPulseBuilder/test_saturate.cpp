// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "saturate.h"

#include <QtTest>

class TestSaturate : public QObject
{
    Q_OBJECT

private slots:
    void countOfDouble_data();
    void countOfDouble();
    void countOfSum_data();
    void countOfSum();
};

void TestSaturate::countOfDouble_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("cut down") << 0.9 << 0;
    QTest::newRow("cut up") << -0.9 << 0;
    QTest::newRow("whole") << 131072.0 << 131072;
    QTest::newRow("largest") << 2147483647.0 << 2147483647;
    QTest::newRow("beyond the largest") << 2147483648.0 << 2147483647;
    QTest::newRow("smallest") << -2147483648.0 << -2147483647 - 1;
    QTest::newRow("below the smallest") << -2147483649.0 << -2147483647 - 1;
    QTest::newRow("huge") << 1e300 << 2147483647;
    QTest::newRow("infinite") << qInf() << 2147483647;
    QTest::newRow("minus infinite") << -qInf() << -2147483647 - 1;
    QTest::newRow("not a number") << qQNaN() << 0;
}

void TestSaturate::countOfDouble()
{
    QFETCH(double, value);
    QTEST(toCount(value), "count");
}

void TestSaturate::countOfSum_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("count");
    QTest::newRow("inside") << qint64(-7) << -7;
    QTest::newRow("beyond the largest") << qint64(2147483648) << 2147483647;
    QTest::newRow("below the smallest") << qint64(-2147483649) << -2147483647 - 1;
}

void TestSaturate::countOfSum()
{
    QFETCH(qint64, value);
    QTEST(toCount(value), "count");
}

QTEST_APPLESS_MAIN(TestSaturate)

#include "test_saturate.moc"
