// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "errorqueue.h"

#include <QTest>

class TestErrorQueue : public QObject
{
    Q_OBJECT

private slots:
    void standardText_data();
    void standardText();
    void emptyHasNoError();
    void firstInFirstOut();
    void overflowReplacesNewest();
    void roomAgainAfterOverflow();
    void detail_data();
    void detail();
    void longTextIsCut();
    void clearForgetsAll();
};

void TestErrorQueue::standardText_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("none") << 0 << QByteArray("No error");
    QTest::newRow("-100") << -100 << QByteArray("Command error");
    QTest::newRow("-109") << -109 << QByteArray("Missing parameter");
    QTest::newRow("-113") << -113 << QByteArray("Undefined header");
    QTest::newRow("-222") << -222 << QByteArray("Data out of range");
    QTest::newRow("-224") << -224 << QByteArray("Illegal parameter value");
    QTest::newRow("-256") << -256 << QByteArray("File name not found");
    QTest::newRow("-350") << -350 << QByteArray("Queue overflow");
    QTest::newRow("-410") << -410 << QByteArray("Query INTERRUPTED");
    QTest::newRow("without one of its own") << -199 << QByteArray("Command error");
    QTest::newRow("other class") << -299 << QByteArray("Execution error");
    QTest::newRow("class unknown") << -950 << QByteArray("Device-specific error");
    QTest::newRow("between none and -100") << -7 << QByteArray("No error");
    QTest::newRow("device's own") << 12 << QByteArray("Device-specific error");
}

void TestErrorQueue::standardText()
{
    QFETCH(int, number);
    QTEST(ErrorQueue::standardText(number), "text");
}

void TestErrorQueue::emptyHasNoError()
{
    ErrorQueue queue;
    QVERIFY(queue.isEmpty());
    QCOMPARE(queue.take(), QByteArray("0,\"No error\""));
    QCOMPARE(queue.take(), QByteArray("0,\"No error\""));
    QCOMPARE(queue.count(), 0);
}

void TestErrorQueue::firstInFirstOut()
{
    ErrorQueue queue;
    queue.push(-113);
    queue.push(-222);
    QCOMPARE(queue.count(), 2);
    QCOMPARE(queue.take(), QByteArray("-113,\"Undefined header\""));
    queue.push(-109);
    QCOMPARE(queue.take(), QByteArray("-222,\"Data out of range\""));
    QCOMPARE(queue.take(), QByteArray("-109,\"Missing parameter\""));
    QCOMPARE(queue.take(), QByteArray("0,\"No error\""));
}

void TestErrorQueue::overflowReplacesNewest()
{
    ErrorQueue queue;
    for (int i = 0; i < ErrorQueue::Capacity; ++i)
        queue.push(-222, QByteArray::number(i));
    QCOMPARE(queue.count(), 20);
    queue.push(-113);
    queue.push(-113, "x");
    QCOMPARE(queue.count(), 20);

    for (int i = 0; i < 19; ++i)
        QCOMPARE(queue.take(), "-222,\"Data out of range;" + QByteArray::number(i) + '"');
    QCOMPARE(queue.take(), QByteArray("-350,\"Queue overflow\""));
    QVERIFY(queue.isEmpty());
}

void TestErrorQueue::roomAgainAfterOverflow()
{
    ErrorQueue queue;
    for (int i = 0; i < 21; ++i)
        queue.push(-222);
    queue.take();
    queue.push(-113);
    QCOMPARE(queue.count(), 20);
    for (int i = 0; i < 18; ++i)
        QCOMPARE(queue.take(), QByteArray("-222,\"Data out of range\""));
    QCOMPARE(queue.take(), QByteArray("-350,\"Queue overflow\""));
    QCOMPARE(queue.take(), QByteArray("-113,\"Undefined header\""));
}

void TestErrorQueue::detail_data()
{
    QTest::addColumn<QByteArray>("detail");
    QTest::addColumn<QByteArray>("entry");

    QTest::newRow("none") << QByteArray() << QByteArray("-256,\"File name not found\"");
    QTest::newRow("plain") << QByteArray("M:/a.mpwv")
                           << QByteArray("-256,\"File name not found;M:/a.mpwv\"");
    QTest::newRow("quotes are doubled")
        << QByteArray("a\"b") << QByteArray("-256,\"File name not found;a\"\"b\"");
    QTest::newRow("no line end gets out") << QByteArray("a\n\x01\xff"
                                                        "b")
                                          << QByteArray("-256,\"File name not found;a...b\"");
}

void TestErrorQueue::detail()
{
    QFETCH(QByteArray, detail);
    ErrorQueue queue;
    queue.push(-256, detail);
    QTEST(queue.take(), "entry");
}

void TestErrorQueue::longTextIsCut()
{
    ErrorQueue queue;
    queue.push(-256, QByteArray(1000, 'x'));
    const QByteArray text = "File name not found;" + QByteArray(235, 'x');
    QCOMPARE(text.size(), 255);
    QCOMPARE(queue.take(), "-256,\"" + text + '"');
}

void TestErrorQueue::clearForgetsAll()
{
    ErrorQueue queue;
    queue.push(-113);
    queue.clear();
    QVERIFY(queue.isEmpty());
    QCOMPARE(queue.take(), QByteArray("0,\"No error\""));
}

QTEST_APPLESS_MAIN(TestErrorQueue)
#include "test_errorqueue.moc"
