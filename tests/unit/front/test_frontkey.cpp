// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontkey.h"

#include "frontpanelkeys.h"

#include <QSet>
#include <QtTest>

class TestFrontKey : public QObject
{
    Q_OBJECT

private slots:
    void codes_data();
    void codes();
    void everyKeyOnce();
    void desktopKeysStandForOneKeyEach();
    void unknown();
    void desktopNames();
};

void TestFrontKey::codes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("desktopKey");
    const auto row = [](const char* name, int code, int desktopKey) {
        QTest::newRow(name) << QString::fromLatin1(name) << code << desktopKey;
    };
    row("0", Qt::Key_0, Qt::Key_0);
    row("9", Qt::Key_9, Qt::Key_9);
    row("point", Qt::Key_Period, Qt::Key_Comma);
    row("minus", 737, Qt::Key_Minus);
    row("backspace", Qt::Key_Backspace, Qt::Key_Backspace);
    row("enter", Qt::Key_Return, Qt::Key_Enter);
    row("cancel", Qt::Key_Cancel, Qt::Key_Escape);
    row("left", Qt::Key_Left, Qt::Key_Left);
    row("right", Qt::Key_Right, Qt::Key_Right);
    row("up", Qt::Key_Up, Qt::Key_Up);
    row("down", Qt::Key_Down, Qt::Key_Down);
    row("knob", 732, Qt::Key_Space);
    row("gn", 705, Qt::Key_G);
    row("mu", 709, Qt::Key_M);
    row("km", 713, Qt::Key_K);
    row("x1", 734, Qt::Key_X);
    row("home", 735, Qt::Key_Home);
    row("back", 736, Qt::Key_B);
    row("default", 729, Qt::Key_D);
    row("utility", 730, Qt::Key_U);
    row("manual", 731, Qt::Key_T);
    row("help", 738, Qt::Key_H);
    row("channel1", 725, Qt::Key_O);
}

void TestFrontKey::codes()
{
    QFETCH(QString, name);
    QFETCH(int, code);
    QFETCH(int, desktopKey);
    const FrontKey* key = frontKeyByName(name);
    QVERIFY(key != nullptr);
    QCOMPARE(key->code, code);
    QCOMPARE(frontKeyByCode(code), key);
    QCOMPARE(frontKeyOfDesktop(desktopKey), key);
}

void TestFrontKey::everyKeyOnce()
{
    QSet<QString> names;
    QSet<int> codes;
    for (const FrontKey& key : frontKeys()) {
        names.insert(key.name);
        codes.insert(key.code);
    }
    QCOMPARE(names.size(), frontKeys().size());
    QCOMPARE(codes.size(), frontKeys().size());
    QCOMPARE(frontKeys().size(), 10 + 21);
}

void TestFrontKey::desktopKeysStandForOneKeyEach()
{
    QSet<int> seen;
    for (const FrontKey& key : frontKeys()) {
        QVERIFY2(!key.desktopKeys.isEmpty(), qPrintable(key.name));
        for (const int desktopKey : key.desktopKeys) {
            QVERIFY2(!seen.contains(desktopKey), qPrintable(key.name));
            seen.insert(desktopKey);
            QVERIFY(!desktopKeyName(desktopKey).isEmpty());
        }
    }
}

void TestFrontKey::unknown()
{
    QVERIFY(frontKeyByName(QStringLiteral("Enter")) == nullptr);
    QVERIFY(frontKeyByName(QString()) == nullptr);
    QVERIFY(frontKeyByCode(0) == nullptr);
    QVERIFY(frontKeyOfDesktop(Qt::Key_Q) == nullptr);
}

void TestFrontKey::desktopNames()
{
    QCOMPARE(desktopKeyName(Qt::Key_G), QStringLiteral("G"));
    QCOMPARE(desktopKeyName(Qt::Key_7), QStringLiteral("7"));
    QCOMPARE(desktopKeyName(Qt::Key_Escape), QStringLiteral("Esc"));
    QCOMPARE(desktopKeyName(Qt::Key_Enter), QStringLiteral("Enter"));
}

QTEST_GUILESS_MAIN(TestFrontKey)
#include "test_frontkey.moc"
