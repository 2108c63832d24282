// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "levels.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace LevelText;

namespace {

// Half an amplitude in steps of 0.1 mV.
double half(double amplitude)
{
    return std::round(amplitude * 5000) / 10000;
}

struct Family
{
    int row;
    double bound;
};
const Family Families[] = {{0, 2.5}, {1, 2.5}, {2, 5}, {3, 5}, {4, 5}};

} // namespace

class TestMultiPulseEditorPrivate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void constantsOfTheDevice_data();
    void constantsOfTheDevice();
    void constantsStay();
    void constantsWithoutADevice();
    void startsAtTwoAndAHalfVolts();
    void initMembers_data();
    void initMembers();
    void initMembersIsLogged();
    void windowStarts_data();
    void windowStarts();
    void limitsInto50Ohms();
    void limitsIntoHighZ();
    void limitsIntoHighZTwice();
    void levelChanged_data();
    void levelChanged();
    void leastOffsetOfTheTwoSlots();
    void levelsOfEveryFamily_data();
    void levelsOfEveryFamily();
    void levelChangeSetsNoComponent();
    void levelChangeIsLogged();
    void levelOutOfRangeIsTaken();
    void validates_data();
    void validates();
    void validateIsLogged();
};

void TestMultiPulseEditorPrivate::init()
{
    g_currentDeviceType.clear();
}

void TestMultiPulseEditorPrivate::constantsOfTheDevice_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<double>("maxAmplitude");
    QTest::addColumn<double>("bound");
    QTest::newRow("KVX705XX") << 0 << 5.0 << 2.5;
    QTest::newRow("KVX7040X") << 1 << 5.0 << 2.5;
    QTest::newRow("KVX7030X") << 2 << 10.0 << 5.0;
    QTest::newRow("KVX7020X") << 3 << 10.0 << 5.0;
    QTest::newRow("KVX7010X") << 4 << 10.0 << 5.0;
}

void TestMultiPulseEditorPrivate::constantsOfTheDevice()
{
    QFETCH(int, family);
    QFETCH(double, bound);

    g_currentDeviceType = deviceFamilies().at(family);
    QCOMPARE(g_currentDeviceType.first(), text(QTest::currentDataTag()));
    const MultiPulseEditorPrivate model;
    QTEST(model.m_dbMaxAmplitude, "maxAmplitude");
    QVERIFY(model.m_dbMinAmplitude == 0.001);
    QCOMPARE(model.m_dbOffsetPlusConst, bound);
    QCOMPARE(model.m_dbOffsetMinusConst, -bound);
}

// The bounds of a device need not be alike.
void TestMultiPulseEditorPrivate::constantsStay()
{
    const LogCapture log;
    g_currentDeviceType =
        QStringList{text("X"), text("7.5"), text("0.25"), text("4"), text("-2.5")};
    MultiPulseEditorPrivate model;
    g_currentDeviceType = deviceFamilies().at(0);
    model.initMembers();
    QCOMPARE(model.m_dbMaxAmplitude, 7.5);
    QCOMPARE(model.m_dbMinAmplitude, 0.25);
    QCOMPARE(shown(model),
             text("A 2.5, O 0 (-1.25, 2.75), H 1.25 (-2.499, 4), L -1.25 (-2.5, 3.999)"));
}

void TestMultiPulseEditorPrivate::constantsWithoutADevice()
{
    const MultiPulseEditorPrivate model;
    QCOMPARE(model.m_dbMaxAmplitude, 0.0);
    QCOMPARE(model.m_dbMinAmplitude, 0.0);
    QCOMPARE(model.m_dbOffsetPlusConst, 0.0);
    QCOMPARE(model.m_dbOffsetMinusConst, 0.0);
}

void TestMultiPulseEditorPrivate::startsAtTwoAndAHalfVolts()
{
    const MultiPulseEditorPrivate model;
    QCOMPARE(model.m_dbAmplitude, 2.5);
    QCOMPARE(model.m_dbOffset, 0.0);
    QVERIFY(model.parent() == nullptr);
}

