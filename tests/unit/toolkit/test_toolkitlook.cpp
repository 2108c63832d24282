// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "toolkitlook.h"

#include <QtTest>

class TestToolkitLook : public QObject
{
    Q_OBJECT

private slots:
    void textFont();
    void picturesAreBelowUserData();
};

void TestToolkitLook::textFont()
{
    const QFont font = appPlugins::Look::textFont();
    QCOMPARE(font.family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(font.pixelSize(), 16);
    QCOMPARE(font.pointSize(), -1);
    QCOMPARE(font.weight(), 75);
    QVERIFY(!font.italic());
}

void TestToolkitLook::picturesAreBelowUserData()
{
    QCOMPARE(QString(appPlugins::Look::AppFolder), QStringLiteral("/mnt/user-data/.app/"));
}

QTEST_MAIN(TestToolkitLook)
#include "test_toolkitlook.moc"
