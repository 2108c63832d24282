// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpisession.h"

#include "scpifixture.h"

#include <QTest>

class TestScpiSession : public QObject
{
    Q_OBJECT

private slots:
    void feed_data();
    void feed();
    void pathEndsWithMessage();
    void sessionsHaveTheirOwnBuffers();
    void overrun();
    void nextTakesNothingUntilComplete();
};

void TestScpiSession::feed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("replies");

    QTest::newRow("query") << QByteArray("*OPC?\n") << QByteArray("1\n");
    QTest::newRow("CRLF") << QByteArray("*OPC?\r\n") << QByteArray("1\n");
    QTest::newRow("blank before the end") << QByteArray("*OPC? \n") << QByteArray("1\n");
    QTest::newRow("two messages") << QByteArray("*OPC?\nVOLT?\n") << QByteArray("1\n0\n");
    QTest::newRow("empty messages") << QByteArray("\n\r\n \n*OPC?\n\n") << QByteArray("1\n");
    QTest::newRow("unfinished") << QByteArray("*OPC?") << QByteArray();
    QTest::newRow("block with line feeds")
        << QByteArray("TRIG:SOUR #13\na\n\nTRIG:SOUR?\n") << QByteArray("\na\n\n");
    QTest::newRow("quote left open") << QByteArray("VOLT 'a\n*OPC?\n") << QByteArray("1\n");
}

void TestScpiSession::feed()
{
    QFETCH(QByteArray, bytes);
    ScpiFixture whole;
    QTEST(ScpiSession(whole.instrument).feed(bytes), "replies");

    ScpiFixture pieces;
    ScpiSession session(pieces.instrument);
    QByteArray replies;
    for (const char c : bytes)
        replies += session.feed(QByteArray(1, c));
    QTEST(replies, "replies");
}

void TestScpiSession::pathEndsWithMessage()
{
    ScpiFixture fixture;
    ScpiSession session(fixture.instrument);
    QCOMPARE(session.feed("TRIG:SOUR TIM\nSOUR?\nTRIG:SOUR?\n"), QByteArray("TIM\n"));
    QCOMPARE(fixture.errors(), QList<int>{-113});
}

void TestScpiSession::sessionsHaveTheirOwnBuffers()
{
    ScpiFixture fixture;
    ScpiSession first(fixture.instrument);
    ScpiSession second(fixture.instrument);
    QCOMPARE(first.feed("VOLT 5;VO"), QByteArray());
    QCOMPARE(second.feed("VOLT 7\nNONSENSE\n"), QByteArray());
    QCOMPARE(first.feed("LT?\n"), QByteArray("5\n"));
    QCOMPARE(second.feed("VOLT?;:SYST:ERR:COUN?\n"), QByteArray("5;1\n"));
}

void TestScpiSession::overrun()
{
    ScpiFixture fixture;
    ScpiSession session(fixture.instrument);
    QCOMPARE(session.feed(QByteArray(70000, 'x')), QByteArray());
    QCOMPARE(fixture.errors(), QList<int>());
    QCOMPARE(session.feed("\n*OPC?\n"), QByteArray("1\n"));
    QCOMPARE(session.feed("SYST:ERR?\n"), QByteArray("-363,\"Input buffer overrun\"\n"));
}

void TestScpiSession::nextTakesNothingUntilComplete()
{
    ScpiFixture fixture;
    ScpiSession session(fixture.instrument);
    ScpiFramer::Message message;
    session.append("VOLT 5;VOLT?");
    QVERIFY(!session.next(message));
    session.append("\nVOLT?\n");
    QVERIFY(session.next(message));
    QCOMPARE(message.bytes, QByteArray("VOLT 5;VOLT?"));
    QCOMPARE(fixture.level, QByteArray("0"));
    QCOMPARE(session.execute(message), QByteArray("5\n"));
    QVERIFY(session.next(message));
    QVERIFY(!session.next(message));
}

QTEST_APPLESS_MAIN(TestScpiSession)
#include "test_scpisession.moc"
