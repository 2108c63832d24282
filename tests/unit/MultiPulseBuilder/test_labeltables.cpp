// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "labeltables.h"

#include <QtTest>

#include <iterator>

namespace {

template<std::size_t Size>
QList<QByteArray> texts(const char* (&table)[Size])
{
    return QList<QByteArray>(std::begin(table), std::end(table));
}

} // namespace

class TestLabelTables : public QObject
{
    Q_OBJECT

private slots:
    void namesTheChoices_data();
    void namesTheChoices();
};

void TestLabelTables::namesTheChoices_data()
{
    QTest::addColumn<QList<QByteArray>>("table");
    QTest::addColumn<QList<QByteArray>>("expected");

    QTest::newRow("trigger source")
        << texts(LabelTables::m_strTriggerSourceLabels)
        << QList<QByteArray>{"STR_ID_MANUAL", "DBID_TRIGGER_SOURCE_EXTERNAL", "SEQID_TIMER"};
    QTest::newRow("trigger slope")
        << texts(LabelTables::m_strTriggerSlopeLabels)
        << QList<QByteArray>{"DBID_TRIGGER_SLOPE_POSITIVE", "DBID_TRIGGER_SLOPE_NEGATIVE"};
    QTest::newRow("load") << texts(LabelTables::m_strLoadLabels)
                          << QList<QByteArray>{"STR_ID_50", "STR_ID_HI_Z"};
    QTest::newRow("table header") << texts(LabelTables::m_strTableHeaderLabels)
                                  << QList<QByteArray>{"STR_ID_WIDTHS", "STR_ID_GAPS"};
}

void TestLabelTables::namesTheChoices()
{
    using Texts = QList<QByteArray>;
    QFETCH(Texts, table);
    QFETCH(Texts, expected);
    QCOMPARE(table, expected);
}

QTEST_APPLESS_MAIN(TestLabelTables)
#include "test_labeltables.moc"
