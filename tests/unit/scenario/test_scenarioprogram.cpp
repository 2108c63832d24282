// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioprogram.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

class TestScenarioProgram : public QObject
{
    Q_OBJECT

private:
    struct Run
    {
        int code = -1;
        QString out;
        QString err;
    };

    static Run run(const QStringList& arguments, QByteArray input = {})
    {
        Run result;
        QBuffer in(&input);
        in.open(QIODevice::ReadOnly);
        QTextStream out(&result.out);
        QTextStream err(&result.err);
        result.code = runScenarioProgram(QStringList("kvx-scenario") + arguments, in, out, err);
        return result;
    }

    QString write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write");
        return file.fileName();
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit()); }

    void help()
    {
        const Run help = run({"--help"});
        QCOMPARE(help.code, int(ScenarioPassed));
        QVERIFY(help.out.contains("--check"));
        QCOMPARE(help.err, QString());
    }

    void checkPasses()
    {
        const Run check = run({"--check", write("good", "touch {STR_UTILITY_RUN}\n")});
        QCOMPARE(check.code, int(ScenarioPassed));
        QCOMPARE(check.out + check.err, QString());
    }

    void checkTellsEveryMistake()
    {
        const QString bad = write("bad", "turn x\ntouch\n");
        const Run check = run({"--check", write("good", "turn 1\n"), bad});
        QCOMPARE(check.code, int(ScenarioUsage));
        QCOMPARE(check.err.count("kvx-scenario: " + bad), 2);
        QVERIFY(check.err.contains(bad + ":1: "));
    }

    void checkReadsTheStandardInput()
    {
        QCOMPARE(run({"--check", "-"}, "turn 1\n").code, int(ScenarioPassed));
        QVERIFY(run({"--check", "-"}, "turn\n").err.contains("-:1: "));
    }

    void fileThatCannotBeRead()
    {
        const Run check = run({m_folder.filePath("missing")});
        QCOMPARE(check.code, int(ScenarioUsage));
        QVERIFY(check.err.contains("missing"));
    }

    void wrongOptions() { QCOMPARE(run({"--nonsense"}).code, int(ScenarioUsage)); }

    // Port 1 is no host's; connecting is tried for some seconds.
    void noHost()
    {
        const Run play = run({"--screen-port", "1", "--keypad", m_folder.filePath("keypad"),
                              "--output", m_folder.path(), write("one", "turn 1\n")});
        QCOMPARE(play.code, int(ScenarioUsage));
        QVERIFY2(play.err.contains("no host is there"), qPrintable(play.err));
    }

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_runtime;
};

QTEST_GUILESS_MAIN(TestScenarioProgram)

#include "test_scenarioprogram.moc"
