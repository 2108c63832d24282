// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditorprivate.h"

#include "cplugincombcomponent.h"
#include "devicetable.h"
#include "frontpanel.h"
#include "hostcallbacks.h"
#include "logcapture.h"
#include "multipulseeditor.h"

#include <QComboBox>
#include <QListView>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace appPlugins;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

// To a nanovolt, free of rounding noise and of the sign of zero.
QString number(double volts)
{
    return QString::number(std::round(volts * 1e9) / 1e9 + 0.0, 'g', 12);
}

QString quantity(const char* name, double value, double min, double max)
{
    return QStringLiteral("%1 %2 (%3, %4)")
        .arg(QLatin1String(name), number(value), number(min), number(max));
}

// "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)"
QString shown(const MultiPulseEditorPrivate& model)
{
    return QStringLiteral("A %1, %2, %3, %4")
        .arg(number(model.m_dbAmplitude),
             quantity("O", model.m_dbOffset, model.m_dbMinOffset, model.m_dbMaxOffset),
             quantity("H", model.m_dbHighLevel, model.m_dbMinHighLevel, model.m_dbMaxHighLevel),
             quantity("L", model.m_dbLowLevel, model.m_dbMinLowLevel, model.m_dbMaxLowLevel));
}

QString shown(const char* name, const RealCombComponent* component)
{
    double max = 0;
    double min = 0;
    component->getMaxMinValue(max, min);
    return quantity(name, component->get(), min, max);
}

QStringList& warnings()
{
    static QStringList list;
    return list;
}

int warn(QString text)
{
    warnings().append(text);
    return 0;
}

enum Load { Ohm50, HighZ };

// A window for one model family, and a level model of the test's own that drives its components.
// The window has a model, too, which speaks by the log alone.
struct Levels
{
    explicit Levels(int family)
    {
        warnings().clear();
        g_warningMessage = warn;
        g_currentDeviceType = deviceFamilies().at(family);
        editor = std::make_unique<MultiPulseEditor>(nullptr);
        high = editor->findChild<RealCombComponent*>(QStringLiteral("HighLevel"));
        low = editor->findChild<RealCombComponent*>(QStringLiteral("LowLevel"));
        load = editor->findChildren<ComboBoxCombComponent*>().value(2);
        model = std::make_unique<MultiPulseEditorPrivate>();
        model->q_ptr = editor.get();
    }
    ~Levels()
    {
        model.reset();
        editor.reset();
        g_warningMessage = nullptr;
    }
    Levels(const Levels&) = delete;
    Levels& operator=(const Levels&) = delete;

    // Levels and ranges that the user sees.
    QString components() const { return shown("H", high) + QLatin1String(", ") + shown("L", low); }

    // The level model as it starts in a window, with the levels shown in the components.
    void start(Load startLoad)
    {
        editor->slt_LoadImpChanged(startLoad);
        model->initMembers();
    }

    // Puts both levels into the components, as a program does.
    void setLevels(double highLevel, double lowLevel) const
    {
        for (RealCombComponent* component : {high, low})
            component->setMaxMinValue(-100, 100);
        high->set(highLevel);
        low->set(lowLevel);
    }

    bool show() const
    {
        editor->show();
        const bool active = QTest::qWaitForWindowActive(editor.get());
        FrontPanel::settle();
        return active;
    }

    static void enter(const RealCombComponent* component, const char* volts)
    {
        FrontPanel::tap(component->focusProxy());
        FrontPanel::type(text(volts));
        FrontPanel::press(QT_KEY_X1);
    }

    void choose(Load wanted) const
    {
        auto* box = load->findChild<QComboBox*>();
        FrontPanel::tap(box);
        const QAbstractItemView* list = box->view();
        FrontPanel::tap(list->viewport(),
                        list->visualRect(list->model()->index(wanted, 0)).center());
    }

    LogCapture log;
    std::unique_ptr<MultiPulseEditor> editor;
    std::unique_ptr<MultiPulseEditorPrivate> model;
    RealCombComponent* high;
    RealCombComponent* low;
    ComboBoxCombComponent* load;
};

// What the four quantities and their ranges look like in the log.
QString body(const char* amplitude, const char* offset, const char* high, const char* low)
{
    return QStringLiteral("\n m_dbAmplitude %1 \n m_dbOffset %2 \n m_dbHighLevel %3 "
                          "\n m_dbLowLevel %4 \n++++++++++++++++++++++++++++++++++++++++++\n")
        .arg(QLatin1String(amplitude), QLatin1String(offset), QLatin1String(high),
             QLatin1String(low));
}

