// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statementreader.h"

#include "scenariokeys.h"

#include <QRegularExpression>

const StatementReader::Verb StatementReader::sm_verbs[] = {
    {"step", &StatementReader::readStep},
    {"language", &StatementReader::readLanguage},
    {"touch", &StatementReader::readTouch},
    {"hold", &StatementReader::readHold},
    {"drag", &StatementReader::readDrag},
    {"turn", &StatementReader::readTurn},
    {"key", &StatementReader::readKey},
    {"type", &StatementReader::readType},
    {"number", &StatementReader::readNumber},
    {"expect", &StatementReader::readExpect},
    {"pause", &StatementReader::readPause},
    {"picture", &StatementReader::readPicture},
    {"plot", &StatementReader::readPlot},
    {"save", &StatementReader::readSave},
    {nullptr, nullptr}};

StatementReader::StatementReader(const QVector<ScenarioWord>& words)
    : m_words(words)
{}

QString StatementReader::read(Statement& statement)
{
    dispatch(sm_verbs, QStringLiteral("a statement"), statement);
    if (m_error.isEmpty() && !atEnd())
        fail(QStringLiteral("more than this statement takes"));
    return m_error;
}

void StatementReader::dispatch(const Verb* verbs, const QString& wanted, Statement& statement)
{
    const QString word = takeBare(wanted);
    for (const Verb* verb = verbs; verb->word != nullptr; ++verb) {
        if (word == QLatin1String(verb->word)) {
            (this->*verb->reader)(statement);
            return;
        }
    }
    fail(QStringLiteral("\"%1\" is not %2").arg(word, wanted));
}

void StatementReader::readStep(Statement& statement)
{
    statement.kind = Statement::Step;
    statement.text = takeText(QStringLiteral("a text"));
}

void StatementReader::readLanguage(Statement& statement)
{
    statement.kind = Statement::Language;
    statement.name = takeBare(QStringLiteral("a language"));
    readLimit(statement);
}

void StatementReader::readTouch(Statement& statement)
{
    statement.kind = Statement::Touch;
    statement.target = readTarget();
    readLimit(statement);
}

void StatementReader::readHold(Statement& statement)
{
    statement.kind = Statement::Hold;
    statement.target = readTarget();
    statement.seconds = 1;
    if (takeWord("for") && !readSeconds(statement.seconds))
        fail(QStringLiteral("\"for\" wants a time such as 2 s"));
}

void StatementReader::readDrag(Statement& statement)
{
    statement.kind = Statement::Drag;
    statement.target = readTarget();
    if (!takeWord("to"))
        fail(QStringLiteral("\"drag\" wants \"to\" and another place"));
    statement.destination = readTarget();
    readLimit(statement);
}

void StatementReader::readTurn(Statement& statement)
{
    statement.kind = Statement::Turn;
    bool whole = false;
    statement.count = takeBare(QStringLiteral("a number of detents")).toInt(&whole);
    if (!whole || statement.count == 0 || qAbs(statement.count) > MostDetents)
        fail(QStringLiteral("a turn is a whole number of detents, 1 to %1 either way")
                 .arg(MostDetents));
}

void StatementReader::readKey(Statement& statement)
{
    statement.kind = Statement::Key;
    statement.name = takeBare(QStringLiteral("the name of a key"));
    if (!isFrontKeyName(statement.name))
        fail(QStringLiteral("the front panel has no key \"%1\"; it has %2")
                 .arg(statement.name, frontKeyNames().join(QStringLiteral(", "))));
    if (atEnd())
        return;
    bool whole = false;
    statement.count = takeBare(QStringLiteral("a number of times")).toInt(&whole);
    if (!whole || statement.count < 1 || statement.count > MostDetents || !takeWord("times"))
        fail(QStringLiteral("a key is pressed 1 to %1 times, such as 3 times").arg(MostDetents));
}

void StatementReader::readType(Statement& statement)
{
    statement.kind = Statement::Type;
    statement.text = takeText(QStringLiteral("a text"));
}

void StatementReader::readNumber(Statement& statement)
{
    statement.kind = Statement::Number;
    const QString number = takeBare(QStringLiteral("a number"));
    const QString unit = atEnd() ? QString() : takeBare(QStringLiteral("a prefix"));
    statement.keys = keysOfNumber(number, unit);
    if (statement.keys.isEmpty())
        fail(QStringLiteral("a number is digits with at most one point, then G, M, k, x1, m, u, n "
                            "or nothing"));
}

void StatementReader::readPicture(Statement& statement)
{
    statement.kind = Statement::Picture;
    statement.name = takePictureName();
}

void StatementReader::readPause(Statement& statement)
{
    statement.kind = Statement::Pause;
    if (!readSeconds(statement.seconds))
        fail(QStringLiteral("\"pause\" wants a time such as 2 s"));
}