void TestMultiPulseEditorPrivate::initMembers_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::addColumn<QString>("levels");

    const auto row = [](int family, double amplitude, double offset, const char* levels) {
        QTest::addRow("row %d, %g V, %g V", family, amplitude, offset)
            << family << amplitude << offset << text(levels);
    };
    for (const int slow : {2, 3, 4}) {
        row(slow, 2.5, 0, "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)");
    }
    for (const int fast : {0, 1}) {
        row(fast, 2.5, 0, "A 2.5, O 0 (-1.25, 1.25), H 1.25 (-2.499, 2.5), L -1.25 (-2.5, 2.499)");
    }
    row(4, 2.5, 0.5, "A 2.5, O 0.5 (-3.75, 3.75), H 1.75 (-4.999, 5), L -0.75 (-5, 4.999)");
    row(4, 10, 0, "A 10, O 0 (0, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)");
    row(4, 0, -1, "A 0, O -1 (-5, 5), H -1 (-4.999, 5), L -1 (-5, 4.999)");
    // Half of it is half a step, which rounds up; so the levels are farther apart than told.
    row(4, 0.0001, 0,
        "A 0.0001, O 0 (-4.9999, 4.9999), H 0.0001 (-4.999, 5), L -0.0001 (-5, 4.999)");
    row(4, 3.0001, 0.25,
        "A 3.0001, O 0.25 (-3.4999, 3.4999), H 1.7501 (-4.999, 5), L -1.2501 (-5, 4.999)");
    row(4, 0.00009, 0, "A 9e-05, O 0 (-5, 5), H 0 (-4.999, 5), L 0 (-5, 4.999)");
    // Nothing is refused here.
    row(0, 8, 3, "A 8, O 3 (1.5, -1.5), H 7 (-2.499, 2.5), L -1 (-2.5, 2.499)");
}

void TestMultiPulseEditorPrivate::initMembers()
{
    QFETCH(int, family);
    QFETCH(double, amplitude);
    QFETCH(double, offset);

    const LogCapture log;
    g_currentDeviceType = deviceFamilies().at(family);
    MultiPulseEditorPrivate model;
    model.m_dbAmplitude = amplitude;
    model.m_dbOffset = offset;
    model.initMembers();
    QTEST(shown(model), "levels");
}

void TestMultiPulseEditorPrivate::initMembersIsLogged()
{
    const LogCapture log;
    g_currentDeviceType = deviceFamilies().at(4);
    MultiPulseEditorPrivate model;
    QVERIFY(LogCapture::messages().isEmpty());
    model.initMembers();
    QCOMPARE(LogCapture::messages(),
             QStringList{text("info: MultiPulseEditorPrivate::initMembers() ") +
                         body("2.5 QPointF(0.001,10)", "0 QPointF(-3.75,3.75)",
                              "1.25 QPointF(-4.999,5)", "-1.25 QPointF(-5,4.999)")});
}

void TestMultiPulseEditorPrivate::windowStarts_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QString>("components");
    for (const Family& family : Families) {
        QTest::addRow("row %d", family.row)
            << family.row
            << (family.bound == 5 ? text("H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)")
                                  : text("H 1.25 (-2.499, 2.5), L -1.25 (-2.5, 2.499)"));
    }
}

void TestMultiPulseEditorPrivate::windowStarts()
{
    QFETCH(int, family);
    const Levels levels(family);
    QTEST(levels.components(), "components");
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::limitsInto50Ohms()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.setLevels(1.25, -1.25);
    const QString before = shown(*levels.model);
    levels.model->initHighLowLimits();
    levels.model->initHighLowLimits();
    QCOMPARE(shown(*levels.model), before);
    QCOMPARE(levels.components(), text("H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)"));

    const QStringList lines = LogCapture::messages().filter(text("initHighLowLimits"));
    QCOMPARE(
        lines.mid(lines.size() - 2),
        (QStringList{text("debug: MultiPulseEditorPrivate::initHighLowLimits highs -4.999 5"),
                     text("debug: MultiPulseEditorPrivate::initHighLowLimits lows -5 4.999")}));
    QVERIFY(LogCapture::messages().filter(text("HighZ")).isEmpty());
}