// The last line of the log that holds @p title.
QString lastLine(const char* title)
{
    return LogCapture::messages()
        .filter(QLatin1String(title))
        .value(LogCapture::messages().filter(QLatin1String(title)).size() - 1);
}

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
    void amplitudeOfASetup_data();
    void amplitudeOfASetup();
    void amplitudeBeyondTheOldLevels();
    void amplitudeIsLogged();
    void offsetOfASetup_data();
    void offsetOfASetup();
    void offsetBeyondTheRange();
    void offsetIsLogged();
    void setupAsItIsRestored();
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
    void rescales_data();
    void rescales();
    void rescalesSilently();
    void widensForHighZ();
    void userEntersLevels();
    void userTurnsTheKnob();
    void userMeetsTheOtherLevel();
    void userChoosesTheLoad();
    void userEntersLevelsIntoHighZ();
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
    QVERIFY(warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::limitsInto50Ohms()
{
    Levels levels(4);
    levels.start(Ohm50);
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
    levels.start(HighZ);
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
    levels.start(HighZ);
    levels.setLevels(3, -1.5);
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 5), L -1.5 (-5, 2.998)"));
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 10), L -1.5 (-10, 2.998)"));
    levels.model->initHighLowLimits();
    QCOMPARE(levels.components(), text("H 3 (-1.498, 20), L -1.5 (-20, 2.998)"));
}

void TestMultiPulseEditorPrivate::amplitudeOfASetup_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<QString>("levels");
    QTest::addColumn<QString>("components");

    const auto row = [](int family, Load load, double amplitude, const char* levels,
                        const char* components) {
        QTest::addRow("row %d, %s, %g V", family, load == HighZ ? "high Z" : "50 ohms", amplitude)
            << family << int(load) << amplitude << text(levels) << text(components);
    };
    // The distances to the other level are those to the levels before: 1.25 and -1.25.
    row(4, Ohm50, 4, "A 4, O 0 (-3, 3), H 2 (-1.249, 5), L -2 (-5, 1.249)",
        "H 2 (-1.249, 5), L -2 (-5, 1.249)");
    row(4, Ohm50, 2.5, "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-1.249, 5), L -1.25 (-5, 1.249)",
        "H 1.25 (-1.249, 5), L -1.25 (-5, 1.249)");
    row(4, Ohm50, 1.0001,
        "A 1.0001, O 0 (-4.4999, 4.4999), H 0.5001 (-1.249, 5), L -0.5001 (-5, 1.249)",
        "H 0.5001 (-1.249, 5), L -0.5001 (-5, 1.249)");
    row(0, Ohm50, 4, "A 4, O 0 (-0.5, 0.5), H 2 (-1.249, 2.5), L -2 (-2.5, 1.249)",
        "H 2 (-1.249, 2.5), L -2 (-2.5, 1.249)");
    row(4, Ohm50, 0, "A 0, O 0 (-5, 5), H 0 (-1.249, 5), L 0 (-5, 1.249)",
        "H 0 (-1.249, 5), L 0 (-5, 1.249)");
    // Into a high impedance all is the same: nothing is doubled here.
    row(4, HighZ, 4, "A 4, O 0 (-3, 3), H 2 (-1.249, 5), L -2 (-5, 1.249)",
        "H 2 (-1.249, 5), L -2 (-5, 1.249)");
    row(0, HighZ, 1, "A 1, O 0 (-2, 2), H 0.5 (-1.249, 2.5), L -0.5 (-2.5, 1.249)",
        "H 0.5 (-1.249, 2.5), L -0.5 (-2.5, 1.249)");
}

void TestMultiPulseEditorPrivate::amplitudeOfASetup()
{
    QFETCH(int, family);
    QFETCH(int, load);
    QFETCH(double, amplitude);

    Levels levels(family);
    levels.start(load == HighZ ? HighZ : Ohm50);
    levels.setLevels(0.1, -0.1);
    levels.model->util_amplitudeChanged(amplitude);
    QTEST(shown(*levels.model), "levels");
    QTEST(levels.components(), "components");
    QVERIFY(warnings().isEmpty());
}

