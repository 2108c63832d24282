// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "levels.h"

#include <QtTest>

using namespace LevelText;

class TestMultiPulseEditorPrivateSetups : public QObject
{
    Q_OBJECT

private slots:
    void amplitudeOfASetup_data();
    void amplitudeOfASetup();
    void amplitudeBeyondTheOldLevels();
    void amplitudeIsLogged();
    void offsetOfASetup_data();
    void offsetOfASetup();
    void offsetBeyondTheRange();
    void offsetIsLogged();
    void setupAsItIsRestored();
};

void TestMultiPulseEditorPrivateSetups::amplitudeOfASetup_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<QString>("levels");
    QTest::addColumn<QString>("components");

    const auto row = [](int family, Levels::Load load, double amplitude, const char* levels,
                        const char* components) {
        QTest::addRow("row %d, %s, %g V", family, load == Levels::HighZ ? "high Z" : "50 ohms",
                      amplitude)
            << family << int(load) << amplitude << text(levels) << text(components);
    };
    // The distances to the other level are those to the levels before: 1.25 and -1.25.
    row(4, Levels::Ohm50, 4, "A 4, O 0 (-3, 3), H 2 (-1.249, 5), L -2 (-5, 1.249)",
        "H 2 (-1.249, 5), L -2 (-5, 1.249)");
    row(4, Levels::Ohm50, 2.5, "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-1.249, 5), L -1.25 (-5, 1.249)",
        "H 1.25 (-1.249, 5), L -1.25 (-5, 1.249)");
    row(4, Levels::Ohm50, 1.0001,
        "A 1.0001, O 0 (-4.4999, 4.4999), H 0.5001 (-1.249, 5), L -0.5001 (-5, 1.249)",
        "H 0.5001 (-1.249, 5), L -0.5001 (-5, 1.249)");
    row(0, Levels::Ohm50, 4, "A 4, O 0 (-0.5, 0.5), H 2 (-1.249, 2.5), L -2 (-2.5, 1.249)",
        "H 2 (-1.249, 2.5), L -2 (-2.5, 1.249)");
    row(4, Levels::Ohm50, 0, "A 0, O 0 (-5, 5), H 0 (-1.249, 5), L 0 (-5, 1.249)",
        "H 0 (-1.249, 5), L 0 (-5, 1.249)");
    // Into a high impedance all is the same: nothing is doubled here.
    row(4, Levels::HighZ, 4, "A 4, O 0 (-3, 3), H 2 (-1.249, 5), L -2 (-5, 1.249)",
        "H 2 (-1.249, 5), L -2 (-5, 1.249)");
    row(0, Levels::HighZ, 1, "A 1, O 0 (-2, 2), H 0.5 (-1.249, 2.5), L -0.5 (-2.5, 1.249)",
        "H 0.5 (-1.249, 2.5), L -0.5 (-2.5, 1.249)");
}

void TestMultiPulseEditorPrivateSetups::amplitudeOfASetup()
{
    QFETCH(int, family);
    QFETCH(int, load);
    QFETCH(double, amplitude);

    Levels levels(family);
    levels.start(load == Levels::HighZ ? Levels::HighZ : Levels::Ohm50);
    levels.setLevels(0.1, -0.1);
    levels.model->util_amplitudeChanged(amplitude);
    QTEST(shown(*levels.model), "levels");
    QTEST(levels.components(), "components");
    QVERIFY(Levels::warnings().isEmpty());
}

// The model keeps what follows from the numbers; the components keep to their ranges and tell.
void TestMultiPulseEditorPrivateSetups::amplitudeBeyondTheOldLevels()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.model->m_dbOffset = 4;
    levels.model->util_amplitudeChanged(4);
    QCOMPARE(shown(*levels.model), text("A 4, O 4 (-3, 3), H 6 (-1.249, 5), L 2 (-5, 1.249)"));
    QCOMPARE(levels.components(), text("H 5 (-1.249, 5), L 1.249 (-5, 1.249)"));
    QCOMPARE(Levels::warnings().size(), 2);
}

