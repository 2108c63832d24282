// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"
#include "stdoutcapture.h"

#include "frontpanelkeys.h"

#include <QMouseEvent>

using namespace Output;

namespace {

/// Puts a tap into the event queue; nothing happens yet.
void postTap(QWidget* widget)
{
    const QPointF centre = widget->rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QCoreApplication::postEvent(
            widget,
            new QMouseEvent(type, centre, widget->mapToGlobal(centre.toPoint()), Qt::LeftButton,
                            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                            Qt::NoModifier));
    }
}

} // namespace

/// What keys and taps do to the output, and what it leaves of them, also while it is switched.
class TestEditorRunning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void focusIsGivenBack();
    void controlsAreLocked();

    void stoppedByAKey_data();
    void stoppedByAKey();
    void startedByAKey();
    void keysThatLeaveItRunning_data();
    void keysThatLeaveItRunning();
    void closeWhileItRuns();
    void closeWhileStopped();

    void keysOfASequenceAreTossed();
    void tapsOfASequence_data();
    void tapsOfASequence();
    void closedByATapOfTheSequence();
    void shownAgainWhileItRuns();
};

void TestEditorRunning::focusIsGivenBack()
{
    OutputSession session;
    session.host.exec([&] {
        const auto* content =
            session.host.editor()->findChild<QWidget*>(QStringLiteral("m_pSubClassFillArea"));
        FrontPanel::tap(session.host.highLevel()->focusProxy());
        QVERIFY(QApplication::focusWidget() != content);
        QCOMPARE(printed([&] { session.pressRun(); }), QByteArray("Set focus to me\n"));
        QCOMPARE(QApplication::focusWidget(), content);
        QCOMPARE(printed([&] { session.pressRun(); }), QByteArray("Set focus to me\n"));
        QCOMPARE(QApplication::focusWidget(), content);
    });
}

// Taps and keys reach none of the controls while the output is on.
void TestEditorRunning::controlsAreLocked()
{
    OutputSession session;
    const EditorHost& host = session.host;
    session.host.exec([&] {
        const double high = host.highLevel()->get();
        session.pressRun();
        host.enter(host.highLevel(), QStringLiteral("3"));
        QCOMPARE(host.highLevel()->get(), high);
        host.tapCell(0, 0);
        QVERIFY(!host.table()->hasFocus());
        for (const auto action :
             {EditorHost::Open, EditorHost::Close, EditorHost::SaveAs, EditorHost::Default})
            FrontPanel::tap(host.button(action));
        QVERIFY(EditorHost::record().browses.isEmpty());
        QVERIFY(EditorHost::record().questions.isEmpty());
        QVERIFY(host.editor()->isVisible());
        QCOMPARE(stateOf(host), running());

        session.pressRun();
        host.enter(host.highLevel(), QStringLiteral("3"));
        QCOMPARE(host.highLevel()->get(), 3.0);
    });
}

void TestEditorRunning::stoppedByAKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("channel 1") << int(QT_KEY_CH1ON);
    QTest::newRow("Default") << int(QT_KEY_DEFAULT);
    QTest::newRow("Utility") << int(QT_KEY_UTLITY);
    QTest::newRow("Home") << int(QT_KEY_HOME);
    QTest::newRow("Back") << int(QT_KEY_BACK);
}

void TestEditorRunning::stoppedByAKey()
{
    QFETCH(int, key);
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.takeSent();
        FrontPanel::press(key);
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
        QVERIFY(session.flagsAreClear());
        QVERIFY(session.host.editor()->isVisible());
    });
}

void TestEditorRunning::startedByAKey()
{
    OutputSession session;
    session.host.exec([&] {
        session.takeSent();
        FrontPanel::press(QT_KEY_CH1ON);
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        FrontPanel::press(QT_KEY_CH1ON);
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
    });
}

void TestEditorRunning::keysThatLeaveItRunning_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Manual") << int(QT_KEY_MANUAL);
    QTest::newRow("Help") << int(QT_KEY_HELP);
    QTest::newRow("Cancel") << int(Qt::Key_Cancel);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestEditorRunning::keysThatLeaveItRunning()
{
    QFETCH(int, key);
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.takeSent();
        FrontPanel::press(key);
        QCOMPARE(session.takeSent(), QByteArrayList());
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(waveformExists());
        QVERIFY(session.host.editor()->isVisible());
    });
}

// The action is disabled then; its slot all the same stops the output and leaves the rest to the
// host.
void TestEditorRunning::closeWhileItRuns()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.takeSent();
        const KeyWitness surface(session.host.surface());
        QVERIFY(QMetaObject::invokeMethod(session.host.editor(), "slt_closeBtnClicked"));
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(session.flagsAreClear());
        QVERIFY(surface.released.isEmpty());
        FrontPanel::settle();
        QCOMPARE(surface.released, QVector<int>{QT_KEY_HOME});
        QCOMPARE(surface.modifiers, Qt::KeyboardModifiers(Qt::KeypadModifier));
        QVERIFY(surface.pressed.isEmpty());
        QVERIFY(session.host.editor()->isVisible());
    });
}

