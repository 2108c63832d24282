// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editornumbers.h"
#include "editorsession.h"

#include <QSignalSpy>

using namespace appPlugins;
using namespace EditorNumbers;

namespace {

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

} // namespace

/// What a change of the load does to the levels.
class TestEditorLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toHighZ();
    void backToFiftyOhms();
    void levelsAboveTheOldLimits();
    void negativeLevels();
    void levelsAfterALoadChange();
    void levelsAreSetOnceEach();
    void sameLoadChosenAgain();
    void sameLoadToldAgain();
};

void TestEditorLoad::toHighZ()
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

void TestEditorLoad::backToFiftyOhms()
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
void TestEditorLoad::levelsAboveTheOldLimits()
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

void TestEditorLoad::negativeLevels()
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

void TestEditorLoad::levelsAfterALoadChange()
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
void TestEditorLoad::levelsAreSetOnceEach()
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

void TestEditorLoad::sameLoadChosenAgain()
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

void TestEditorLoad::sameLoadToldAgain()
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

QTEST_MAIN(TestEditorLoad)
#include "test_editorload.moc"