void StatementReader::readPlot(Statement& statement)
{
    statement.kind = Statement::Plot;
    statement.name = takePictureName();
    readLimit(statement);
}

void StatementReader::readSave(Statement& statement)
{
    statement.kind = Statement::Save;
    statement.name = takeFileName();
    statement.destinationName = statement.name.section(QLatin1Char('/'), -1);
    if (takeWord("as"))
        statement.destinationName = takeFileName();
    readLimit(statement);
}

// A place, a text, a text beside others, or just what is beside others.
ScreenTarget StatementReader::readTarget()
{
    static const QRegularExpression placeForm(QStringLiteral("^(\\d{1,4}),(\\d{1,4})$"));
    ScreenTarget target;
    const auto place = atEnd() ? QRegularExpressionMatch() : placeForm.match(m_words.at(m_at).bare);
    if (place.hasMatch()) {
        ++m_at;
        target.isPlace = true;
        target.place = {place.captured(1).toInt(), place.captured(2).toInt()};
        return target;
    }
    target.hasText = nextIsText();
    if (target.hasText)
        target.text = takeText({});
    readRelations(target);
    if (!target.hasText && target.relations.isEmpty())
        fail(QStringLiteral("a text, an identifier, a place such as 400,240 or a relation such as "
                            "right of \"Load\" is wanted"));
    return target;
}

void StatementReader::readRelations(ScreenTarget& target)
{
    if (!readRelation(target))
        return;
    while (m_error.isEmpty() && takeWord("and")) {
        if (!readRelation(target))
            fail(QStringLiteral("\"and\" wants another relation"));
    }
}

bool StatementReader::readRelation(ScreenTarget& target)
{
    ScreenRelation relation;
    if (takeWord("right"))
        relation.side = ScreenRelation::RightOf;
    else if (takeWord("left"))
        relation.side = ScreenRelation::LeftOf;
    else if (takeWord("below"))
        relation.side = ScreenRelation::Below;
    else if (takeWord("above"))
        relation.side = ScreenRelation::Above;
    else
        return false;
    const bool isSideways =
        relation.side == ScreenRelation::RightOf || relation.side == ScreenRelation::LeftOf;
    if (isSideways && !takeWord("of"))
        fail(QStringLiteral("\"right\" and \"left\" want \"of\""));
    relation.landmark = takeText(QStringLiteral("a text to look from"));
    target.relations.append(relation);
    return true;
}

void StatementReader::readLimit(Statement& statement)
{
    if (takeWord("within") && !readSeconds(statement.seconds))
        fail(QStringLiteral("\"within\" wants a time such as 5 s"));
}

bool StatementReader::readSeconds(double& seconds)
{
    bool number = false;
    seconds = takeBare(QStringLiteral("a number of seconds")).toDouble(&number);
    return number && seconds > 0 && seconds <= 600 && takeWord("s");
}

QString StatementReader::takeBare(const QString& wanted)
{
    if (atEnd() || m_words.at(m_at).isText) {
        fail(QStringLiteral("%1 is wanted").arg(wanted));
        return {};
    }
    return m_words.at(m_at++).bare;
}

bool StatementReader::nextIs(const char* word) const
{
    return !atEnd() && !nextIsText() && m_words.at(m_at).bare == QLatin1String(word);
}

bool StatementReader::takeWord(const char* word)
{
    const bool found = nextIs(word);
    m_at += found ? 1 : 0;
    return found;
}

ScenarioText StatementReader::takeText(const QString& wanted)
{
    if (!nextIsText()) {
        fail(QStringLiteral("%1 is wanted, in quotation marks").arg(wanted));
        return {};
    }
    const ScenarioText& text = m_words.at(m_at++).text;
    if (text.pieces.isEmpty())
        fail(QStringLiteral("the text is empty"));
    return text;
}

QString StatementReader::takeFileName()
{
    QString name;
    if (nextIsText()) {
        for (const ScenarioText::Piece& piece : takeText({}).pieces)
            name += piece.text;
    } else {
        name = takeBare(QStringLiteral("the name of a file"));
    }
    const QStringList parts = name.split(QLatin1Char('/'));
    if (parts.contains(QString()) || parts.contains(QStringLiteral("..")))
        fail(QStringLiteral("\"%1\" does not name a file inside the folder").arg(name));
    return name;
}

QString StatementReader::takePictureName()
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9_-]*$"));
    QString name = takeBare(QStringLiteral("the name of a picture"));
    if (!form.match(name).hasMatch())
        fail(QStringLiteral("a picture's name is letters, digits, - and _"));
    return name;
}

void StatementReader::fail(const QString& error)
{
    if (m_error.isEmpty())
        m_error = error;
}
