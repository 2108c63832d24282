// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cplugincombcomponent.h"
#include "frontpanelkeys.h"

#include <QAction>
#include <QSignalSpy>

using namespace appPlugins;

namespace {

enum Parameter { Count, HighLevel, LowLevel, Delay, Timer };

RealCombComponent* component(const EditorHost& host, int parameter)
{
    const QVector<RealCombComponent*> components = {host.count(), host.highLevel(), host.lowLevel(),
                                                    host.delay(), host.timer()};
    return components.value(parameter);
}

/// A number as (maximum, minimum), to a hundredth of a millivolt: free of rounding noise.
QString limits(const RealCombComponent* number)
{
    double max = 0;
    double min = 0;
    number->getMaxMinValue(max, min);
    return QStringLiteral("%1 %2").arg(QString::number(max, 'f', 5), QString::number(min, 'f', 5));
}

QString limits(double max, double min)
{
    return QStringLiteral("%1 %2").arg(QString::number(max, 'f', 5), QString::number(min, 'f', 5));
}

QString warningText(const char* value, const char* range)
{
    return QStringLiteral("ARBID_ERROR_CODE_S0207(%1) \nSTR_ID_VALID_RANGE   (%2)")
        .arg(QString::fromUtf8(value), QString::fromUtf8(range));
}

void enterLevels(const EditorHost& host, const char* high, const char* low)
{
    host.enter(host.highLevel(), QLatin1String(high), QT_KEY_X1);
    host.enter(host.lowLevel(), QLatin1String(low), QT_KEY_X1);
    QCOMPARE(host.highLevel()->get(), QString(QLatin1String(high)).toDouble());
    QCOMPARE(host.lowLevel()->get(), QString(QLatin1String(low)).toDouble());
}

bool isOpen(const EditorHost& host)
{
    return host.table()->findChild<TabelRealCombComponent*>() != nullptr;
}

void doubleTapCell(const EditorHost& host, int row, int column)
{
    const QModelIndex index = host.table()->model()->index(row, column);
    host.table()->scrollTo(index);
    FrontPanel::doubleTap(host.table()->viewport(), host.table()->visualRect(index).center());
}

void editCell(const EditorHost& host, int row, int column, const QString& number)
{
    doubleTapCell(host, row, column);
    QVERIFY(isOpen(host));
    FrontPanel::type(number);
    FrontPanel::press(Qt::Key_Return);
    QVERIFY(!isOpen(host));
}

QStringList column(const EditorHost& host, int column)
{
    QStringList texts;
    for (int row = 0; row < host.table()->model()->rowCount(); ++row)
        texts.append(host.cell(row, column));
    return texts;
}

/// What the log tells of changes of the load, one line after the other.
QStringList loadLog()
{
    const QStringList begins = {QStringLiteral("debug: MultiPulseEditor::slt_LoadImpChanged"),
                                QStringLiteral("debug:    Ampl"),
                                QStringLiteral("debug:    Offs"),
                                QStringLiteral("debug:    High"),
                                QStringLiteral("debug:    Low "),
                                QStringLiteral("debug:    MMHi"),
                                QStringLiteral("debug:    MMLo")};
    QStringList lines;
    for (const QString& message : LogCapture::messages()) {
        for (const QString& begin : begins) {
            if (message.startsWith(begin))
                lines.append(message.mid(int(qstrlen("debug: "))));
        }
    }
    return lines;
}

bool setGapMode(const EditorHost& host, Uint16 mode)
{
    return QMetaObject::invokeMethod(host.editor(), "slt_GapModeParamChanged", Q_ARG(Uint16, mode));
}

} // namespace

