// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanelkeys.h"

#include <QtTest>

class TestFrontPanelKeys : public QObject
{
    Q_OBJECT

private slots:
    void codes_data();
    void codes();
};

void TestFrontPanelKeys::codes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");

    QTest::newRow("giga, nano") << int(QT_KEY_GN) << 705;
    QTest::newRow("mega, micro") << int(QT_KEY_MU) << 709;
    QTest::newRow("kilo, milli") << int(QT_KEY_KM) << 713;
    QTest::newRow("output of channel 1") << int(QT_KEY_CH1ON) << 725;
    QTest::newRow("default") << int(QT_KEY_DEFAULT) << 729;
    QTest::newRow("utility") << int(QT_KEY_UTLITY) << 730;
    QTest::newRow("manual") << int(QT_KEY_MANUAL) << 731;
    QTest::newRow("knob") << int(QT_KEY_KNOB) << 732;
    QTest::newRow("base unit") << int(QT_KEY_X1) << 734;
    QTest::newRow("home") << int(QT_KEY_HOME) << 735;
    QTest::newRow("back") << int(QT_KEY_BACK) << 736;
    QTest::newRow("minus") << int(QT_KEY_MINUS) << 737;
    QTest::newRow("help") << int(QT_KEY_HELP) << 738;
}

void TestFrontPanelKeys::codes()
{
    QFETCH(int, key);
    QTEST(key, "code");
}

QTEST_APPLESS_MAIN(TestFrontPanelKeys)
#include "test_frontpanelkeys.moc"
