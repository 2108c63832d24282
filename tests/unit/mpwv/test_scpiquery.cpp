// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiquery.h"

#include "instrumentlink.h"
#include "scriptedserver.h"

#include <QtTest>

class TestScpiQuery : public QObject
{
    Q_OBJECT

private slots:
    void line_data();
    void line();
    void lineWithoutEnd();
    void lineCutShort();
    void blockInPieces();
    void noBlock();
    void blockCutShort();
    void number_data();
    void number();
    void noReply();
    void shown();
};

void TestScpiQuery::line_data()
{
    QTest::addColumn<QVector<QByteArray>>("pieces");
    QTest::newRow("whole") << QVector<QByteArray>{"0,\"No error\"\n"};
    QTest::newRow("CR") << QVector<QByteArray>{"0,\"No error\"\r\n"};
    QTest::newRow("pieces") << QVector<QByteArray>{"0,", "\"No er", "ror\"", "\n"};
    QTest::newRow("more behind") << QVector<QByteArray>{"0,\"No error\"\nmore\n"};
}

void TestScpiQuery::line()
{
    QFETCH(QVector<QByteArray>, pieces);
    ScriptedServer server({{pieces, false}});
    for (int i = 1; i < pieces.size(); ++i)
        server.sendNextPiece();
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray reply;
    QCOMPARE(askLine(link, "SYSTem:ERRor?\n", reply), QString());
    QCOMPARE(reply, QByteArray("0,\"No error\""));
    QCOMPARE(server.received(), QByteArray("SYSTem:ERRor?\n"));
}

void TestScpiQuery::lineWithoutEnd()
{
    ScriptedServer server({{{QByteArray(MaxLineBytes + 1, 'x')}, false}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray reply("untouched");
    QCOMPARE(
        askLine(link, "*IDN?\n", reply),
        QStringLiteral("*IDN?: the reply has no end: \"%1\"").arg(QString(80, QLatin1Char('x'))));
    QCOMPARE(reply, QByteArray("untouched"));
}

void TestScpiQuery::lineCutShort()
{
    ScriptedServer server({{{"rub\x01"}, true}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray reply("untouched");
    QCOMPARE(askLine(link, "*IDN?\n", reply),
             QStringLiteral("*IDN?: the reply has no end: \"rub\\u0001\""));
    QCOMPARE(reply, QByteArray("untouched"));
}

void TestScpiQuery::blockInPieces()
{
    ScriptedServer server({{{"#", "15he", "llo", "\n"}, false}});
    for (int i = 0; i < 3; ++i)
        server.sendNextPiece();
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray data;
    QCOMPARE(askBlock(link, "TRACe1:DATA?\n", data), QString());
    QCOMPARE(data, QByteArray("hello"));
}

void TestScpiQuery::noBlock()
{
    ScriptedServer server({{{"rub\x1b[2J\n"}, false}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray data;
    QCOMPARE(
        askBlock(link, "TRACe1:DATA?\n", data),
        QStringLiteral("TRACe1:DATA?: the reply is no block of data: \"rub\\u001b[2J\\u000a\""));
}

void TestScpiQuery::blockCutShort()
{
    ScriptedServer server({{{"#15he"}, true}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    QByteArray data("untouched");
    QCOMPARE(askBlock(link, "TRACe1:DATA?\n", data),
             QStringLiteral("TRACe1:DATA?: the reply has no end: \"#15he\""));
    QCOMPARE(data, QByteArray("untouched"));
}

void TestScpiQuery::number_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("good");
    QTest::addColumn<double>("expected");
    QTest::newRow("whole") << QByteArray("131070\n") << true << 131070.0;
    QTest::newRow("real") << QByteArray("2.5E-10\n") << true << 2.5e-10;
    QTest::newRow("negative") << QByteArray("-1\n") << true << -1.0;
    QTest::newRow("word") << QByteArray("ON\n") << false << 0.0;
    QTest::newRow("empty") << QByteArray("\n") << false << 0.0;
    QTest::newRow("infinity") << QByteArray("9.9E+37\n") << false << 0.0;
    QTest::newRow("not a number") << QByteArray("9.91E+37\n") << false << 0.0;
    QTest::newRow("nan") << QByteArray("nan\n") << false << 0.0;
}

void TestScpiQuery::number()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, good);
    QFETCH(double, expected);
    ScriptedServer server({{{reply}, false}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    double number = 0;
    const QString reason = askNumber(link, "TRACe1:TIMe:STEP?\n", number);
    QCOMPARE(reason.isEmpty(), good);
    QCOMPARE(reason.contains(QLatin1String("is no number")), !good);
    QCOMPARE(number, expected);
}

void TestScpiQuery::noReply()
{
    ScriptedServer server({{{}, true}});
    InstrumentLink link;
    QVERIFY(link.connectToInstrument());
    double number = 0;
    QCOMPARE(askNumber(link, "TRACe1:POINts?\n", number),
             QStringLiteral("TRACe1:POINts?: no reply: The remote host closed the connection"));
}

void TestScpiQuery::shown()
{
    QCOMPARE(shownCommand("OUTP1 OFF \n"), QStringLiteral("OUTP1 OFF"));
    QCOMPARE(shownCommand("a\tb\n"), QStringLiteral("a\\u0009b"));
}

QTEST_GUILESS_MAIN(TestScpiQuery)
#include "test_scpiquery.moc"