/// What a change of one parameter does to the others, and what is told of values out of range.
class TestEditorReactions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countGivesTheRows();
    void lastRowsGo();
    void rowsThatComeAreDefaults();
    void countByKnob();
    void countOfTheMost();
    void fractionOfACount();

    void outOfRange_data();
    void outOfRange();
    void outOfRangeByKnob();
    void warningTextIsTranslated();
    void limitItselfIsTaken_data();
    void limitItselfIsTaken();

    void levelLimitsOfTheModels_data();
    void levelLimitsOfTheModels();
    void levelLimitsAreEnforced_data();
    void levelLimitsAreEnforced();
    void levelsCouple_data();
    void levelsCouple();
    void levelByKnob();
    void warningFollowsTheCoupledLimits();

    void toHighZ();
    void backToFiftyOhms();
    void levelsAboveTheOldLimits();
    void negativeLevels();
    void levelsAfterALoadChange();
    void levelsAreSetOnceEach();
    void sameLoadChosenAgain();
    void sameLoadToldAgain();

    void silentWhileTheLoadChanges();
    void silentWhileTheDefaultsAreSet();

    void gapModeOn_data();
    void gapModeOn();
    void gapModeOff();
};

void TestEditorReactions::countGivesTheRows()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        for (const int count : {5, 3, 2, 4, 2}) {
            host.enter(host.count(), QString::number(count));
            QCOMPARE(host.count()->get(), double(count));
            QCOMPARE(host.table()->model()->rowCount(), count);
        }
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::lastRowsGo()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("5"));
        for (int row = 0; row < 5; ++row)
            editCell(host, row, 0, QString::number(row + 1));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("1.000u 2.000u 3.000u 4.000u 5.000u"));
        // A selected row is not the one that goes.
        host.tapCell(0, 0);
        host.enter(host.count(), QStringLiteral("3"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')), QStringLiteral("1.000u 2.000u 3.000u"));
    });
}

void TestEditorReactions::rowsThatComeAreDefaults()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        editCell(host, 1, 0, QStringLiteral("7"));
        editCell(host, 1, 1, QStringLiteral("8"));
        host.tapCell(0, 0);
        host.enter(host.count(), QStringLiteral("5"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("2.000u 7.000u 2.000u 2.000u 2.000u"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("10.000u 8.000u 10.000u 10.000u 10.000u"));
    });
}

void TestEditorReactions::countByKnob()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.count()->focusProxy());
        FrontPanel::knob(3);
        QCOMPARE(host.table()->model()->rowCount(), 5);
        FrontPanel::knob(-2);
        QCOMPARE(host.table()->model()->rowCount(), 3);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::countOfTheMost()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("30"));
        QCOMPARE(host.table()->model()->rowCount(), 30);
        QCOMPARE(host.cell(29, 1), QStringLiteral("10.000u"));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::fractionOfACount()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("4.9"));
        QCOMPARE(host.count()->get(), 4.0);
        QCOMPARE(host.table()->model()->rowCount(), 4);
    });
}

