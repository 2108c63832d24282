// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"

using namespace Output;

/// An instrument that takes every command and never answers the closing query. The wait for it is
/// half a minute long and is waited out, so that this test stands alone.
class TestEditorOutputSilence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noReplyToTheClosingQuery();
};

void TestEditorOutputSilence::noReplyToTheClosingQuery()
{
    EditorSession session;
    session.host.exec([&] {
        FrontPanel::tap(session.host.button(EditorHost::Run));
        QCOMPARE(session.server.received(), "*IDN?\n*RST\n" + joined(runCommands()));
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(waveformExists());
        QVERIFY(!session.host.discardKeys() && !session.host.blockScpi());
        QVERIFY(LogCapture::messages().filter(QStringLiteral("error cmd")).isEmpty());

        session.server.answer("*IDN? \n", "late\n");
        FrontPanel::tap(session.host.button(EditorHost::Run));
        QCOMPARE(session.server.received(),
                 "*IDN?\n*RST\n" + joined(runCommands() + stopCommands()));
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

QTEST_MAIN(TestEditorOutputSilence)
#include "test_editoroutputsilence.moc"
