// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "levels.h"

#include <QtTest>

using namespace LevelText;

class TestMultiPulseEditorPrivateUser : public QObject
{
    Q_OBJECT

private slots:
    void userEntersLevels();
    void userTurnsTheKnob();
    void userMeetsTheOtherLevel();
    void userChoosesTheLoad();
    void userEntersLevelsIntoHighZ();
};

void TestMultiPulseEditorPrivateUser::userEntersLevels()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    Levels::enter(levels.high, "2");
    QCOMPARE(lastLine("slt_highLevelChanged"),
             text("info: slt_highLevelChanged ") +
                 body("3.25 QPointF(0.001,10)", "0.375 QPointF(-3.375,3.375)",
                      "2 QPointF(-1.249,5)", "-1.25 QPointF(-5,1.999)"));
    Levels::enter(levels.low, "-1");
    QCOMPARE(lastLine("slt_lowLevelChanged"),
             text("info: slt_lowLevelChanged ") +
                 body("3 QPointF(0.001,10)", "0.5 QPointF(-3.499,3.5)", "2 QPointF(-0.999,5)",
                      "-1 QPointF(-5,1.999)"));
    QCOMPARE(levels.components(), text("H 2 (-0.999, 5), L -1 (-5, 1.999)"));
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivateUser::userTurnsTheKnob()
{
    const Levels levels(0);
    QVERIFY(levels.show());
    FrontPanel::tap(levels.high->focusProxy());
    FrontPanel::knob(1);
    const double high = levels.high->get();
    QVERIFY(high > 1.25);
    QCOMPARE(levels.components(), quantity("H", high, -1.249, 2.5) + text(", ") +
                                      quantity("L", -1.25, -2.5, high - 0.001));
}

// One millivolt stays between the levels.
void TestMultiPulseEditorPrivateUser::userMeetsTheOtherLevel()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    Levels::enter(levels.low, "-1");
    Levels::enter(levels.high, "-1");
    QCOMPARE(Levels::warnings(),
             QStringList{QStringLiteral("ARBID_ERROR_CODE_S0207(-1) \n"
                                        "STR_ID_VALID_RANGE   (-0.999 \u2014 5)")});
    QCOMPARE(number(levels.high->get()), text("-0.999"));
}

void TestMultiPulseEditorPrivateUser::userChoosesTheLoad()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    Levels::enter(levels.high, "1");
    Levels::enter(levels.low, "0");
    levels.choose(Levels::HighZ);
    QCOMPARE(levels.load->get(), Uint16(1));
    QCOMPARE(levels.components(), text("H 2 (0.002, 10), L 0 (-10, 1.998)"));
    levels.choose(Levels::HighZ);
    QCOMPARE(levels.components(), text("H 2 (0.002, 10), L 0 (-10, 1.998)"));
    levels.choose(Levels::Ohm50);
    QCOMPARE(levels.components(), text("H 1 (0.001, 5), L 0 (-5, 0.999)"));
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivateUser::userEntersLevelsIntoHighZ()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    levels.choose(Levels::HighZ);
    Levels::enter(levels.high, "10");
    Levels::enter(levels.low, "-10");
    QCOMPARE(lastLine("slt_lowLevelChanged"),
             text("info: slt_lowLevelChanged ") +
                 body("20 QPointF(0.001,10)", "0 QPointF(5.001,-5)", "10 QPointF(-9.998,10)",
                      "-10 QPointF(-10,9.998)"));
    QCOMPARE(levels.components(), text("H 10 (-9.998, 10), L -10 (-10, 9.998)"));
    QVERIFY(Levels::warnings().isEmpty());
}

QTEST_MAIN(TestMultiPulseEditorPrivateUser)

#include "test_multipulseeditorprivate_user.moc"