void TestEditorReactions::outOfRange_data()
{
    QTest::addColumn<int>("parameter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("unitKey");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<double>("after");
    const auto row = [](const char* name, Parameter parameter, const char* typed, int unitKey,
                        const char* value, const char* range, double after) {
        QTest::newRow(name) << int(parameter) << QString(QLatin1String(typed)) << unitKey
                            << warningText(value, range) << after;
    };
    const char* const high = "-4.999 — 5";
    const char* const low = "-5 — 4.999";
    const char* const delay = "1e-06 — 0.00015";
    const char* const timer = "2e-06 — 500";
    row("count above", Count, "40", Qt::Key_Return, "40", "2 — 30", 30);
    row("count below", Count, "1", Qt::Key_Return, "1", "2 — 30", 2);
    row("high level above", HighLevel, "5.0001", QT_KEY_X1, "5.0001", high, 5);
    row("high level below", HighLevel, "-5", QT_KEY_X1, "-5", high, -4.999);
    row("low level above", LowLevel, "5", QT_KEY_X1, "5", low, 4.999);
    row("low level below", LowLevel, "-5.5", QT_KEY_X1, "-5.5", low, -5);
    row("delay above", Delay, "150.0001", QT_KEY_MU, "0.00015", delay, 1.5e-4);
    row("delay far above", Delay, "2", QT_KEY_X1, "2", delay, 1.5e-4);
    row("delay below", Delay, "999.9", QT_KEY_GN, "9.999e-07", delay, 1e-6);
    row("timer above", Timer, "500.5", QT_KEY_X1, "500.5", timer, 500);
    row("timer below", Timer, "1.9", QT_KEY_MU, "1.9e-06", timer, 2e-6);
}

void TestEditorReactions::outOfRange()
{
    QFETCH(int, parameter);
    QFETCH(QString, typed);
    QFETCH(int, unitKey);
    QFETCH(QString, warning);
    QFETCH(double, after);
    EditorSession session;
    const EditorHost& host = session.host;
    RealCombComponent* number = component(host, parameter);
    session.exec([&] {
        if (parameter == Timer)
            host.choose(host.source(), 2);
        QSignalSpy changes(number, QOverload<double>::of(&RealCombComponent::paraChanged));
        host.enter(number, typed, unitKey);
        QCOMPARE(EditorHost::record().warnings, QStringList(warning));
        QCOMPARE(number->get(), after);
        QVERIFY(changes.isEmpty());
        QVERIFY(host.editor()->isVisible());
    });
    QVERIFY(EditorHost::record().criticals.isEmpty());
}

void TestEditorReactions::outOfRangeByKnob()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.count()->focusProxy());
        FrontPanel::knob(-1);
        QCOMPARE(EditorHost::record().warnings, QStringList(warningText("1", "2 — 30")));
        QCOMPARE(host.count()->get(), 2.0);
        QCOMPARE(host.table()->model()->rowCount(), 2);
    });
}

void TestEditorReactions::warningTextIsTranslated()
{
    class Texts : public QTranslator
    {
    public:
        QString translate(const char*, const char* id, const char*, int) const override
        {
            if (qstrcmp(id, "ARBID_ERROR_CODE_S0207") == 0)
                return QStringLiteral("Out of range");
            return qstrcmp(id, "STR_ID_VALID_RANGE") == 0 ? QStringLiteral("Valid") : QString();
        }
        bool isEmpty() const override { return false; }
    };
    EditorSession session;
    const EditorHost& host = session.host;
    Texts texts;
    QCoreApplication::installTranslator(&texts);
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("40"));
        QCOMPARE(EditorHost::record().warnings,
                 QStringList(QStringLiteral("Out of range(40) \nValid   (2 \u2014 30)")));
    });
    QCoreApplication::removeTranslator(&texts);
}

