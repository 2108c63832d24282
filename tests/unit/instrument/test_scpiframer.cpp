// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiframer.h"

#include <QTest>

namespace {

const QByteArray Overrun("(overrun)");

QList<QByteArray> framed(const QByteArray& bytes, int pieceSize)
{
    ScpiFramer framer;
    QList<QByteArray> messages;
    ScpiFramer::Message message;
    for (int at = 0; at < bytes.size(); at += pieceSize) {
        framer.append(bytes.mid(at, pieceSize));
        while (framer.next(message))
            messages.append(message.isOverrun ? Overrun : message.bytes);
    }
    return messages;
}

} // namespace

class TestScpiFramer : public QObject
{
    Q_OBJECT

private slots:
    void messages_data();
    void messages();
    void limit_data();
    void limit();
    void longBlockIsSkipped();
};

void TestScpiFramer::messages_data()
{
    using List = QList<QByteArray>;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<List>("messages");

    QTest::newRow("one") << QByteArray("*IDN?\n") << List{"*IDN?"};
    QTest::newRow("unfinished") << QByteArray("*IDN?") << List{};
    QTest::newRow("two") << QByteArray("*CLS\n*IDN?\n") << List{"*CLS", "*IDN?"};
    QTest::newRow("two and a half") << QByteArray("A\nB\nC") << List{"A", "B"};
    QTest::newRow("CRLF") << QByteArray("*CLS\r\n*RST\r\n") << List{"*CLS\r", "*RST\r"};
    QTest::newRow("empty ones") << QByteArray("\n \t\n\r\n\nA\n") << List{"A"};
    QTest::newRow("blank before the end") << QByteArray("*RST \n") << List{"*RST "};
    QTest::newRow("line feed in a block")
        << QByteArray("A #15a\nb;c\nB\n") << List{"A #15a\nb;c", "B"};
    QTest::newRow("block behind a comma") << QByteArray("A 1,#12\n\n\n") << List{"A 1,#12\n\n"};
    QTest::newRow("two blocks") << QByteArray("A #11\n,#11\n\n") << List{"A #11\n,#11\n"};
    QTest::newRow("block in the second unit") << QByteArray("A;B #11\n\n") << List{"A;B #11\n"};
    QTest::newRow("empty block") << QByteArray("A #10\nB\n") << List{"A #10", "B"};
    QTest::newRow("long length") << QByteArray("A #9000000002\n\n\n") << List{"A #9000000002\n\n"};
    QTest::newRow("no block in a header") << QByteArray("A#15\nB\n") << List{"A#15", "B"};
    QTest::newRow("no block at a unit's start") << QByteArray("A; #15\nB\n") << List{"A; #15", "B"};
    QTest::newRow("no block within a word") << QByteArray("A b#15\nB\n") << List{"A b#15", "B"};
    QTest::newRow("no block in quotes") << QByteArray("A \"#15\"\nB\n") << List{"A \"#15\"", "B"};
    QTest::newRow("no block after doubled quotes")
        << QByteArray("A \"x\"\" #15\"\nB\n") << List{"A \"x\"\" #15\"", "B"};
    QTest::newRow("indefinite block") << QByteArray("A #0xy\nB\n") << List{"A #0xy", "B"};
    QTest::newRow("radix number") << QByteArray("A #H1F\nB\n") << List{"A #H1F", "B"};
    QTest::newRow("bad block length") << QByteArray("A #3 1\nB\n") << List{"A #3 1", "B"};
    QTest::newRow("line feed in a block length") << QByteArray("A #31\nB\n") << List{"A #31", "B"};
    QTest::newRow("quote left open") << QByteArray("A \"b\nB\n") << List{"A \"b", "B"};
    QTest::newRow("other quote inside") << QByteArray("A \"'\" #11\n\n") << List{"A \"'\" #11\n"};
}

void TestScpiFramer::messages()
{
    QFETCH(QByteArray, bytes);
    QTEST(framed(bytes, bytes.size()), "messages");
    QTEST(framed(bytes, 1), "messages");
    QTEST(framed(bytes, 3), "messages");
}

void TestScpiFramer::limit_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("fits");

    QTest::newRow("just below") << 65535 << true;
    QTest::newRow("at the limit") << 65536 << true;
    QTest::newRow("just above") << 65537 << false;
    QTest::newRow("far above") << 1000000 << false;
}

void TestScpiFramer::limit()
{
    QFETCH(int, length);
    QFETCH(bool, fits);
    const QByteArray text(length, 'x');
    const QList<QByteArray> expected{fits ? text : Overrun, QByteArray("*IDN?")};
    QCOMPARE(framed(text + "\n*IDN?\n", 4096), expected);
}

void TestScpiFramer::longBlockIsSkipped()
{
    const QByteArray block = "A #6100000" + QByteArray(50000, '\n') + QByteArray(50000, 'x');
    const QList<QByteArray> expected{Overrun, QByteArray("*IDN?")};
    QCOMPARE(framed(block + "\n*IDN?\n", 4096), expected);
}

QTEST_APPLESS_MAIN(TestScpiFramer)
#include "test_scpiframer.moc"