// The model keeps what follows from the numbers; the components keep to their ranges and tell.
void TestMultiPulseEditorPrivate::amplitudeBeyondTheOldLevels()
{
    Levels levels(4);
    levels.start(Ohm50);
    levels.model->m_dbOffset = 4;
    levels.model->util_amplitudeChanged(4);
    QCOMPARE(shown(*levels.model), text("A 4, O 4 (-3, 3), H 6 (-1.249, 5), L 2 (-5, 1.249)"));
    QCOMPARE(levels.components(), text("H 5 (-1.249, 5), L 1.249 (-5, 1.249)"));
    QCOMPARE(warnings().size(), 2);
}

void TestMultiPulseEditorPrivate::amplitudeIsLogged()
{
    Levels levels(4);
    levels.start(Ohm50);
    levels.model->util_amplitudeChanged(4);
    QCOMPARE(LogCapture::messages().last(),
             text("warning: MultiPulseEditorPrivate::util_amplitudeChanged ") +
                 body("4 QPointF(0.001,10)", "0 QPointF(-3,3)", "2 QPointF(-1.249,5)",
                      "-2 QPointF(-5,1.249)"));
}

void TestMultiPulseEditorPrivate::offsetOfASetup_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("offset");
    QTest::addColumn<QString>("levels");
    QTest::addColumn<QString>("components");

    const auto row = [](int family, Load load, double offset, const char* levels,
                        const char* components) {
        QTest::addRow("row %d, %s, %g V", family, load == HighZ ? "high Z" : "50 ohms", offset)
            << family << int(load) << offset << text(levels) << text(components);
    };
    // The components keep the range -100 to 100 that the test gave them.
    row(4, Ohm50, 1, "A 2.5, O 1 (-3.75, 3.75), H 2.25 (-4.999, 5), L -0.25 (-5, 4.999)",
        "H 2.25 (-100, 100), L -0.25 (-100, 100)");
    row(4, Ohm50, 0, "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)",
        "H 1.25 (-100, 100), L -1.25 (-100, 100)");
    row(4, Ohm50, -0.1234,
        "A 2.5, O -0.1234 (-3.75, 3.75), H 1.1266 (-4.999, 5), L -1.3734 (-5, 4.999)",
        "H 1.1266 (-100, 100), L -1.3734 (-100, 100)");
    row(0, HighZ, -2, "A 2.5, O -2 (-1.25, 1.25), H -0.75 (-2.499, 2.5), L -3.25 (-2.5, 2.499)",
        "H -0.75 (-100, 100), L -3.25 (-100, 100)");
}