void TestEditorReactions::limitItselfIsTaken_data()
{
    QTest::addColumn<int>("parameter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("unitKey");
    QTest::addColumn<double>("after");
    const auto row = [](const char* name, Parameter parameter, const char* typed, int unitKey,
                        double after) {
        QTest::newRow(name) << int(parameter) << QString(QLatin1String(typed)) << unitKey << after;
    };
    row("most pulses", Count, "30", Qt::Key_Return, 30);
    row("highest high level", HighLevel, "5", QT_KEY_X1, 5);
    row("lowest low level", LowLevel, "-5", QT_KEY_X1, -5);
    row("longest delay", Delay, "150", QT_KEY_MU, 1.5e-4);
    row("shortest delay", Delay, "1", QT_KEY_MU, 1e-6);
    row("delay of one step more", Delay, "1.0001", QT_KEY_MU, 1.0001e-6);
    row("longest timer", Timer, "500", QT_KEY_X1, 500);
    row("shortest timer", Timer, "2", QT_KEY_MU, 2e-6);
    row("timer of one step more", Timer, "2.1", QT_KEY_MU, 2.1e-6);
}

void TestEditorReactions::limitItselfIsTaken()
{
    QFETCH(int, parameter);
    QFETCH(QString, typed);
    QFETCH(int, unitKey);
    QFETCH(double, after);
    EditorSession session;
    const EditorHost& host = session.host;
    RealCombComponent* number = component(host, parameter);
    session.exec([&] {
        if (parameter == Timer)
            host.choose(host.source(), 2);
        host.enter(number, typed, unitKey);
        QCOMPARE(number->get(), after);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::levelLimitsOfTheModels_data()
{
    QTest::addColumn<double>("bound");
    QTest::newRow("KVX7052C") << 2.5;
    QTest::newRow("KVX705XX") << 2.5;
    QTest::newRow("KVX7040C") << 2.5;
    QTest::newRow("KVX7030C") << 5.0;
    QTest::newRow("KVX7020C") << 5.0;
    QTest::newRow("KVX7010C") << 5.0;
    QTest::newRow("KVX9999Z") << 5.0;
    QTest::newRow("AnotherMaker") << 5.0;
}

void TestEditorReactions::levelLimitsOfTheModels()
{
    QFETCH(double, bound);
    const EditorSession session({}, QTest::currentDataTag());
    const EditorHost& host = session.host;
    QCOMPARE(limits(host.highLevel()), limits(bound, 0.001 - bound));
    QCOMPARE(limits(host.lowLevel()), limits(bound - 0.001, -bound));
    QCOMPARE(host.highLevel()->get(), 1.25);
    QCOMPARE(host.lowLevel()->get(), -1.25);
}

void TestEditorReactions::levelLimitsAreEnforced_data()
{
    levelLimitsOfTheModels_data();
}

void TestEditorReactions::levelLimitsAreEnforced()
{
    QFETCH(double, bound);
    EditorSession session({}, QTest::currentDataTag());
    const EditorHost& host = session.host;
    const QString limit = QString::number(bound);
    session.exec([&] {
        host.enter(host.highLevel(), limit, QT_KEY_X1);
        host.enter(host.lowLevel(), QLatin1Char('-') + limit, QT_KEY_X1);
        QCOMPARE(host.highLevel()->get(), bound);
        QCOMPARE(host.lowLevel()->get(), -bound);
        QVERIFY(EditorHost::record().warnings.isEmpty());

        host.enter(host.highLevel(), QString::number(bound + 0.1), QT_KEY_X1);
        host.enter(host.lowLevel(), QString::number(-bound - 0.1), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings.size(), 2);
        QCOMPARE(host.highLevel()->get(), bound);
        QCOMPARE(host.lowLevel()->get(), -bound);

        host.choose(host.load(), 1);
        QCOMPARE(limits(host.highLevel()), limits(2 * bound, 0.002 - 2 * bound));
        QCOMPARE(limits(host.lowLevel()), limits(2 * bound - 0.002, -2 * bound));
        QCOMPARE(host.highLevel()->get(), 2 * bound);
    });
}

void TestEditorReactions::levelsCouple_data()
{
    QTest::addColumn<bool>("highZ");
    QTest::addColumn<double>("bound");
    QTest::addColumn<double>("distance");
    QTest::newRow("50 ohms") << false << 5.0 << 0.001;
    QTest::newRow("high impedance") << true << 10.0 << 0.002;
}

void TestEditorReactions::levelsCouple()
{
    QFETCH(bool, highZ);
    QFETCH(double, bound);
    QFETCH(double, distance);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        if (highZ)
            host.choose(host.load(), 1);
        const double low = highZ ? -2.5 : -1.25;
        host.enter(host.highLevel(), QStringLiteral("2"), QT_KEY_X1);
        QCOMPARE(limits(host.highLevel()), limits(bound, low + distance));
        QCOMPARE(limits(host.lowLevel()), limits(2 - distance, -bound));
        QCOMPARE(host.lowLevel()->get(), low);

        host.enter(host.lowLevel(), QStringLiteral("-1"), QT_KEY_X1);
        QCOMPARE(limits(host.highLevel()), limits(bound, -1 + distance));
        QCOMPARE(limits(host.lowLevel()), limits(2 - distance, -bound));
        QCOMPARE(host.highLevel()->get(), 2.0);

        // As close as the levels may come.
        host.enter(host.lowLevel(), QString::number(2 - distance), QT_KEY_X1);
        QCOMPARE(host.lowLevel()->get(), 2 - distance);
        QCOMPARE(limits(host.highLevel()), limits(bound, 2));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::levelByKnob()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.highLevel()->focusProxy());
        FrontPanel::knob(2);
        const double high = host.highLevel()->get();
        QVERIFY(high > 1.25);
        QCOMPARE(limits(host.lowLevel()), limits(high - 0.001, -5));
        FrontPanel::tap(host.lowLevel()->focusProxy());
        FrontPanel::knob(-2);
        const double low = host.lowLevel()->get();
        QVERIFY(low < -1.25);
        QCOMPARE(limits(host.highLevel()), limits(5, low + 0.001));
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::warningFollowsTheCoupledLimits()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "2", "-1");
        host.enter(host.highLevel(), QStringLiteral("-1"), QT_KEY_X1);
        host.enter(host.lowLevel(), QStringLiteral("3"), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings,
                 (QStringList{warningText("-1", "-0.999 — 5"), warningText("3", "-5 — 1.999")}));
        QCOMPARE(host.highLevel()->get(), -0.999);
        QCOMPARE(host.lowLevel()->get(), 1.999);
    });
}

