// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "transcript.h"

#include <QBuffer>
#include <QTest>

namespace {

QVector<TranscriptEvent> eventsOf(const QByteArray& lines)
{
    QByteArray text = QByteArray(TranscriptTitle) + '\n' + lines;
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    QVector<TranscriptEvent> events;
    const QString error = readTranscript(buffer, events);
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    return events;
}

} // namespace

class TestTranscript : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void everyByteComesBack();
    void noEvents_data();
    void noEvents();
    void writerMakesReadableFile();
    void readErrors_data();
    void readErrors();
    void compareSame_data();
    void compareSame();
    void compareDifferent_data();
    void compareDifferent();
};

void TestTranscript::lines_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<char>("mark");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("command") << qint64(1) << '>' << QByteArray("*IDN? \n")
                             << QByteArray("0.000000001 7 > *IDN? \\n");
    QTest::newRow("reply") << qint64(61234567890) << '<' << QByteArray("a\\b")
                           << QByteArray("61.234567890 7 < a\\\\b");
    QTest::newRow("control characters") << qint64(0) << '>' << QByteArray("\r\t\x01\x7f\xff")
                                        << QByteArray("0.000000000 7 > "
                                                      "\\r\\t\\x01\\x7f\\xff");
    QTest::newRow("connected") << qint64(5) << '+' << QByteArray()
                               << QByteArray("0.000000005 7 + ");
    QTest::newRow("overrun") << qint64(5) << '!' << QByteArray() << QByteArray("0.000000005 7 ! ");
}

void TestTranscript::lines()
{
    QFETCH(qint64, time);
    QFETCH(char, mark);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, line);
    const TranscriptEvent event{time, 7, TranscriptEvent::Mark(mark), bytes};
    QCOMPARE(transcriptLine(event), line);

    TranscriptEvent read;
    QVERIFY(parseTranscriptLine(line, read));
    QCOMPARE(read.time, time);
    QCOMPARE(read.client, 7);
    QCOMPARE(char(read.mark), mark);
    QCOMPARE(read.bytes, bytes);
}

void TestTranscript::everyByteComesBack()
{
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes.append(static_cast<char>(code));
    const QByteArray line = transcriptLine({0, 1, TranscriptEvent::Reply, bytes});
    for (const char c : line)
        QVERIFY(c >= ' ' && c <= '~');
    TranscriptEvent read;
    QVERIFY(parseTranscriptLine(line, read));
    QCOMPARE(read.bytes, bytes);
}

void TestTranscript::noEvents_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no mark") << QByteArray("0.000000001 7");
    QTest::newRow("nothing behind the mark") << QByteArray("0.000000001 7 >");
    QTest::newRow("unknown mark") << QByteArray("0.000000001 7 ? x");
    QTest::newRow("long mark") << QByteArray("0.000000001 7 >> x");
    QTest::newRow("client no number") << QByteArray("0.000000001 x > x");
    QTest::newRow("client 0") << QByteArray("0.000000001 0 > x");
    QTest::newRow("time without point") << QByteArray("1 7 > x");
    QTest::newRow("short fraction") << QByteArray("0.001 7 > x");
    QTest::newRow("negative time") << QByteArray("-1.000000001 7 > x");
    QTest::newRow("backslash at the end") << QByteArray("0.000000001 7 > x\\");
    QTest::newRow("unknown escape") << QByteArray("0.000000001 7 > \\q");
    QTest::newRow("short hexadecimal escape") << QByteArray("0.000000001 7 > \\x1");
    QTest::newRow("wrong hexadecimal escape") << QByteArray("0.000000001 7 > \\xzz");
}

void TestTranscript::noEvents()
{
    QFETCH(QByteArray, line);
    TranscriptEvent event;
    event.client = 99;
    QVERIFY(!parseTranscriptLine(line, event));
    QCOMPARE(event.client, 99);
}

void TestTranscript::writerMakesReadableFile()
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    TranscriptWriter writer(buffer);
    writer.write({1, 1, TranscriptEvent::Command, "*OPC?\n"});
    writer.write({2, 1, TranscriptEvent::Reply, "1\n"});
    QCOMPARE(buffer.data(), QByteArray("# kvx-instrument transcript 1\n"
                                       "0.000000001 1 > *OPC?\\n\n"
                                       "0.000000002 1 < 1\\n\n"));
    buffer.seek(0);
    QVector<TranscriptEvent> events;
    QCOMPARE(readTranscript(buffer, events), QString());
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(1).bytes, QByteArray("1\n"));
}

void TestTranscript::readErrors_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");

    QTest::newRow("empty file") << QByteArray() << QStringLiteral("line 1: not a transcript");
    QTest::newRow("other file") << QByteArray("hello\n")
                                << QStringLiteral("line 1: not a transcript");
    QTest::newRow("third line") << QByteArray("# kvx-instrument transcript 1\n"
                                              "0.000000001 1 > A\\n\nnonsense\n")
                                << QStringLiteral("line 3: not an event of a transcript");
}

void TestTranscript::readErrors()
{
    QFETCH(QByteArray, text);
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    QVector<TranscriptEvent> events;
    QTEST(readTranscript(buffer, events), "error");
}

void TestTranscript::compareSame_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");

    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("other times and clients")
        << QByteArray("0.000000001 1 > A\\n\n") << QByteArray("5.000000001 2 > A\\n\n");
    QTest::newRow("comings and goings")
        << QByteArray("0.000000001 1 + \n0.000000001 1 > A\\n\n0.000000001 1 - \n")
        << QByteArray("0.000000001 1 > A\\n\n");
}

void TestTranscript::compareSame()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QCOMPARE(compareTranscripts(eventsOf(first), eventsOf(second)), QString());
}

void TestTranscript::compareDifferent_data()
{
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("difference");

    const auto row = [](const char* name, const char* second, const char* difference) {
        QTest::newRow(name) << QByteArray(second) << QString::fromLatin1(difference);
    };
    row("command", "0.000000001 1 > B?\\n\n0.000000001 1 < 1\\n\n",
        "event 1 differs:\n  > A?\\n\n  > B?\\n");
    row("reply", "0.000000001 1 > A?\\n\n0.000000001 1 < 2\\n\n",
        "event 2 differs:\n  < 1\\n\n  < 2\\n");
    row("no reply", "0.000000001 1 > A?\\n\n", "event 2 differs:\n  < 1\\n\n  (end)");
    row("more", "0.000000001 1 > A?\\n\n0.000000001 1 < 1\\n\n0.000000001 1 > C\\n\n",
        "event 3 differs:\n  (end)\n  > C\\n");
    row("mark", "0.000000001 1 > A?\\n\n0.000000001 1 > 1\\n\n",
        "event 2 differs:\n  < 1\\n\n  > 1\\n");
}

void TestTranscript::compareDifferent()
{
    QFETCH(QByteArray, second);
    const QByteArray first = "0.000000001 1 > A?\\n\n0.000000001 1 < 1\\n\n";
    QTEST(compareTranscripts(eventsOf(first), eventsOf(second)), "difference");
}

QTEST_APPLESS_MAIN(TestTranscript)
#include "test_transcript.moc"
