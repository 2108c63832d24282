// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cplugincombcomponent.h"
#include "frontpanelkeys.h"

#include <QAction>
#include <QTextBrowser>

using namespace appPlugins;

namespace {

enum Output { Stopped, Running };

int helpWindowCount()
{
    int count = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->findChild<QTextBrowser*>() != nullptr)
            ++count;
    }
    return count;
}

// Whether the editor lets a key that it has handled go on to the host's surface.
struct Handling
{
    int key;
    const char* name;
    bool releaseGoesOn;
    bool stopsOutput;
    bool startsOutput;
    bool opensHelp;
};

const Handling Keys[] = {
    {QT_KEY_CH1ON, "channel 1", false, true, true, false},
    {QT_KEY_DEFAULT, "Default", true, true, false, false},
    {QT_KEY_UTLITY, "Utility", true, true, false, false},
    {QT_KEY_MANUAL, "Manual", true, false, false, false},
    {QT_KEY_HOME, "Home", true, true, false, false},
    {QT_KEY_BACK, "Back", true, true, false, false},
    {QT_KEY_HELP, "Help", false, false, false, true},
    {Qt::Key_Cancel, "Cancel", false, false, false, false},
    {QT_KEY_KNOB, "knob", false, false, false, false},
    {QT_KEY_MINUS, "sign", false, false, false, false},
    {QT_KEY_GN, "GN", false, false, false, false},
    {Qt::Key_5, "digit", false, false, false, false},
    {Qt::Key_Up, "knob turned", false, false, false, false},
    {Qt::Key_Return, "Return", false, false, false, false},
    {Qt::Key_Escape, "Escape", false, false, false, false},
    {724, "key before channel 1", false, false, false, false},
    {726, "key behind channel 1", false, false, false, false},
};

void addHandlingColumns()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("releaseGoesOn");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("opensHelp");
}

void addHandlingRows(Output before)
{
    const char* const state = before == Running ? "running" : "stopped";
    for (const Handling& handling : Keys) {
        const bool toggles = before == Running ? handling.stopsOutput : handling.startsOutput;
        const Output other = before == Running ? Stopped : Running;
        QTest::addRow("%s, %s", handling.name, state)
            << handling.key << handling.releaseGoesOn << int(before)
            << int(toggles ? other : before) << handling.opensHelp;
    }
}

Output outputOf(const EditorHost& host)
{
    return host.action(EditorHost::Run)->isChecked() ? Running : Stopped;
}

const InstrumentScript::Script RunAndStop = InstrumentScript::run() + InstrumentScript::stop();

} // namespace

/// Keys that reach the window: what they do, and which of them the host gets.
class TestEditorKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handled_data();
    void handled();
    void commandsOfAToggle();
    void toldInTheLog();
    void withoutSegment_data();
    void withoutSegment();
    void discarded_data();
    void discarded();
    void discardFlagIsReadAtEachKey();
    void keysFromAnInput_data();
    void keysFromAnInput();
    void closesNothing();
};

void TestEditorKeys::handled_data()
{
    addHandlingColumns();
    addHandlingRows(Stopped);
    addHandlingRows(Running);
}

