// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanelkeys.h"
#include "scenariokeys.h"

#include <QtTest>

class TestScenarioKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codes()
    {
        QCOMPARE(frontKeyCode("knob"), int(QT_KEY_KNOB));
        QCOMPARE(frontKeyCode("5"), int(Qt::Key_5));
        QCOMPARE(frontKeyCode("knobs"), 0);
        QVERIFY(isFrontKeyName("home"));
        QVERIFY(!isFrontKeyName("Home"));
        QVERIFY(frontKeyNames().contains("channel1"));
    }

    void numbers_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("keys");
        QTest::newRow("prefix") << "2.5"
                                << "u"
                                << "2 point 5 mu";
        QTest::newRow("negative") << "-1.25"
                                  << "x1"
                                  << "minus 1 point 2 5 x1";
        QTest::newRow("none") << "30"
                              << ""
                              << "3 0 enter";
        QTest::newRow("milli") << "7"
                               << "m"
                               << "7 km";
        QTest::newRow("kilo") << "7"
                              << "k"
                              << "7 km";
        QTest::newRow("mega") << "7"
                              << "M"
                              << "7 mu";
        QTest::newRow("giga") << "7"
                              << "G"
                              << "7 gn";
        QTest::newRow("nano") << "7"
                              << "n"
                              << "7 gn";
        QTest::newRow("two points") << "1.2.3"
                                    << "u"
                                    << "";
        QTest::newRow("no digits") << "-"
                                   << ""
                                   << "";
        QTest::newRow("point first") << ".5"
                                     << ""
                                     << "";
        QTest::newRow("other digits") << "\u0663"
                                      << ""
                                      << "";
        QTest::newRow("unknown prefix") << "1"
                                        << "p"
                                        << "";
        QTest::newRow("upper case K") << "1"
                                      << "K"
                                      << "";
    }

    void numbers()
    {
        QFETCH(QString, number);
        QFETCH(QString, prefix);
        const QStringList keys = keysOfNumber(number, prefix);
        QTEST(keys.join(' '), "keys");
        for (const QString& key : keys)
            QVERIFY(isFrontKeyName(key));
    }
};

QTEST_GUILESS_MAIN(TestScenarioKeys)

#include "test_scenariokeys.moc"
