// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpitext.h"

#include <QTest>

class TestScpiText : public QObject
{
    Q_OBJECT

private slots:
    void classes_data();
    void classes();
    void quotes();
};

void TestScpiText::classes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isBlank");
    QTest::addColumn<bool>("isLetter");
    QTest::addColumn<bool>("isWord");

    QTest::newRow("zero byte") << 0 << true << false << false;
    QTest::newRow("tab") << 9 << true << false << false;
    QTest::newRow("line feed") << 10 << false << false << false;
    QTest::newRow("carriage return") << 13 << true << false << false;
    QTest::newRow("blank") << 32 << true << false << false;
    QTest::newRow("exclamation mark") << 33 << false << false << false;
    QTest::newRow("digit") << int('7') << false << false << true;
    QTest::newRow("below A") << int('@') << false << false << false;
    QTest::newRow("A") << int('A') << false << true << true;
    QTest::newRow("z") << int('z') << false << true << true;
    QTest::newRow("above z") << int('{') << false << false << false;
    QTest::newRow("underscore") << int('_') << false << false << true;
    QTest::newRow("high byte") << 0xe9 << false << false << false;
}

void TestScpiText::classes()
{
    QFETCH(int, code);
    const char c = static_cast<char>(code);
    QTEST(ScpiText::isBlank(c), "isBlank");
    QTEST(ScpiText::isLetter(c), "isLetter");
    QTEST(ScpiText::isWord(c), "isWord");
}

void TestScpiText::quotes()
{
    QVERIFY(ScpiText::isQuote('"') && ScpiText::isQuote('\'') && !ScpiText::isQuote('`'));
    QCOMPARE(ScpiText::quoted("a \"b\""), QByteArray("\"a \"\"b\"\"\""));
    QCOMPARE(ScpiText::quoted(""), QByteArray("\"\""));
}

QTEST_APPLESS_MAIN(TestScpiText)
#include "test_scpitext.moc"