void TestEditorRunning::closeWhileStopped()
{
    OutputSession session;
    const int result = session.host.exec([&] {
        session.takeSent();
        const KeyWitness surface(session.host.surface());
        FrontPanel::tap(session.host.button(EditorHost::Close));
        QVERIFY(!session.host.editor()->isVisible());
        QVERIFY(surface.released.isEmpty());
        QVERIFY(session.takeSent().isEmpty());
    });
    QCOMPARE(result, int(QDialog::Rejected));
}

void TestEditorRunning::keysOfASequenceAreTossed()
{
    OutputSession session;
    session.host.exec([&] {
        const KeyWitness surface(session.host.surface());
        for (const auto& commands : {runCommands(), stopCommands()}) {
            session.takeSent();
            const int before = LogCapture::messages().size();
            session.whenSent = [&](int, const QByteArray&) {
                for (const int key :
                     {int(QT_KEY_CH1ON), int(QT_KEY_HOME), int(Qt::Key_Cancel), int(QT_KEY_HELP)}) {
                    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
                        QCoreApplication::postEvent(session.host.editor(),
                                                    new QKeyEvent(type, key, Qt::NoModifier));
                }
            };
            session.pressRun();
            session.whenSent = nullptr;
            QCOMPARE(session.takeSent(), commands);
            QCOMPARE(OutputSession::logged(QStringLiteral("event tossing"), before).size(),
                     8 * commands.size());
            QVERIFY(session.host.editor()->isVisible());
        }
        QVERIFY(surface.pressed.isEmpty() && surface.released.isEmpty());
        QCOMPARE(stateOf(session.host), stopped());
        FrontPanel::press(QT_KEY_CH1ON);
        QCOMPARE(stateOf(session.host), running());
    });
}

void TestEditorRunning::tapsOfASequence_data()
{
    QTest::addColumn<bool>("runFirst");
    QTest::newRow("a tap while it stops") << true;
    QTest::newRow("a tap while it starts") << false;
}

// Run is never disabled, and only keys are tossed: a tap that comes while the one sequence is under
// way begins the other before the first has given the instrument back.
void TestEditorRunning::tapsOfASequence()
{
    QFETCH(bool, runFirst);
    OutputSession session;
    session.host.exec([&] {
        if (runFirst)
            session.pressRun();
        session.takeSent();
        const int before = LogCapture::messages().size();
        session.whenSent = [&](int, const QByteArray&) {
            if (session.sent.size() == 1)
                postTap(session.host.button(EditorHost::Run));
            QCOMPARE(flagsFromOutside(), BothSet);
        };
        session.pressRun();
        session.whenSent = nullptr;
        QCOMPARE(session.takeSent(),
                 runFirst ? stopCommands() + runCommands() : runCommands() + stopCommands());
        QCOMPARE(stateOf(session.host), runFirst ? running() : stopped());
        QCOMPARE(waveformExists(), runFirst);
        QVERIFY(session.flagsAreClear());
        QCOMPARE(OutputSession::logged(Unlocked, before).size(), 2);

        session.pressRun();
        QCOMPARE(stateOf(session.host), runFirst ? stopped() : running());
    });
}

// By the time that the tap is handled, Close works again.
void TestEditorRunning::closedByATapOfTheSequence()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.takeSent();
        session.whenSent = [&](int, const QByteArray& command) {
            if (command == "OUTP1 OFF \n")
                postTap(session.host.button(EditorHost::Close));
        };
        session.pressRun();
        session.whenSent = nullptr;
        QCOMPARE(session.takeSent(), stopCommands());
        QVERIFY(!session.host.editor()->isVisible());
        QVERIFY(session.flagsAreClear());
    });
    session.host.exec([&] {
        QCOMPARE(stateOf(session.host), stopped());
        session.takeSent();
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
    });
}

// A host may close the window over a running output. The reset of the next exec ends that; texts
// and controls stay until the next Run and Stop.
void TestEditorRunning::shownAgainWhileItRuns()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.host.plugin()->close();
    });
    QVERIFY(waveformExists());
    session.takeSent();
    session.host.exec([&] {
        QCOMPARE(session.takeSent(), QByteArrayList{"*RST\n"});
        QCOMPARE(stateOf(session.host), (State{false, StopText, lockedControls()}));
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        session.pressRun();
        QCOMPARE(stateOf(session.host), stopped());
    });
}

QTEST_MAIN(TestEditorRunning)
#include "test_editorrunning.moc"