void TestMultiPulseEditorPrivateSetups::amplitudeIsLogged()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.model->util_amplitudeChanged(4);
    QCOMPARE(LogCapture::messages().last(),
             text("warning: MultiPulseEditorPrivate::util_amplitudeChanged ") +
                 body("4 QPointF(0.001,10)", "0 QPointF(-3,3)", "2 QPointF(-1.249,5)",
                      "-2 QPointF(-5,1.249)"));
}

void TestMultiPulseEditorPrivateSetups::offsetOfASetup_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("offset");
    QTest::addColumn<QString>("levels");
    QTest::addColumn<QString>("components");

    const auto row = [](int family, Levels::Load load, double offset, const char* levels,
                        const char* components) {
        QTest::addRow("row %d, %s, %g V", family, load == Levels::HighZ ? "high Z" : "50 ohms",
                      offset)
            << family << int(load) << offset << text(levels) << text(components);
    };
    // The components keep the range -100 to 100 that the test gave them.
    row(4, Levels::Ohm50, 1, "A 2.5, O 1 (-3.75, 3.75), H 2.25 (-4.999, 5), L -0.25 (-5, 4.999)",
        "H 2.25 (-100, 100), L -0.25 (-100, 100)");
    row(4, Levels::Ohm50, 0, "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)",
        "H 1.25 (-100, 100), L -1.25 (-100, 100)");
    row(4, Levels::Ohm50, -0.1234,
        "A 2.5, O -0.1234 (-3.75, 3.75), H 1.1266 (-4.999, 5), L -1.3734 (-5, 4.999)",
        "H 1.1266 (-100, 100), L -1.3734 (-100, 100)");
    row(0, Levels::HighZ, -2,
        "A 2.5, O -2 (-1.25, 1.25), H -0.75 (-2.499, 2.5), L -3.25 (-2.5, 2.499)",
        "H -0.75 (-100, 100), L -3.25 (-100, 100)");
}

void TestMultiPulseEditorPrivateSetups::offsetOfASetup()
{
    QFETCH(int, family);
    QFETCH(int, load);
    QFETCH(double, offset);

    Levels levels(family);
    levels.start(load == Levels::HighZ ? Levels::HighZ : Levels::Ohm50);
    levels.setLevels(0.1, -0.1);
    levels.model->util_offsetChanged(offset);
    QTEST(shown(*levels.model), "levels");
    QTEST(levels.components(), "components");
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivateSetups::offsetBeyondTheRange()
{
    Levels levels(0);
    levels.start(Levels::Ohm50);
    levels.model->util_offsetChanged(-3);
    QCOMPARE(shown(*levels.model),
             text("A 2.5, O -3 (-1.25, 1.25), H -1.75 (-2.499, 2.5), L -4.25 (-2.5, 2.499)"));
    QCOMPARE(levels.components(), text("H -1.75 (-2.499, 2.5), L -2.5 (-2.5, 2.499)"));
    QCOMPARE(Levels::warnings().size(), 1);
}

void TestMultiPulseEditorPrivateSetups::offsetIsLogged()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.model->util_offsetChanged(1);
    QCOMPARE(LogCapture::messages().last(),
             text("warning: util_offsetChanged ") +
                 body("2.5 QPointF(0.001,10)", "1 QPointF(-3.75,3.75)", "2.25 QPointF(-4.999,5)",
                      "-0.25 QPointF(-5,4.999)"));
}

// Amplitude first, then offset, which leaves the ranges that the amplitude has made.
void TestMultiPulseEditorPrivateSetups::setupAsItIsRestored()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.model->util_amplitudeChanged(1);
    levels.model->util_offsetChanged(0.5);
    QCOMPARE(shown(*levels.model),
             text("A 1, O 0.5 (-4.5, 4.5), H 1 (-1.249, 5), L 0 (-5, 1.249)"));
    QCOMPARE(levels.components(), text("H 1 (-1.249, 5), L 0 (-5, 1.249)"));
}

QTEST_MAIN(TestMultiPulseEditorPrivateSetups)

#include "test_multipulseeditorprivate_setups.moc"