void TestEditorReactions::toHighZ()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "1", "0");
        QVERIFY(loadLog().isEmpty());
        host.choose(host.load(), 1);
        QCOMPARE(host.highLevel()->get(), 2.0);
        QCOMPARE(host.lowLevel()->get(), 0.0);
        QCOMPARE(host.highLevel()->getStringValue(), QStringLiteral("2.0000"));
        QCOMPARE(limits(host.highLevel()), limits(10, 0.002));
        QCOMPARE(limits(host.lowLevel()), limits(1.998, -10));
    });
    QCOMPARE(loadLog().join(QLatin1Char('\n')),
             QStringLiteral("MultiPulseEditor::slt_LoadImpChanged 1\n"
                            "   Ampl 1\n   Offs 0.5\n   High 1 1\n   Low  0 0\n"
                            "   MMHi QPointF(5,0.001)\n   MMLo QPointF(0.999,-5)\n"
                            "MultiPulseEditor::slt_LoadImpChanged 1\n"
                            "   Ampl 2\n   Offs 1\n   High 2 2\n   Low  0 0\n"
                            "   MMHi QPointF(10,0.002)\n   MMLo QPointF(1.998,-10)"));
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::backToFiftyOhms()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "1", "0");
        host.choose(host.load(), 1);
        host.choose(host.load(), 0);
        QCOMPARE(host.highLevel()->get(), 1.0);
        QCOMPARE(host.lowLevel()->get(), 0.0);
        QCOMPARE(limits(host.highLevel()), limits(5, 0.001));
        QCOMPARE(limits(host.lowLevel()), limits(0.999, -5));
    });
    const QStringList log = loadLog();
    QCOMPARE(log.size(), 28);
    QCOMPARE(log.mid(14).join(QLatin1Char('\n')),
             QStringLiteral("MultiPulseEditor::slt_LoadImpChanged 0\n"
                            "   Ampl 2\n   Offs 1\n   High 2 2\n   Low  0 0\n"
                            "   MMHi QPointF(10,0.002)\n   MMLo QPointF(1.998,-10)\n"
                            "MultiPulseEditor::slt_LoadImpChanged 0\n"
                            "   Ampl 1\n   Offs 0.5\n   High 1 1\n   Low  0 0\n"
                            "   MMHi QPointF(5,0.001)\n   MMLo QPointF(0.999,-5)"));
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

