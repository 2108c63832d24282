// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioparser.h"

#include "scenariowords.h"
#include "statementreader.h"

#include <QTextCodec>

namespace {

QString readLine(const QString& line, Statement& statement)
{
    QVector<ScenarioWord> words;
    QString error = splitScenarioLine(line, words);
    if (!error.isEmpty() || words.isEmpty())
        return error;
    statement.source = line.trimmed();
    return StatementReader(words).read(statement);
}

bool decode(const QByteArray& text, QString& decoded)
{
    QTextCodec::ConverterState state;
    decoded = QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

QStringList parseScenario(const QByteArray& text, Scenario& scenario)
{
    QString decoded;
    if (!decode(text, decoded))
        return {QStringLiteral("%1: the file is not UTF-8").arg(scenario.fileName)};
    QStringList mistakes;
    const QStringList lines = decoded.split(QLatin1Char('\n'));
    for (int index = 0; index < lines.size(); ++index) {
        Statement statement;
        statement.line = index + 1;
        const QString error = readLine(lines.at(index), statement);
        if (!error.isEmpty())
            mistakes.append(
                QStringLiteral("%1:%2: %3").arg(scenario.fileName).arg(index + 1).arg(error));
        else if (!statement.source.isEmpty())
            scenario.statements.append(statement);
    }
    return mistakes;
}
