// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statementreader.h"

#include <QRegularExpression>

const StatementReader::Verb StatementReader::sm_expectations[] = {
    {"text", &StatementReader::readExpectText},
    {"enabled", &StatementReader::readExpectState<Statement::Enabled>},
    {"disabled", &StatementReader::readExpectState<Statement::Disabled>},
    {"focused", &StatementReader::readExpectState<Statement::Focused>},
    {"checked", &StatementReader::readExpectState<Statement::Checked>},
    {"unchecked", &StatementReader::readExpectState<Statement::Unchecked>},
    {"picture", &StatementReader::readExpectPicture},
    {"command", &StatementReader::readExpectCommand},
    {"file", &StatementReader::readExpectFile},
    {"no", &StatementReader::readExpectNo},
    {nullptr, nullptr}};

const StatementReader::Verb StatementReader::sm_absences[] = {
    {"text", &StatementReader::readExpectNoText},
    {"command", &StatementReader::readExpectNoCommand},
    {"file", &StatementReader::readExpectNoFile},
    {nullptr, nullptr}};

void StatementReader::readExpect(Statement& statement)
{
    dispatch(sm_expectations, QStringLiteral("something to expect"), statement);
    if (statement.kind != Statement::ExpectNoCommand)
        readLimit(statement);
}

void StatementReader::readExpectNo(Statement& statement)
{
    dispatch(sm_absences, QStringLiteral("something to be absent"), statement);
}

void StatementReader::readExpectText(Statement& statement)
{
    statement.kind = Statement::ExpectText;
    statement.target = readTarget();
    if (!statement.target.hasText)
        fail(QStringLiteral("a text is wanted, in quotation marks"));
}

void StatementReader::readExpectNoText(Statement& statement)
{
    readExpectText(statement);
    statement.kind = Statement::ExpectNoText;
}

template<Statement::State state>
void StatementReader::readExpectState(Statement& statement)
{
    statement.kind = Statement::ExpectState;
    statement.state = state;
    statement.target = readTarget();
    if (statement.target.isPlace)
        fail(QStringLiteral("a text or a relation is wanted, not a place"));
}

void StatementReader::readExpectPicture(Statement& statement)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+),(\\d+),(\\d+)x(\\d+)$"));
    statement.kind = Statement::ExpectPicture;
    statement.name = takePictureName();
    if (atEnd() || nextIs("within"))
        return;
    const auto area = form.match(takeBare(QStringLiteral("a part of the screen")));
    statement.area = {area.captured(1).toInt(), area.captured(2).toInt(), area.captured(3).toInt(),
                      area.captured(4).toInt()};
    if (!area.hasMatch() || statement.area.isEmpty())
        fail(QStringLiteral("a part of the screen is X,Y,WIDTHxHEIGHT"));
}

void StatementReader::readExpectCommand(Statement& statement)
{
    statement.kind = Statement::ExpectCommand;
    statement.text = takeText(QStringLiteral("a command"));
}

void StatementReader::readExpectNoCommand(Statement& statement)
{
    readExpectCommand(statement);
    statement.kind = Statement::ExpectNoCommand;
}

void StatementReader::readExpectFile(Statement& statement)
{
    statement.kind = Statement::ExpectFile;
    statement.name = takeFileName();
}

void StatementReader::readExpectNoFile(Statement& statement)
{
    readExpectFile(statement);
    statement.kind = Statement::ExpectNoFile;
}
