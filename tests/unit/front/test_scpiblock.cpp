// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiblock.h"

#include <QtTest>

Q_DECLARE_METATYPE(BlockState)

class TestScpiBlock : public QObject
{
    Q_OBJECT

private slots:
    void block_data();
    void block();
    void everyPieceOfABlock();
    void sizeOfTheWhole();
    void longest();
};

void TestScpiBlock::block_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<BlockState>("state");
    QTest::addColumn<QByteArray>("data");
    const auto row = [](const char* name, const QByteArray& bytes, BlockState state,
                        const QByteArray& data = QByteArray("untouched")) {
        QTest::newRow(name) << bytes << state << data;
    };
    row("nothing", "", BlockState::Incomplete);
    row("begin", "#", BlockState::Incomplete);
    row("length missing", "#2", BlockState::Incomplete);
    row("length incomplete", "#21", BlockState::Incomplete);
    row("data missing", "#210", BlockState::Incomplete);
    row("data incomplete", "#13ab", BlockState::Incomplete);
    row("complete", "#13abc", BlockState::Complete, "abc");
    row("line feed behind", "#13abc\n", BlockState::Complete, "abc");
    row("line feed inside", "#13a\nc\n", BlockState::Complete, "a\nc");
    row("no data", "#10\n", BlockState::Complete, "");
    row("leading zeros", "#9000000001x", BlockState::Complete, "x");
    row("no block", "1.5", BlockState::Malformed);
    row("indefinite", "#0abc", BlockState::Malformed);
    row("digits no digit", "#x", BlockState::Malformed);
    row("length no number", "#2a", BlockState::Malformed);
    row("length negative", "#2-1", BlockState::Malformed);
    row("longer than any trace", "#9999999999", BlockState::Malformed);
}

void TestScpiBlock::block()
{
    QFETCH(QByteArray, bytes);
    QFETCH(BlockState, state);
    QFETCH(QByteArray, data);
    QByteArray read("untouched");
    QCOMPARE(parseBlock(bytes, read), state);
    QCOMPARE(read, data);
}

void TestScpiBlock::everyPieceOfABlock()
{
    const QByteArray whole = "#212hello\nworld\n";
    QByteArray data;
    for (int length = 0; length < 4 + 12; ++length)
        QCOMPARE(parseBlock(whole.left(length), data), BlockState::Incomplete);
    QCOMPARE(parseBlock(whole, data), BlockState::Complete);
}

void TestScpiBlock::sizeOfTheWhole()
{
    QByteArray data;
    int size = -1;
    QCOMPARE(parseBlock("#13ab", data, size), BlockState::Incomplete);
    QCOMPARE(size, -1);
    QCOMPARE(parseBlock("#13abc\nrest", data, size), BlockState::Complete);
    QCOMPARE(size, 6);
    QCOMPARE(data, QByteArray("abc"));
}

void TestScpiBlock::longest()
{
    QByteArray data;
    const QByteArray longest = "#7" + QByteArray::number(MaxBlockBytes);
    QCOMPARE(parseBlock(longest, data), BlockState::Incomplete);
    const QByteArray tooLong = "#7" + QByteArray::number(MaxBlockBytes + 1);
    QCOMPARE(parseBlock(tooLong, data), BlockState::Malformed);
}

QTEST_GUILESS_MAIN(TestScpiBlock)
#include "test_scpiblock.moc"
