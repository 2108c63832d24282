// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include <QtTest>

namespace {

template<size_t Count>
QList<QByteArray> identifiers(const char* (&labels)[Count])
{
    QList<QByteArray> found;
    for (const char* label : labels)
        found.append(label);
    return found;
}

} // namespace

// The index of an entry is what a setup stores.
class TestEditorLabels : public QObject
{
    Q_OBJECT

private slots:
    void triggerSources();
    void triggerSlopes();
    void loads();
    void tableHeader();
};

void TestEditorLabels::triggerSources()
{
    QCOMPARE(identifiers(MultiPulseEditor::m_strTriggerSourceLabels),
             (QList<QByteArray>{"STR_ID_MANUAL", "DBID_TRIGGER_SOURCE_EXTERNAL", "SEQID_TIMER"}));
}

void TestEditorLabels::triggerSlopes()
{
    QCOMPARE(identifiers(MultiPulseEditor::m_strTriggerSlopeLabels),
             (QList<QByteArray>{"DBID_TRIGGER_SLOPE_POSITIVE", "DBID_TRIGGER_SLOPE_NEGATIVE"}));
}

void TestEditorLabels::loads()
{
    QCOMPARE(identifiers(MultiPulseEditor::m_strLoadLabels),
             (QList<QByteArray>{"STR_ID_50", "STR_ID_HI_Z"}));
}

void TestEditorLabels::tableHeader()
{
    QCOMPARE(identifiers(MultiPulseEditor::m_strTableHeaderLabels),
             (QList<QByteArray>{"STR_ID_WIDTHS", "STR_ID_GAPS"}));
}

QTEST_APPLESS_MAIN(TestEditorLabels)

#include "test_editorlabels.moc"
