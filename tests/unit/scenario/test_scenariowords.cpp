// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariowords.h"

#include <QtTest>

class TestScenarioWords : public QObject
{
    Q_OBJECT

private:
    // Bare words as they stand, texts as their first piece in quotation marks.
    static QStringList told(const QString& line)
    {
        QVector<ScenarioWord> words;
        const QString error = splitScenarioLine(line, words);
        if (!error.isEmpty())
            return {"error"};
        QStringList list;
        for (const ScenarioWord& word : words) {
            const bool empty = word.text.pieces.isEmpty();
            list.append(word.isText
                            ? '"' + (empty ? QString() : word.text.pieces.first().text) + '"'
                            : word.bare);
        }
        return list;
    }

private Q_SLOTS:
    void splits_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("empty") << "" << QStringList();
        QTest::newRow("blanks") << " \t " << QStringList();
        QTest::newRow("comment") << "  # touch" << QStringList();
        QTest::newRow("words") << " turn  3" << QStringList{"turn", "3"};
        QTest::newRow("text") << "touch \"two words\"" << QStringList{"touch", "\"two words\""};
        QTest::newRow("identifier") << "touch {RUN}" << QStringList{"touch", "\"RUN\""};
        QTest::newRow("comment behind") << "turn 3 # up" << QStringList{"turn", "3"};
        QTest::newRow("number sign in a text") << "step \"#1\"" << QStringList{"step", "\"#1\""};
        QTest::newRow("quotation mark") << "step \"a \\\"b\"" << QStringList{"step", "\"a \"b\""};
        QTest::newRow("carriage return") << "turn 3\r" << QStringList{"turn", "3"};
        QTest::newRow("no end") << "step \"a" << QStringList{"error"};
        QTest::newRow("no end, backslash") << "step \"a\\" << QStringList{"error"};
        QTest::newRow("no closing brace") << "touch {RUN" << QStringList{"error"};
    }

    void splits()
    {
        QFETCH(QString, line);
        QTEST(told(line), "words");
    }
};

QTEST_GUILESS_MAIN(TestScenarioWords)

#include "test_scenariowords.moc"