void TestMultiPulseEditorPrivate::offsetOfASetup()
{
    QFETCH(int, family);
    QFETCH(int, load);
    QFETCH(double, offset);

    Levels levels(family);
    levels.start(load == HighZ ? HighZ : Ohm50);
    levels.setLevels(0.1, -0.1);
    levels.model->util_offsetChanged(offset);
    QTEST(shown(*levels.model), "levels");
    QTEST(levels.components(), "components");
    QVERIFY(warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::offsetBeyondTheRange()
{
    Levels levels(0);
    levels.start(Ohm50);
    levels.model->util_offsetChanged(-3);
    QCOMPARE(shown(*levels.model),
             text("A 2.5, O -3 (-1.25, 1.25), H -1.75 (-2.499, 2.5), L -4.25 (-2.5, 2.499)"));
    QCOMPARE(levels.components(), text("H -1.75 (-2.499, 2.5), L -2.5 (-2.5, 2.499)"));
    QCOMPARE(warnings().size(), 1);
}

void TestMultiPulseEditorPrivate::offsetIsLogged()
{
    Levels levels(4);
    levels.start(Ohm50);
    levels.model->util_offsetChanged(1);
    QCOMPARE(LogCapture::messages().last(),
             text("warning: util_offsetChanged ") +
                 body("2.5 QPointF(0.001,10)", "1 QPointF(-3.75,3.75)", "2.25 QPointF(-4.999,5)",
                      "-0.25 QPointF(-5,4.999)"));
}

// Amplitude first, then offset, which leaves the ranges that the amplitude has made.
void TestMultiPulseEditorPrivate::setupAsItIsRestored()
{
    Levels levels(4);
    levels.start(Ohm50);
    levels.model->util_amplitudeChanged(1);
    levels.model->util_offsetChanged(0.5);
    QCOMPARE(shown(*levels.model),
             text("A 1, O 0.5 (-4.5, 4.5), H 1 (-1.249, 5), L 0 (-5, 1.249)"));
    QCOMPARE(levels.components(), text("H 1 (-1.249, 5), L 0 (-5, 1.249)"));
}

void TestMultiPulseEditorPrivate::levelChanged_data()
{
    QTest::addColumn<int>("load");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::addColumn<QString>("afterHigh");
    QTest::addColumn<QString>("afterLow");

    const auto row = [](Load load, double high, double low, const char* afterHigh,
                        const char* afterLow) {
        QTest::addRow("%s, %g V to %g V", load == HighZ ? "high Z" : "50 ohms", low, high)
            << int(load) << high << low << text(afterHigh) << text(afterLow);
    };
    row(Ohm50, 2, -1, "A 3, O 0.5 (-3.5, 3.5), H 2 (-0.999, 5), L -1 (-5, 1.999)",
        "A 3, O 0.5 (-3.499, 3.5), H 2 (-0.999, 5), L -1 (-5, 1.999)");
    row(Ohm50, 1, 0, "A 1, O 0.5 (-4.5, 4.5), H 1 (0.001, 5), L 0 (-5, 0.999)",
        "A 1, O 0.5 (-4.499, 4.5), H 1 (0.001, 5), L 0 (-5, 0.999)");
    row(Ohm50, 5, -5, "A 10, O 0 (0, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)",
        "A 10, O 0 (0.001, 0), H 5 (-4.999, 5), L -5 (-5, 4.999)");
    row(Ohm50, -1, -1.0002,
        "A 0.0002, O -1.0001 (-4.9999, 4.9999), H -1 (-0.9992, 5), L -1.0002 (-5, -1.001)",
        "A 0.0002, O -1.0001 (-4.9989, 4.9999), H -1 (-0.9992, 5), L -1.0002 (-5, -1.001)");
    row(HighZ, 2, -1, "A 3, O 0.5 (-3.5, 3.5), H 2 (-0.998, 10), L -1 (-10, 1.998)",
        "A 3, O 0.5 (-3.499, 3.5), H 2 (-0.998, 10), L -1 (-10, 1.998)");
    row(HighZ, 10, -10, "A 20, O 0 (5, -5), H 10 (-9.998, 10), L -10 (-10, 9.998)",
        "A 20, O 0 (5.001, -5), H 10 (-9.998, 10), L -10 (-10, 9.998)");
}

void TestMultiPulseEditorPrivate::levelChanged()
{
    QFETCH(int, load);
    QFETCH(double, high);
    QFETCH(double, low);

    Levels levels(4);
    levels.start(load == HighZ ? HighZ : Ohm50);
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
    levels.start(Ohm50);
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
        for (const Load load : {Ohm50, HighZ}) {
            QTest::addRow("row %d, %s", family.row, load == HighZ ? "high Z" : "50 ohms")
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
    levels.start(load == HighZ ? HighZ : Ohm50);
    const double factor = load == HighZ ? 2 : 1;
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
    QVERIFY(warnings().isEmpty());
}

// The level that was not changed is read from its component; the one that was changed is not set.
void TestMultiPulseEditorPrivate::levelChangeSetsNoComponent()
{
    Levels levels(4);
    levels.start(Ohm50);
    levels.setLevels(2, -1);
    levels.model->slt_highLevelChanged(3);
    QCOMPARE(shown(*levels.model), text("A 4, O 1 (-3, 3), H 3 (-0.999, 5), L -1 (-5, 2.999)"));
    QCOMPARE(levels.components(), text("H 2 (-0.999, 5), L -1 (-5, 2.999)"));

    levels.model->slt_lowLevelChanged(-2);
    QCOMPARE(shown(*levels.model), text("A 4, O 0 (-2.999, 3), H 2 (-1.999, 5), L -2 (-5, 1.999)"));
    QCOMPARE(levels.components(), text("H 2 (-1.999, 5), L -1 (-5, 1.999)"));
    QVERIFY(warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::levelChangeIsLogged()
{
    Levels levels(4);
    levels.start(Ohm50);
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
    levels.start(Ohm50);
    levels.setLevels(2, -1);
    levels.model->slt_highLevelChanged(40);
    QCOMPARE(shown(*levels.model),
             text("A 41, O 19.5 (18, -18), H 40 (-0.999, 2.5), L -1 (-2.5, 39.999)"));
    QVERIFY(warnings().isEmpty());
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

void TestMultiPulseEditorPrivate::rescales_data()
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

void TestMultiPulseEditorPrivate::rescales()
{
    QFETCH(int, family);
    QFETCH(bool, toHighZ);
    QFETCH(double, high);
    QFETCH(double, low);

    Levels levels(family);
    levels.start(toHighZ ? Ohm50 : HighZ);
    levels.setLevels(high, low);
    levels.model->m_dbHighLevel = high;
    levels.model->m_dbLowLevel = low;
    levels.model->rescaleLevels(toHighZ);
    QTEST(shown(*levels.model), "levels");
    QCOMPARE(levels.components(),
             shown(*levels.model).mid(shown(*levels.model).indexOf(text("H"))));
}

void TestMultiPulseEditorPrivate::rescalesSilently()
{
    Levels levels(4);
    levels.start(Ohm50);
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
    QVERIFY2(warnings().isEmpty(), qPrintable(warnings().join(QLatin1Char('|'))));
}

// Whatever the load is and whatever the ranges were.
void TestMultiPulseEditorPrivate::widensForHighZ()
{
    for (const Load load : {Ohm50, HighZ}) {
        Levels levels(4);
        levels.start(load);
        levels.setLevels(2, -1);
        levels.model->widenForHighZ();
        QCOMPARE(shown(*levels.model),
                 text("A 2.5, O 0 (-3.75, 3.75), H 1.25 (-0.998, 10), L -1.25 (-10, 1.998)"));
        QCOMPARE(levels.components(), text("H 2 (-0.998, 10), L -1 (-10, 1.998)"));
    }
}

void TestMultiPulseEditorPrivate::userEntersLevels()
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
    QVERIFY(warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::userTurnsTheKnob()
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
void TestMultiPulseEditorPrivate::userMeetsTheOtherLevel()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    Levels::enter(levels.low, "-1");
    Levels::enter(levels.high, "-1");
    QCOMPARE(warnings(), QStringList{QStringLiteral("ARBID_ERROR_CODE_S0207(-1) \n"
                                                    "STR_ID_VALID_RANGE   (-0.999 \u2014 5)")});
    QCOMPARE(number(levels.high->get()), text("-0.999"));
}

void TestMultiPulseEditorPrivate::userChoosesTheLoad()
{
    const Levels levels(4);
    QVERIFY(levels.show());
    Levels::enter(levels.high, "1");
    Levels::enter(levels.low, "0");
    levels.choose(HighZ);
    QCOMPARE(levels.load->get(), Uint16(1));
    QCOMPARE(levels.components(), text("H 2 (0.002, 10), L 0 (-10, 1.998)"));
    levels.choose(HighZ);
    QCOMPARE(levels.components(), text("H 2 (0.002, 10), L 0 (-10, 1.998)"));
    levels.choose(Ohm50);
    QCOMPARE(levels.components(), text("H 1 (0.001, 5), L 0 (-5, 0.999)"));
    QVERIFY(warnings().isEmpty());
}

void TestMultiPulseEditorPrivate::userEntersLevelsIntoHighZ()
{
    {
        const Levels levels(4);
        QVERIFY(levels.show());
        levels.choose(HighZ);
        Levels::enter(levels.high, "4");
        Levels::enter(levels.low, "3");
        levels.choose(Ohm50);
        printf("PROBE %s\n", qPrintable(levels.components()));
    }
    const Levels levels(4);
    QVERIFY(levels.show());
    levels.choose(HighZ);
    Levels::enter(levels.high, "10");
    Levels::enter(levels.low, "-10");
    QCOMPARE(lastLine("slt_lowLevelChanged"),
             text("info: slt_lowLevelChanged ") +
                 body("20 QPointF(0.001,10)", "0 QPointF(5.001,-5)", "10 QPointF(-9.998,10)",
                      "-10 QPointF(-10,9.998)"));
    QCOMPARE(levels.components(), text("H 10 (-9.998, 10), L -10 (-10, 9.998)"));
    QVERIFY(warnings().isEmpty());
}

QTEST_MAIN(TestMultiPulseEditorPrivate)

#include "test_multipulseeditorprivate.moc"