void TestMultiPulseEditorPrivate::limitsIntoHighZ()
{
    Levels levels(4);
    levels.start(Levels::HighZ);
    levels.setLevels(3, -1.5);
    levels.model->initHighLowLimits();
    QCOMPARE(shown(*levels.model),
             text("A 2.5, O 0 (-3.75, 3.75), H 1.25 (-1.498, 10), L -1.25 (-10, 2.998)"));
    QCOMPARE(levels.components(), text("H 3 (-1.498, 10), L -1.5 (-10, 2.998)"));
    const QStringList lines = LogCapture::messages().filter(text("initHighLowLimits"));
    QCOMPARE(
        lines.mid(lines.size() - 3),
        (QStringList{text("info: MultiPulseEditorPrivate::initHighLowLimits HighZ double all here"),
                     text("debug: MultiPulseEditorPrivate::initHighLowLimits highs -1.498 10"),
                     text("debug: MultiPulseEditorPrivate::initHighLowLimits lows -10 2.998")}));
}

void TestMultiPulseEditorPrivate::limitsIntoHighZTwice()
{
    Levels levels(0);
    levels.start(Levels::HighZ);
    levels.setLevels(3, -1.5);
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 5), L -1.5 (-5, 2.998)"));
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 10), L -1.5 (-10, 2.998)"));
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 20), L -1.5 (-20, 2.998)"));
}

void TestMultiPulseEditorPrivate::levelChanged_data()
{
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::addColumn<QString>("afterHigh");
    QTest::addColumn<QString>("afterLow");

    const auto row = [](Levels::Load load, double high, double low, const char* afterHigh,
                        const char* afterLow) {
        QTest::addRow("%s, %g V to %g V", load == Levels::HighZ ? "high Z" : "50 ohms", low, high)
            << int(load) << high << low << text(afterHigh) << text(afterLow);
    };
    row(Levels::Ohm50, 2, -1, "A 3, O 0.5 (-3.5, 3.5), H 2 (-0.999, 5), L -1 (-5, 1.999)",
        "A 3, O 0.5 (-3.499, 3.5), H 2 (-0.999, 5), L -1 (-5, 1.999)");
    row(Levels::Ohm50, 1, 0, "A 1, O 0.5 (-4.5, 4.5), H 1 (0.001, 5), L 0 (-5, 0.999)",
        "A 1, O 0.5 (-4.499, 4.5), H 1 (0.001, 5), L 0 (-5, 0.999)");
    row(Levels::Ohm50, 5, -5, "A 10, O 0 (0, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)",
        "A 10, O 0 (0.001, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)");
    row(Levels::Ohm50, -1, -1.0002,
        "A 0.0002, O -1.0001 (-4.9999, 4.9999), H -1 (-0.9992, 5), L -1.0002 (-5, -1.001)",
        "A 0.0002, O -1.0001 (-4.9989, 4.9999), H -1 (-0.9992, 5), L -1.0002 (-5, -1.001)");
    row(Levels::HighZ, 2, -1, "A 3, O 0.5 (-3.5, 3.5), H 2 (-0.998, 10), L -1 (-10, 1.998)",
        "A 3, O 0.5 (-3.499, 3.5), H 2 (-0.998, 10), L -1 (-10, 1.998)");
    row(Levels::HighZ, 10, -10, "A 20, O 0 (5, -5), H 10 (-9.998, 10), L -10 (-10, 9.998)",
        "A 20, O 0 (5.001, -5), H 10 (-9.998, 10), L -10 (-10, 9.998)");
}

void TestMultiPulseEditorPrivate::levelChanged()
{
    QFETCH(int, load);
    QFETCH(double, high);
    QFETCH(double, low);

    Levels levels(4);
    levels.start(load == Levels::HighZ ? Levels::HighZ : Levels::Ohm50);
    levels.setLevels(high, low);
    levels.model->slt_highLevelChanged(high);
    QTEST(shown(*levels.model), "afterHigh");

    levels.setLevels(high, low);
    levels.model->slt_lowLevelChanged(low);
    QTEST(shown(*levels.model), "afterLow");
}