// Each value is set while the limits that it fits are in force.
void TestEditorReactions::levelsAboveTheOldLimits()
{
    EditorSession session;
    const EditorHost& host = session.host;
    QSignalSpy highRefused(host.highLevel(), &RealCombComponent::sgnRealParameterIllegal);
    QSignalSpy lowRefused(host.lowLevel(), &RealCombComponent::sgnRealParameterIllegal);
    session.exec([&] {
        enterLevels(host, "5", "-5");
        host.choose(host.load(), 1);
        QCOMPARE(host.highLevel()->get(), 10.0);
        QCOMPARE(host.lowLevel()->get(), -10.0);
        host.choose(host.load(), 0);
        QCOMPARE(host.highLevel()->get(), 5.0);
        QCOMPARE(host.lowLevel()->get(), -5.0);

        enterLevels(host, "4", "3");
        host.choose(host.load(), 1);
        QCOMPARE(host.highLevel()->get(), 8.0);
        QCOMPARE(host.lowLevel()->get(), 6.0);
    });
    QVERIFY(highRefused.isEmpty());
    QVERIFY(lowRefused.isEmpty());
}

void TestEditorReactions::negativeLevels()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "-1", "-4");
        host.choose(host.load(), 1);
        QCOMPARE(host.highLevel()->get(), -2.0);
        QCOMPARE(host.lowLevel()->get(), -8.0);
        QCOMPARE(limits(host.highLevel()), limits(10, -7.998));
        QCOMPARE(limits(host.lowLevel()), limits(-2.002, -10));
        host.choose(host.load(), 0);
        QCOMPARE(host.highLevel()->get(), -1.0);
        QCOMPARE(host.lowLevel()->get(), -4.0);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorReactions::levelsAfterALoadChange()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.choose(host.load(), 1);
        host.enter(host.highLevel(), QStringLiteral("10.1"), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings, QStringList(warningText("10.1", "-2.498 — 10")));
        host.choose(host.load(), 0);
        QCOMPARE(host.highLevel()->get(), 5.0);
        host.enter(host.highLevel(), QStringLiteral("5.1"), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings.value(1), warningText("5.1", "-1.249 — 5"));
    });
}

// Limits that came in the wrong order would pull a level before it is set.
void TestEditorReactions::levelsAreSetOnceEach()
{
    EditorSession session;
    const EditorHost& host = session.host;
    const auto setLevels = [] {
        return LogCapture::messages().filter(QStringLiteral("warning: actualSet valueLL"));
    };
    session.exec([&] {
        enterLevels(host, "4", "-4");
        int before = setLevels().size();
        host.choose(host.load(), 1);
        QCOMPARE(setLevels().mid(before),
                 (QStringList{QStringLiteral("warning: actualSet valueLL 80000 valueDB 80000"),
                              QStringLiteral("warning: actualSet valueLL -80000 valueDB -80000")}));
        before = setLevels().size();
        host.choose(host.load(), 0);
        QCOMPARE(setLevels().mid(before),
                 (QStringList{QStringLiteral("warning: actualSet valueLL 40000 valueDB 40000"),
                              QStringLiteral("warning: actualSet valueLL -40000 valueDB -40000")}));
    });
}

void TestEditorReactions::sameLoadChosenAgain()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "1", "0");
        host.choose(host.load(), 0);
        QCOMPARE(host.highLevel()->get(), 1.0);
        QCOMPARE(limits(host.highLevel()), limits(5, 0.001));
        host.choose(host.load(), 1);
        host.choose(host.load(), 1);
        QCOMPARE(host.highLevel()->get(), 2.0);
        QCOMPARE(limits(host.highLevel()), limits(10, 0.002));
    });
    QCOMPARE(loadLog().size(), 14);
}

