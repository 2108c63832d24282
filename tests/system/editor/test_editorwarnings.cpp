// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editornumbers.h"
#include "editorsession.h"

#include <QSignalSpy>
#include <QTranslator>

using namespace appPlugins;
using namespace EditorNumbers;

namespace {

enum Parameter { Count, HighLevel, LowLevel, Delay, Timer };

RealCombComponent* component(const EditorHost& host, int parameter)
{
    const QVector<RealCombComponent*> components = {host.count(), host.highLevel(), host.lowLevel(),
                                                    host.delay(), host.timer()};
    return components.value(parameter);
}

} // namespace

/// What is told of numbers out of range, and when nothing is told.
class TestEditorWarnings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outOfRange_data();
    void outOfRange();
    void outOfRangeByKnob();
    void warningTextIsTranslated();
    void limitItselfIsTaken_data();
    void limitItselfIsTaken();
    void warningFollowsTheCoupledLimits();

    void silentWhileTheLoadChanges();
    void silentWhileTheDefaultsAreSet();
};

void TestEditorWarnings::outOfRange_data()
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

void TestEditorWarnings::outOfRange()
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

void TestEditorWarnings::outOfRangeByKnob()
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

void TestEditorWarnings::warningTextIsTranslated()
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

void TestEditorWarnings::limitItselfIsTaken_data()
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

void TestEditorWarnings::limitItselfIsTaken()
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

void TestEditorWarnings::warningFollowsTheCoupledLimits()
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

// Half of the high level lies below the low level that still stands.
void TestEditorWarnings::silentWhileTheLoadChanges()
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
void TestEditorWarnings::silentWhileTheDefaultsAreSet()
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

QTEST_MAIN(TestEditorWarnings)
#include "test_editorwarnings.moc"