// One millivolt apart, whatever was set before.
void TestMultiPulseEditorPrivate::leastOffsetOfTheTwoSlots()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.setLevels(2, -1);
    for (int round = 0; round < 3; ++round) {
        levels.model->slt_lowLevelChanged(-1);
        QCOMPARE(number(levels.model->m_dbMinOffset), text("-3.499"));
        levels.model->slt_lowLevelChanged(-1);
        QCOMPARE(number(levels.model->m_dbMinOffset), text("-3.499"));
        levels.model->slt_highLevelChanged(2);
        QCOMPARE(number(levels.model->m_dbMinOffset), text("-3.5"));
        QCOMPARE(number(levels.model->m_dbMaxOffset), text("3.5"));
    }
}

void TestMultiPulseEditorPrivate::levelsOfEveryFamily_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<double>("bound");
    QTest::addColumn<int>("load");
    for (const Family& family : Families) {
        for (const Levels::Load load : {Levels::Ohm50, Levels::HighZ}) {
            QTest::addRow("row %d, %s", family.row, load == Levels::HighZ ? "high Z" : "50 ohms")
                << family.row << family.bound << int(load);
        }
    }
}

void TestMultiPulseEditorPrivate::levelsOfEveryFamily()
{
    QFETCH(int, family);
    QFETCH(double, bound);
    QFETCH(int, load);

    Levels levels(family);
    levels.start(load == Levels::HighZ ? Levels::HighZ : Levels::Ohm50);
    const double factor = load == Levels::HighZ ? 2 : 1;
    const double distance = factor * 0.001;
    const double outer = factor * bound;
    // Even steps: half of an odd amplitude lies between two of them, where its noise decides.
    for (int lowSteps = -25000; lowSteps < 24000; lowSteps += 3332) {
        for (int highSteps = lowSteps + 22; highSteps <= 25000; highSteps += 4448) {
            const double low = factor * lowSteps / 10000;
            const double high = factor * highSteps / 10000;
            const double halfAmplitude = half(high - low);
            const auto expected = [&](double leastOffset) {
                return QStringLiteral("A %1, %2, %3, %4")
                    .arg(number(high - low),
                         quantity("O", (high + low) / 2, leastOffset, bound - halfAmplitude),
                         quantity("H", high, low + distance, outer),
                         quantity("L", low, -outer, high - distance));
            };
            levels.setLevels(high, low);
            levels.model->slt_highLevelChanged(high);
            QCOMPARE(shown(*levels.model), expected(halfAmplitude - bound));
            QCOMPARE(levels.components(), quantity("H", high, low + distance, outer) + text(", ") +
                                              quantity("L", low, -outer, high - distance));
            levels.model->slt_lowLevelChanged(low);
            QCOMPARE(shown(*levels.model), expected(halfAmplitude - bound + 0.001));
        }
    }
    QVERIFY(Levels::warnings().isEmpty());
}

// The level that was not changed is read from its component; the one that was changed is not set.
void TestMultiPulseEditorPrivate::levelChangeSetsNoComponent()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.setLevels(2, -1);
    levels.model->slt_highLevelChanged(3);
    QCOMPARE(shown(*levels.model), text("A 4, O 1 (-3, 3), H 3 (-0.999, 5), L -1 (-5, 2.999)"));
    QCOMPARE(levels.components(), text("H 2 (-0.999, 5), L -1 (-5, 2.999)"));

    levels.model->slt_lowLevelChanged(-2);
    QCOMPARE(shown(*levels.model), text("A 4, O 0 (-2.999, 3), H 2 (-1.999, 5), L -2 (-5, 1.999)"));
    QCOMPARE(levels.components(), text("H 2 (-1.999, 5), L -1 (-5, 1.999)"));
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::levelChangeIsLogged()
{
    Levels levels(4);
    levels.start(Levels::Ohm50);
    levels.setLevels(2, -1);
    levels.model->slt_highLevelChanged(2);
    QCOMPARE(LogCapture::messages().last(),
             text("info: slt_highLevelChanged ") +
                 body("3 QPointF(0.001,10)", "0.5 QPointF(-3.5,3.5)", "2 QPointF(-0.999,5)",
                      "-1 QPointF(-5,1.999)"));
    levels.model->slt_lowLevelChanged(-1);
    QCOMPARE(LogCapture::messages().last(),
             text("info: slt_lowLevelChanged ") +
                 body("3 QPointF(0.001,10)", "0.5 QPointF(-3.499,3.5)", "2 QPointF(-0.999,5)",
                      "-1 QPointF(-5,1.999)"));
}