void TestEditorKeys::handled()
{
    QFETCH(int, key);
    QFETCH(bool, releaseGoesOn);
    QFETCH(int, before);
    QFETCH(int, after);
    QFETCH(bool, opensHelp);
    EditorSession session(RunAndStop);
    const EditorHost& host = session.host;
    session.exec([&] {
        if (before == Running)
            FrontPanel::tap(host.button(EditorHost::Run));
        QCOMPARE(int(outputOf(host)), before);
        const KeyWitness surface(host.surface());

        FrontPanel::post(QEvent::KeyPress, key);
        FrontPanel::settle();
        QCOMPARE(surface.pressed, QVector<int>{key});
        QCOMPARE(int(outputOf(host)), before);
        QCOMPARE(helpWindowCount(), 0);

        FrontPanel::post(QEvent::KeyRelease, key);
        FrontPanel::settle();
        QCOMPARE(surface.pressed, QVector<int>{key});
        QCOMPARE(surface.released, releaseGoesOn ? QVector<int>{key} : QVector<int>());
        QCOMPARE(int(outputOf(host)), after);
        QCOMPARE(helpWindowCount(), opensHelp ? 1 : 0);
        QVERIFY(host.editor()->isVisible());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorKeys::commandsOfAToggle()
{
    EditorSession session(RunAndStop);
    const EditorHost& host = session.host;
    session.exec([&] {
        const QByteArray atStart = session.server.received();
        FrontPanel::press(QT_KEY_CH1ON);
        QVERIFY(session.server.received().endsWith("OUTP1 ON \n*IDN? \n"));
        QCOMPARE(host.action(EditorHost::Run)->text(), QStringLiteral("STR_ID_SWEEP_STOP"));
        QVERIFY(!host.count()->isEnabled());

        const QByteArray running = session.server.received();
        FrontPanel::press(QT_KEY_BACK);
        QCOMPARE(session.server.received(), running + "OUTP1 OFF \n*RST \n*IDN? \n");
        QCOMPARE(host.action(EditorHost::Run)->text(), QStringLiteral("STR_UTILITY_RUN"));
        QVERIFY(host.count()->isEnabled());
        QVERIFY(running.startsWith(atStart + "OUTP1 OFF \nOUTP2 OFF \n"));
        QVERIFY(!host.discardKeys() && !host.blockScpi());
    });
}

void TestEditorKeys::toldInTheLog()
{
    EditorSession session(RunAndStop);
    session.exec([&] {
        FrontPanel::press(QT_KEY_CH1ON);
        FrontPanel::press(QT_KEY_CH1ON);
    });
    const QStringList log = LogCapture::messages();
    const QString line = QStringLiteral("info: MultiPulseEditor::event KEY_CH1ON");
    QStringList told;
    for (const QString& message : log) {
        if (message.startsWith(line))
            told.append(message.mid(line.size()));
    }
    QCOMPARE(told, (QStringList{QString(), QStringLiteral(" false true"), QString(),
                                QStringLiteral(" true false")}));
    QVERIFY(log.contains(QStringLiteral("debug: MultiPulseEditor::checkDiscardKeys false")));
    QVERIFY(log.filter(QStringLiteral("tossing")).isEmpty());
}

void TestEditorKeys::withoutSegment_data()
{
    addHandlingColumns();
    addHandlingRows(Stopped);
    addHandlingRows(Running);
}

// Keys are never swallowed then; the output's action moves, but no command is sent.
void TestEditorKeys::withoutSegment()
{
    QFETCH(int, key);
    QFETCH(bool, releaseGoesOn);
    QFETCH(int, before);
    QFETCH(int, after);
    QFETCH(bool, opensHelp);
    EditorSession session({}, "KVX7010C", EditorHost::WithoutSegment);
    const EditorHost& host = session.host;
    session.exec([&] {
        const int clients = session.server.accepted();
        if (before == Running)
            FrontPanel::tap(host.button(EditorHost::Run));
        const KeyWitness surface(host.surface());
        FrontPanel::press(key);
        QCOMPARE(surface.pressed, QVector<int>{key});
        QCOMPARE(surface.released, releaseGoesOn ? QVector<int>{key} : QVector<int>());
        QCOMPARE(int(outputOf(host)), after);
        QCOMPARE(helpWindowCount(), opensHelp ? 1 : 0);
        QVERIFY(host.editor()->isVisible());
        QCOMPARE(session.server.accepted(), clients);
        QCOMPARE(host.action(EditorHost::Run)->text(), QStringLiteral("STR_UTILITY_RUN"));
    });
    QVERIFY(LogCapture::messages().filter(QStringLiteral("checkDiscardKeys")).isEmpty());
    QVERIFY(EditorHost::record().warnings.isEmpty() && EditorHost::record().criticals.isEmpty());
}

void TestEditorKeys::discarded_data()
{
    handled_data();
}

void TestEditorKeys::discarded()
{
    QFETCH(int, key);
    QFETCH(int, before);
    EditorSession session(RunAndStop);
    EditorHost& host = session.host;
    session.exec([&] {
        if (before == Running)
            FrontPanel::tap(host.button(EditorHost::Run));
        host.setDiscardKeys(true);
        const KeyWitness surface(host.surface());
        FrontPanel::press(key);
        QVERIFY(surface.pressed.isEmpty());
        QVERIFY(surface.released.isEmpty());
        QCOMPARE(int(outputOf(host)), before);
        QCOMPARE(helpWindowCount(), 0);
        QVERIFY(host.editor()->isVisible());
        QVERIFY(host.discardKeys() && !host.blockScpi());
    });
    const QStringList tossed = LogCapture::messages().filter(QStringLiteral("tossing"));
    QCOMPARE(
        tossed,
        (QStringList{QStringLiteral("debug: MultiPulseEditor::event tossing QEvent::KeyPress"),
                     QStringLiteral("debug: MultiPulseEditor::event tossing QEvent::KeyRelease")}));
    QVERIFY(LogCapture::messages().contains(
        QStringLiteral("debug: MultiPulseEditor::checkDiscardKeys true")));
}

void TestEditorKeys::discardFlagIsReadAtEachKey()
{
    EditorSession session;
    EditorHost& host = session.host;
    session.exec([&] {
        const KeyWitness surface(host.surface());
        for (const bool discard : {true, false, true, false}) {
            host.setDiscardKeys(discard);
            FrontPanel::press(QT_KEY_MANUAL);
        }
        QCOMPARE(surface.pressed.size(), 2);
        QCOMPARE(surface.released.size(), 2);

        // The flag may change between the press and the release.
        FrontPanel::post(QEvent::KeyPress, QT_KEY_HELP);
        FrontPanel::settle();
        host.setDiscardKeys(true);
        FrontPanel::post(QEvent::KeyRelease, QT_KEY_HELP);
        FrontPanel::settle();
        QCOMPARE(helpWindowCount(), 0);
    });
}

void TestEditorKeys::keysFromAnInput_data()
{
    QTest::addColumn<QString>("input");
    for (const char* input : {"number", "choice", "table", "cell"})
        QTest::newRow(input) << QString(QLatin1String(input));
}

// Wherever the focus is, the front panel's keys reach the window and from there the host.
void TestEditorKeys::keysFromAnInput()
{
    QFETCH(QString, input);
    EditorSession session(RunAndStop);
    const EditorHost& host = session.host;
    session.exec([&] {
        if (input == QLatin1String("number"))
            FrontPanel::tap(host.highLevel()->focusProxy());
        else if (input == QLatin1String("choice"))
            host.choose(host.source(), 1);
        else
            host.tapCell(0, 0);
        if (input == QLatin1String("cell")) {
            host.tapCell(0, 0);
            // The view waits whether the second tap is a double tap.
            QTRY_VERIFY(host.table()->findChild<TabelRealCombComponent*>() != nullptr);
        }
        const KeyWitness surface(host.surface());
        FrontPanel::press(QT_KEY_HOME);
        QCOMPARE(surface.pressed, QVector<int>{QT_KEY_HOME});
        QCOMPARE(surface.released, QVector<int>{QT_KEY_HOME});
        FrontPanel::press(QT_KEY_HELP);
        QCOMPARE(surface.released, QVector<int>{QT_KEY_HOME});
        QCOMPARE(helpWindowCount(), 1);
        QVERIFY(host.editor()->isVisible());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

// Each of these keys closes a window of the base kind.
void TestEditorKeys::closesNothing()
{
    EditorSession session(RunAndStop);
    const EditorHost& host = session.host;
    session.exec([&] {
        for (const int key : {int(QT_KEY_HOME), int(QT_KEY_BACK), int(QT_KEY_DEFAULT),
                              int(QT_KEY_UTLITY), int(Qt::Key_Cancel)}) {
            FrontPanel::press(key);
            QVERIFY(host.editor()->isVisible());
        }
    });
}

QTEST_MAIN(TestEditorKeys)
#include "test_editorkeys.moc"
