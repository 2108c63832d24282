// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "levels.h"

#include <QtTest>

using namespace LevelText;

class TestMultiPulseEditorPrivateLoad : public QObject
{
    Q_OBJECT

private slots:
    void rescales_data();
    void rescales();
    void rescalesSilently();
    void widensSilently();
    void widensForHighZ();
};

void TestMultiPulseEditorPrivateLoad::rescales_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<bool>("toHighZ");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::addColumn<QString>("levels");

    const auto row = [](const char* name, int family, bool toHighZ, double high, double low,
                        const char* levels) {
        QTest::newRow(name) << family << toHighZ << high << low << text(levels);
    };
    row("1 V and 0 V to high Z", 4, true, 1, 0,
        "A 2, O 1 (-4, 4), H 2 (0.002, 10), L 0 (-10, 1.998)");
    row("2 V and 0 V to 50 ohms", 4, false, 2, 0,
        "A 1, O 0.5 (-4.5, 4.5), H 1 (0.001, 5), L 0 (-5, 0.999)");
    row("full scale to high Z", 4, true, 5, -5,
        "A 20, O 0 (5, -5), H 10 (-9.998, 10), L -10 (-10, 9.998)");
    row("full scale to 50 ohms", 4, false, 10, -10,
        "A 10, O 0 (0, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)");
    row("fast family to high Z", 0, true, 2.5, 1.5,
        "A 2, O 4 (-1.5, 1.5), H 5 (3.002, 5), L 3 (-5, 4.998)");
    row("fast family to 50 ohms", 1, false, -1, -3,
        "A 1, O -1 (-2, 2), H -0.5 (-1.499, 2.5), L -1.5 (-2.5, -0.501)");
}

void TestMultiPulseEditorPrivateLoad::rescales()
{
    QFETCH(int, family);
    QFETCH(bool, toHighZ);
    QFETCH(double, high);
    QFETCH(double, low);

    Levels levels(family);
    levels.start(toHighZ ? Levels::Ohm50 : Levels::HighZ);
    levels.setLevels(high, low);
    levels.model->m_dbHighLevel = high;
    levels.model->m_dbLowLevel = low;
    levels.model->rescaleLevels(toHighZ);
    QTEST(shown(*levels.model), "levels");
    QCOMPARE(levels.components(),
             shown(*levels.model).mid(shown(*levels.model).indexOf(text("H"))));
}

void TestMultiPulseEditorPrivateLoad::rescalesSilently()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    const double pairs[][2] = {{5, -5}, {1, 0}, {0, -1}, {2.5, -0.0001}, {0.0001, -4}};
    for (const auto& pair : pairs) {
        levels.setLevels(pair[0], pair[1]);
        levels.model->slt_highLevelChanged(pair[0]);
        levels.model->rescaleLevels(true);
        QCOMPARE(number(levels.high->get()), number(2 * pair[0]));
        QCOMPARE(number(levels.low->get()), number(2 * pair[1]));
        levels.model->rescaleLevels(false);
        QCOMPARE(number(levels.high->get()), number(pair[0]));
        QCOMPARE(number(levels.low->get()), number(pair[1]));
    }
    QVERIFY2(Levels::warnings().isEmpty(), qPrintable(Levels::warnings().join(QLatin1Char('|'))));
}

// However near the levels lie to each other or to the bounds: the ranges widen first.
void TestMultiPulseEditorPrivateLoad::widensSilently()
{
    const double pairs[][2] = {{5, 4.999}, {-4.999, -5}, {0.001, 0}, {3, 2.5}, {-2, -3}};
    for (const auto& pair : pairs) {
        Levels levels(4);
        levels.start(Levels::Ohm50);
        levels.setLevels(pair[0], pair[1]);
        levels.model->slt_highLevelChanged(pair[0]);
        levels.model->rescaleLevels(true);
        QCOMPARE(number(levels.high->get()), number(2 * pair[0]));
        QCOMPARE(number(levels.low->get()), number(2 * pair[1]));
        QVERIFY2(Levels::warnings().isEmpty(),
                 qPrintable(Levels::warnings().join(QLatin1Char('|'))));
    }
}

// Whatever the load is and whatever the ranges were.
void TestMultiPulseEditorPrivateLoad::widensForHighZ()
{
    for (const Levels::Load load : {Levels::Ohm50, Levels::HighZ}) {
        Levels levels(4);
        levels.start(load);
        levels.setLevels(2, -1);
        levels.model->widenForHighZ();
        QCOMPARE(shown(*levels.model),
                 text("A 2.5, O 0 (-3.75, 3.75), H 1.25 (-0.998, 10), L -1.25 (-10, 1.998)"));
        QCOMPARE(levels.components(), text("H 2 (-0.998, 10), L -1 (-10, 1.998)"));
    }
}

QTEST_MAIN(TestMultiPulseEditorPrivateLoad)

#include "test_multipulseeditorprivate_load.moc"
