// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenariowords.h"
#include "statement.h"

#include <QVector>

/// Reads one statement from the words of its line.
class StatementReader
{
public:
    /// @p words outlives the reader.
    explicit StatementReader(const QVector<ScenarioWord>& words);

    /// Fills in what the statement says. Returns what is wrong, or nothing.
    QString read(Statement& statement);

private:
    using Reader = void (StatementReader::*)(Statement&);
    struct Verb
    {
        const char* word;
        Reader reader;
    };
    static const Verb sm_verbs[];
    static const Verb sm_expectations[];
    static const Verb sm_absences[];

    void dispatch(const Verb* verbs, const QString& wanted, Statement& statement);

    void readStep(Statement& statement);
    void readLanguage(Statement& statement);
    void readTouch(Statement& statement);
    void readHold(Statement& statement);
    void readDrag(Statement& statement);
    void readTurn(Statement& statement);
    void readKey(Statement& statement);
    void readType(Statement& statement);
    void readNumber(Statement& statement);
    void readExpect(Statement& statement);
    void readPicture(Statement& statement);
    void readPause(Statement& statement);
    void readPlot(Statement& statement);
    void readSave(Statement& statement);

    void readExpectNo(Statement& statement);
    void readExpectText(Statement& statement);
    void readExpectNoText(Statement& statement);
    template<Statement::State state>
    void readExpectState(Statement& statement);
    void readExpectPicture(Statement& statement);
    void readExpectCommand(Statement& statement);
    void readExpectNoCommand(Statement& statement);
    void readExpectFile(Statement& statement);
    void readExpectNoFile(Statement& statement);

    ScreenTarget readTarget();
    bool readRelation(ScreenTarget& target);
    void readRelations(ScreenTarget& target);
    void readLimit(Statement& statement);
    bool readSeconds(double& seconds);

    bool atEnd() const { return m_at >= m_words.size(); }
    bool nextIsText() const { return !atEnd() && m_words.at(m_at).isText; }
    QString takeBare(const QString& wanted);
    bool nextIs(const char* word) const;
    bool takeWord(const char* word);
    ScenarioText takeText(const QString& wanted);
    QString takeFileName();
    QString takePictureName();
    void fail(const QString& error);

    const QVector<ScenarioWord>& m_words;
    int m_at = 0;
    QString m_error;
};
