// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorparts.h"
#include "editorsession.h"
#include "testtranslator.h"

#include <QLabel>
#include <QToolButton>

using namespace EditorParts;

/// What a change of the language under way changes.
class TestEditorLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void languageChange();
};

void TestEditorLanguage::initTestCase()
{
    QVERIFY(InstalledContent::install());
}

void TestEditorLanguage::languageChange()
{
    EditorSession session;
    const EditorHost& host = session.host;
    session.exec([&] {
        const TestTranslator german(QStringLiteral("de:"));
        FrontPanel::settle();
        QCOMPARE(titleOf(host.count()), QStringLiteral("de:STR_ID_PULSES_NUMS"));
        QCOMPARE(titleOf(host.highLevel()), QStringLiteral("de:STR_ID_HIGH_LEVEL"));
        QCOMPARE(titleOf(host.slope()), QStringLiteral("de:DBID_TRIGGER_SLOPE"));
        QCOMPARE(titleOf(host.timer()), QStringLiteral("de:SEQID_TIMER"));
        QCOMPARE(unitOf(host.delay()), QStringLiteral("de:ARBID_UNIT_S"));
        QCOMPARE(choices(host.source()),
                 (QStringList{QStringLiteral("de:STR_ID_MANUAL"),
                              QStringLiteral("de:DBID_TRIGGER_SOURCE_EXTERNAL"),
                              QStringLiteral("de:SEQID_TIMER")}));
        QCOMPARE(choices(host.load()),
                 (QStringList{QStringLiteral("de:STR_ID_50"), QStringLiteral("de:STR_ID_HI_Z")}));
        QCOMPARE(headerText(host.table(), 0), QStringLiteral("de:STR_ID_WIDTHS"));
        QCOMPARE(headerText(host.table(), 1), QStringLiteral("de:STR_ID_GAPS"));

        QCOMPARE(actionTexts(host), ActionTextIds);
        for (const EditorHost::Action action : AllActions)
            QCOMPARE(host.button(action)->text(), ActionTextIds.at(action));
        QCOMPARE(label(host, "title")->text(), QStringLiteral("STR_ID_MULTIPLE_PULSES"));
    });
    // The catalogue has gone with its translator.
    FrontPanel::settle();
    QCOMPARE(titleOf(host.count()), QStringLiteral("STR_ID_PULSES_NUMS"));
}

QTEST_MAIN(TestEditorLanguage)
#include "test_editorlanguage.moc"
