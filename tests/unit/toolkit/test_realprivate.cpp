// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "realprivate.h"

#include <QtTest>

class TestRealPrivate : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
};

void TestRealPrivate::defaults()
{
    const appPlugins::RealPrivate column;
    QCOMPARE(int(column.unitType), int(UNIT_EMPTY));
    QCOMPARE(column.dbValue, 0.0);
    QCOMPARE(column.strValue, QStringLiteral("0"));
    QCOMPARE(column.dbAbsoluteMax, 1.0);
    QCOMPARE(column.dbAbsoluteMin, 0.0);
    QCOMPARE(column.resolution, 0.001);
}

QTEST_APPLESS_MAIN(TestRealPrivate)
#include "test_realprivate.moc"