void TestEditorReactions::sameLoadToldAgain()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "1", "0");
        QVERIFY(QMetaObject::invokeMethod(host.editor(), "slt_LoadImpChanged", Q_ARG(Uint16, 0)));
        QCOMPARE(host.highLevel()->get(), 1.0);
        QCOMPARE(host.lowLevel()->get(), 0.0);
        QCOMPARE(limits(host.highLevel()), limits(5, 0.001));
        QCOMPARE(limits(host.lowLevel()), limits(0.999, -5));
        QCOMPARE(loadLog().join(QLatin1Char('\n')),
                 QStringLiteral("MultiPulseEditor::slt_LoadImpChanged 0\n"
                                "   Ampl 1\n   Offs 0.5\n   High 1 1\n   Low  0 0\n"
                                "   MMHi QPointF(5,0.001)\n   MMLo QPointF(0.999,-5)"));

        // Warnings have not been left silent.
        host.enter(host.count(), QStringLiteral("40"));
        QCOMPARE(EditorHost::record().warnings.size(), 1);
    });
}

// Half of the high level lies below the low level that still stands.
void TestEditorReactions::silentWhileTheLoadChanges()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.choose(host.load(), 1);
        enterLevels(host, "8", "6");
        const QSignalSpy refused(host.highLevel(), &RealCombComponent::sgnRealParameterIllegal);
        host.choose(host.load(), 0);
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.first().first().toDouble(), 4.0);
        QVERIFY(EditorHost::record().warnings.isEmpty());
        QCOMPARE(host.lowLevel()->get(), 3.0);
        QCOMPARE(limits(host.highLevel()), limits(5, 3.001));

        host.enter(host.highLevel(), QStringLiteral("6"), QT_KEY_X1);
        QCOMPARE(EditorHost::record().warnings, QStringList(warningText("6", "3.001 — 5")));
    });
}

// The amplitude of the defaults does not fit round the offset that still stands.
void TestEditorReactions::silentWhileTheDefaultsAreSet()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        enterLevels(host, "4.5", "4");
        const QSignalSpy refused(host.highLevel(), &RealCombComponent::sgnRealParameterIllegal);
        EditorHost::record().questionResult = 1;
        FrontPanel::tap(host.button(EditorHost::Default));
        QVERIFY(!refused.isEmpty());
        QVERIFY(EditorHost::record().warnings.isEmpty());

        host.enter(host.count(), QStringLiteral("40"));
        QCOMPARE(EditorHost::record().warnings.size(), 1);
    });
}

void TestEditorReactions::gapModeOn_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("65535") << 65535;
}

void TestEditorReactions::gapModeOn()
{
    QFETCH(int, mode);
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("4"));
        editCell(host, 0, 1, QStringLiteral("7"));
        editCell(host, 2, 1, QStringLiteral("9"));
        QVERIFY(setGapMode(host, Uint16(mode)));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("7.000u 7.000u 7.000u 7.000u"));

        host.tapCell(1, 1);
        QVERIFY(!host.table()->selectionModel()->hasSelection());
        doubleTapCell(host, 1, 1);
        QVERIFY(!isOpen(host));

        editCell(host, 0, 1, QStringLiteral("5"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')),
                 QStringLiteral("5.000u 5.000u 5.000u 5.000u"));
        editCell(host, 2, 0, QStringLiteral("3"));
        QCOMPARE(column(host, 0).join(QLatin1Char(' ')),
                 QStringLiteral("2.000u 2.000u 3.000u 2.000u"));
    });
}

void TestEditorReactions::gapModeOff()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        host.enter(host.count(), QStringLiteral("3"));
        QVERIFY(setGapMode(host, 1));
        editCell(host, 0, 1, QStringLiteral("5"));
        QVERIFY(setGapMode(host, 0));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')), QStringLiteral("5.000u 5.000u 5.000u"));
        editCell(host, 0, 1, QStringLiteral("6"));
        editCell(host, 2, 1, QStringLiteral("8"));
        QCOMPARE(column(host, 1).join(QLatin1Char(' ')), QStringLiteral("6.000u 5.000u 8.000u"));
    });
}

QTEST_MAIN(TestEditorReactions)
#include "test_editorreactions.moc"
