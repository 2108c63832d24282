// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "engineeringtext.h"

#include "dbutils.h"

#include <QtTest>

#include <cstring>
#include <limits>

namespace {

const double Infinity = std::numeric_limits<double>::infinity();

// Qt Test compares doubles with a tolerance; a cell's value goes into waveform files bit by bit.
quint64 bits(double value)
{
    quint64 result = 0;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

void addText(const QString& text, double value)
{
    QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(text))) << text << value;
}

} // namespace

class TestEngineeringText : public QObject
{
    Q_OBJECT

private slots:
    void readsNumbers_data();
    void readsNumbers();
    void readsUnreadableAsZero_data();
    void readsUnreadableAsZero();
    void roundsToResolution_data();
    void roundsToResolution();
    void readsTypicalCells_data();
    void readsTypicalCells();
};

void TestEngineeringText::readsNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    addText(QStringLiteral("3"), 3.0);
    addText(QStringLiteral("-3"), -3.0);
    addText(QStringLiteral("+3"), 3.0);
    addText(QStringLiteral("1e3"), 1000.0);
    addText(QStringLiteral("123.456789012"), 123.456789012);
    addText(QStringLiteral("2.000n"), 2.0 * 1e-09);
    addText(QStringLiteral("2.000u"), 2.0 * 1e-06);
    addText(QStringLiteral("2.000m"), 2.0 * 0.001);
    addText(QStringLiteral("2.000K"), 2000.0);
    addText(QStringLiteral("2.000M"), 2000000.0);
    addText(QStringLiteral("2.000G"), 2000000000.0);
    addText(QStringLiteral("1.5K"), 1500.0);
    addText(QStringLiteral("-1.5m"), -1.5 * 0.001);
    addText(QStringLiteral("u5"), 5.0 * 1e-06);
    addText(QStringLiteral("5u0"), 50.0 * 1e-06);
    addText(QStringLiteral("u-5"), -5.0 * 1e-06);
    addText(QStringLiteral("-u5"), -5.0 * 1e-06);
    addText(QStringLiteral("1u.5"), 1.5 * 1e-06);
    addText(QStringLiteral("1e3u"), 1000.0 * 1e-06);
    addText(QStringLiteral("1eu3"), 1000.0 * 1e-06);
    addText(QStringLiteral(".5u"), 0.5 * 1e-06);
    addText(QStringLiteral("5.u"), 5.0 * 1e-06);
    addText(QStringLiteral("2.000 u"), 2.0 * 1e-06);
    addText(QStringLiteral("  2.000u  "), 2.0 * 1e-06);
    addText(QStringLiteral("\t2.000u\n"), 2.0 * 1e-06);
    addText(QStringLiteral("123456789012K"), 123456789012.0 * 1000);
    addText(QStringLiteral("1e300G"), 1e300 * 1e9);
    addText(QStringLiteral("1e308G"), Infinity);
    addText(QStringLiteral("-1e308G"), -Infinity);
}

void TestEngineeringText::readsNumbers()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    const double resolution = 1e-09;
    QCOMPARE(bits(engineeringTextToDouble(text, resolution)), bits(DBRound(value, resolution)));
}

void TestEngineeringText::readsUnreadableAsZero_data()
{
    QTest::addColumn<QString>("text");

    const QStringList texts = {
        QString(),
        QStringLiteral(" "),
        QStringLiteral("abc"),
        QStringLiteral("u"),
        QStringLiteral("2.000us"),
        QStringLiteral("2.000 us"),
        QStringLiteral("2.000s"),
        QStringLiteral("5k"),
        QStringLiteral("5U"),
        QStringLiteral("5N"),
        QStringLiteral("5g"),
        QStringLiteral("5mu"),
        QStringLiteral("mm5"),
        QStringLiteral("uu"),
        QStringLiteral("2,5u"),
        QStringLiteral("1,000"),
        QStringLiteral("1 000u"),
        QStringLiteral("0x10"),
        QStringLiteral("--5u"),
        QStringLiteral("5.0.0u"),
        QStringLiteral("5\u00b5"),
        // The n of these words is taken for the prefix.
        QStringLiteral("inf"),
        QStringLiteral("nan"),
    };
    for (const QString& text : texts)
        QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(text))) << text;
}

void TestEngineeringText::readsUnreadableAsZero()
{
    QFETCH(QString, text);

    QCOMPARE(bits(engineeringTextToDouble(text, 1e-09)), bits(0.0));
}

void TestEngineeringText::roundsToResolution_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<double>("steps");

    QTest::newRow("a step below") << QStringLiteral("0.4n") << 1e-09 << 0.0;
    QTest::newRow("half a step") << QStringLiteral("0.5n") << 1e-09 << 1.0;
    QTest::newRow("half a step down") << QStringLiteral("-0.5n") << 1e-09 << -1.0;
    QTest::newRow("between steps") << QStringLiteral("2.0004u") << 1e-09 << 2000.0;
    QTest::newRow("half between steps") << QStringLiteral("2.0005u") << 1e-09 << 2001.0;
    QTest::newRow("coarse") << QStringLiteral("149u") << 0.0001 << 1.0;
    QTest::newRow("coarse, to nothing") << QStringLiteral("49u") << 0.0001 << 0.0;
    QTest::newRow("more than 2^31 steps") << QStringLiteral("3") << 1e-09 << 3e9;
}

void TestEngineeringText::roundsToResolution()
{
    QFETCH(QString, text);
    QFETCH(double, resolution);
    QFETCH(double, steps);

    QCOMPARE(bits(engineeringTextToDouble(text, resolution)), bits(steps * resolution));
}

void TestEngineeringText::readsTypicalCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("seconds");

    QTest::newRow("new width") << QStringLiteral("2.000u") << 2e-06;
    QTest::newRow("new gap") << QStringLiteral("10.000u") << 1e-05;
    QTest::newRow("shortest") << QStringLiteral("20.000n") << 2e-08;
    QTest::newRow("longest") << QStringLiteral("150.000u") << 0.00015;
}

void TestEngineeringText::readsTypicalCells()
{
    QFETCH(QString, text);
    QFETCH(double, seconds);

    QVERIFY(qAbs(engineeringTextToDouble(text, 1e-09) - seconds) < 1e-19);
}

QTEST_APPLESS_MAIN(TestEngineeringText)
#include "test_engineeringtext.moc"
