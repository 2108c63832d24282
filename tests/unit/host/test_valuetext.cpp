// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "valuetext.h"

#include <QTest>

#include <limits>

class TestValueText : public QObject
{
    Q_OBJECT

private slots:
    void texts_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("full");
        QTest::addColumn<QString>("brief");
        QTest::newRow("zero") << 0.0 << "0.000 V"
                              << "0.000 V";
        QTest::newRow("one") << 1.0 << "1.000 V"
                             << "1.000 V";
        QTest::newRow("mega") << 1e6 << "1.000 MV"
                              << "1.000 MV";
        QTest::newRow("fine") << 12345.678901 << "12.345679 kV"
                              << "12.346 kV";
        QTest::newRow("negative") << -0.5 << "−500.000 mV"
                                  << "−500.000 mV";
        QTest::newRow("micro") << 2.5e-6 << "2.500 µV"
                               << "2.500 µV";
        QTest::newRow("nano") << 1e-9 << "1.000 nV"
                              << "1.000 nV";
        QTest::newRow("below nano") << 1e-12 << "0.001 nV"
                                    << "0.001 nV";
        QTest::newRow("giga") << 1e9 << "1.000 GV"
                              << "1.000 GV";
        QTest::newRow("beyond giga") << 2e13 << "20000.000 GV"
                                     << "20000.000 GV";
        QTest::newRow("rounded up") << 999.99999999999 << "1.000 kV"
                                    << "1.000 kV";
        QTest::newRow("just below") << 999.9995 << "999.9995 V"
                                    << "1.000 kV";
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "∞"
                                  << "∞";
    }

    void texts()
    {
        QFETCH(double, value);
        QTEST(valueText(value, QStringLiteral("V")), "full");
        QTEST(shortValueText(value, QStringLiteral("V")), "brief");
    }

    void fewerDecimals()
    {
        QCOMPARE(valueText(50, QStringLiteral("Ω"), 0), QStringLiteral("50 Ω"));
        QCOMPARE(valueText(49.5, QStringLiteral("Ω"), 0), QStringLiteral("49.5 Ω"));
        QCOMPARE(valueText(1000, QStringLiteral("Ω"), 0), QStringLiteral("1 kΩ"));
    }
};

QTEST_GUILESS_MAIN(TestValueText)
#include "test_valuetext.moc"
