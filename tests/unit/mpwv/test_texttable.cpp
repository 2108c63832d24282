// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "texttable.h"

#include <QtTest>

class TestTextTable : public QObject
{
    Q_OBJECT

private slots:
    void alignsColumns();
    void takesUnevenRows();
};

void TestTextTable::alignsColumns()
{
    QCOMPARE(textTable({{QStringLiteral("name"), QStringLiteral("n")},
                        {QStringLiteral("a"), QStringLiteral("12")}}),
             QStringLiteral("name   n\na     12\n"));
}

void TestTextTable::takesUnevenRows()
{
    QCOMPARE(textTable({}), QString());
    QCOMPARE(textTable({{QStringLiteral("long one")}, {QStringLiteral("a"), QStringLiteral("b")}}),
             QStringLiteral("long one\na         b\n"));
}

QTEST_APPLESS_MAIN(TestTextTable)
#include "test_texttable.moc"
