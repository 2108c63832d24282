// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandlog.h"
#include "identifiertexts.h"
#include "transcript.h"

#include <QTemporaryDir>
#include <QtTest>

class TestCommandLog : public QObject
{
    Q_OBJECT

private:
    static ScenarioText text(const QString& body)
    {
        ScenarioText read;
        if (!readScenarioText(body, read).isEmpty())
            qFatal("no text");
        return read;
    }

    void append(const QByteArray& bytes)
    {
        QFile file(m_strPath);
        QVERIFY(file.open(QIODevice::Append));
        file.write(bytes);
    }

    void appendEvent(TranscriptEvent::Mark mark, const QByteArray& bytes)
    {
        append(transcriptLine({1000, 1, mark, bytes}) + '\n');
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_strPath = m_folder->filePath("talk.txt");
        append(QByteArray(TranscriptTitle) + '\n');
    }

    void inOrder()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Command, "*RST \n");
        appendEvent(TranscriptEvent::Command, "OUTP1 ON \n");
        QVERIFY(log.find(text("OUTP1 ON"), m_texts));
        QVERIFY(!log.find(text("*RST"), m_texts));
        appendEvent(TranscriptEvent::Command, "*RST\n");
        QVERIFY(log.find(text("*RST"), m_texts));
        QVERIFY(!log.find(text("*RST"), m_texts));
    }

    void caseAndBlanksDoNotCount()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Command, "source1:BURSt  ON \n");
        QVERIFY(log.find(text("SOURCE1:burst ON"), m_texts));
    }

    void wildcard()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Command, "SOURce1:FREQuency:FIXed 31250\n");
        QVERIFY(!log.find(text("SOURce1:FREQuency:FIXed"), m_texts));
        QVERIFY(log.find(text("SOURce1:FREQuency:FIXed ..."), m_texts));
    }

    void repliesAreNoCommands()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Reply, "OUTP1 ON\n");
        QVERIFY(!log.find(text("OUTP1 ON"), m_texts));
    }

    void containsTakesNothing()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Command, "*RST\n");
        QVERIFY(log.contains(text("*RST"), m_texts));
        QVERIFY(log.find(text("*RST"), m_texts));
        QVERIFY(!log.contains(text("*RST"), m_texts));
    }

    void aLineThatIsBeingWritten()
    {
        CommandLog log(m_strPath);
        const QByteArray line = transcriptLine({1000, 1, TranscriptEvent::Command, "*RST\n"});
        append(line.left(line.size() - 3));
        QVERIFY(!log.find(text("*RST"), m_texts));
        append(line.right(3) + '\n');
        QVERIFY(log.find(text("*RST"), m_texts));
    }

    void remaining()
    {
        CommandLog log(m_strPath);
        appendEvent(TranscriptEvent::Command, "A\n");
        appendEvent(TranscriptEvent::Command, "B  1\n");
        QVERIFY(log.find(text("A"), m_texts));
        QCOMPARE(log.remaining(), QStringList({"B 1"}));
    }

    void noTranscript()
    {
        CommandLog none{QString()};
        QVERIFY(!none.contains(text("..."), m_texts));
        CommandLog missing(m_folder->filePath("missing.txt"));
        QVERIFY(!missing.contains(text("..."), m_texts));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strPath;
    IdentifierTexts m_texts;
};

QTEST_GUILESS_MAIN(TestCommandLog)

#include "test_commandlog.moc"