// The model refuses nothing: its components do.
void TestMultiPulseEditorPrivate::levelOutOfRangeIsTaken()
{
    Levels levels(0);
    levels.start(Levels::Ohm50);
    levels.setLevels(2, -1);
    levels.model->slt_highLevelChanged(40);
    QCOMPARE(shown(*levels.model),
             text("A 41, O 19.5 (18, -18), H 40 (-0.999, 2.5), L -1 (-2.5, 39.999)"));
    QVERIFY(Levels::warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::validates_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("result");
    QTest::addColumn<bool>("changed");

    const auto row = [](const char* name, double value, double min, double max, double result,
                        bool changed) {
        QTest::newRow(name) << value << min << max << result << changed;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    row("inside", 1, -5, 5, 1, false);
    row("minimum", -5, -5, 5, -5, false);
    row("maximum", 5, -5, 5, 5, false);
    row("below", -5.1, -5, 5, -5, true);
    row("above", 5.1, -5, 5, 5, true);
    row("far above", infinity, -5, 5, 5, true);
    row("rounded minimum", 0.001, 0.00104, 5, 0.001, false);
    row("above the rounded minimum", 0.00102, 0.00104, 5, 0.00102, false);
    row("below the rounded minimum", 0.00099, 0.00104, 5, 0.001, true);
    row("minimum rounded up", 0.00106, 0.00105, 5, 0.0011, true);
    row("rounded maximum", 1.0001, 0, 1.00006, 1.0001, false);
    row("below the rounded maximum", 1.00008, 0, 1.00006, 1.00008, false);
    row("above the rounded maximum", 1.0002, 0, 1.00006, 1.0001, true);
    row("half a step rounds away", 1.00005, 0, 1.00005, 1.00005, false);
    row("noise below the minimum", 0.1 - 4e-16, 0.1, 1, 0.1 - 4e-16, false);
    row("noise above the maximum", 0.1 + 0.2, 0, 0.3, 0.1 + 0.2, false);
    row("zero range", 0, 0, 0, 0, false);
}

void TestMultiPulseEditorPrivate::validates()
{
    QFETCH(double, value);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, result);
    QFETCH(bool, changed);

    const LogCapture log;
    MultiPulseEditorPrivate model;
    double validated = value;
    model.validate(validated, min, max);
    if (!changed) {
        QVERIFY(validated == value);
        return;
    }
    // The bound with its margin of safety, which is outside and smaller than anything that shows.
    const double margin = std::fmax(std::fabs(result) * 1e-15, 1e-15);
    const double outside = value < result ? result - validated : validated - result;
    QVERIFY2(outside > 0 && outside < 2 * margin, qPrintable(QString::number(outside)));
    double again = validated;
    model.validate(again, min, max);
    QVERIFY(again == validated);
}

void TestMultiPulseEditorPrivate::validateIsLogged()
{
    const LogCapture log;
    MultiPulseEditorPrivate model;
    double value = 7;
    model.validate(value, -2.5, 2.50004);
    QCOMPARE(
        LogCapture::messages(),
        QStringList{text("warning: MultiPulseEditorPrivate validate value 2.5 QPointF(-2.5,2.5)")});
}

QTEST_MAIN(TestMultiPulseEditorPrivate)

#include "test_multipulseeditorprivate.moc"
