// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioplayer.h"

#include "scenariokeys.h"
#include "targetfinder.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

QString ScenarioPlayer::performAction(const Statement& statement)
{
    switch (statement.kind) {
    case Statement::Step:
        return tell(statement);
    case Statement::Language:
        return waitForLanguage(statement);
    case Statement::Touch:
        return touchTarget(statement);
    case Statement::Hold:
        return holdTarget(statement);
    case Statement::Drag:
        return drag(statement);
    case Statement::Turn:
        return turn(statement);
    case Statement::Key:
        return strike(QVector<QString>(statement.count, statement.name).toList());
    case Statement::Number:
        return strike(statement.keys);
    case Statement::Type:
        return type(statement);
    case Statement::Picture:
        return savePicture(statement);
    case Statement::Pause:
        return pause(statement);
    case Statement::Plot:
        return savePlot(statement);
    default:
        return saveFile(statement);
    }
}

QString ScenarioPlayer::tell(const Statement& statement)
{
    m_strStep = statement.text.shown(m_texts);
    m_out << m_strStep << '\n' << Qt::flush;
    return {};
}

QString ScenarioPlayer::waitForLanguage(const Statement& statement)
{
    const QString failure = repeat(statement.seconds, [&] {
        Keypad::ScreenDescription screen;
        QString trouble = look(screen);
        if (!trouble.isEmpty() || screen.language == statement.name)
            return trouble;
        return QStringLiteral("the screen speaks \"%1\", not \"%2\"")
            .arg(screen.language, statement.name);
    });
    return failure.isEmpty() ? m_texts.load(m_folders.translations, statement.name) : failure;
}

QString ScenarioPlayer::touchTarget(const Statement& statement)
{
    QPoint place;
    QString failure = locate(statement.target, statement.seconds, place);
    if (!failure.isEmpty())
        return failure;
    m_desk.touch(place);
    m_desk.letGo(place);
    return settled();
}

QString ScenarioPlayer::holdTarget(const Statement& statement)
{
    QPoint place;
    QString failure = locate(statement.target, Statement::DefaultSeconds, place);
    if (!failure.isEmpty())
        return failure;
    m_desk.touch(place);
    m_desk.wait(qRound(statement.seconds * 1000));
    m_desk.letGo(place);
    return settled();
}

// A finger slides: it is seen on its way, too.
QString ScenarioPlayer::drag(const Statement& statement)
{
    QPoint from;
    QPoint to;
    QString failure = locate(statement.target, statement.seconds, from);
    if (failure.isEmpty())
        failure = locate(statement.destination, statement.seconds, to);
    if (!failure.isEmpty())
        return failure;
    const int stops = 8;
    for (int stop = 0; stop <= stops; ++stop) {
        m_desk.touch(from + (to - from) * stop / stops);
        failure = settled();
    }
    m_desk.letGo(to);
    return failure.isEmpty() ? settled() : failure;
}

QString ScenarioPlayer::turn(const Statement& statement)
{
    QString failure = waitUntilIdle();
    if (!failure.isEmpty())
        return failure;
    m_desk.turnKnob(statement.count);
    return settled();
}

QString ScenarioPlayer::strike(const QStringList& keys)
{
    QString failure = waitUntilIdle();
    if (!failure.isEmpty())
        return failure;
    for (const QString& key : keys)
        m_desk.strikeKey(frontKeyCode(key));
    return settled();
}

QString ScenarioPlayer::type(const Statement& statement)
{
    QString failure = waitUntilIdle();
    if (!failure.isEmpty())
        return failure;
    const QVector<uint> characters = statement.text.shown(m_texts).toUcs4();
    for (const uint character : characters)
        m_desk.type(character);
    return settled();
}

QString ScenarioPlayer::savePicture(const Statement& statement)
{
    QString failure = waitUntilIdle();
    if (failure.isEmpty())
        failure = settled();
    QImage picture;
    if (failure.isEmpty() && !m_desk.picture(picture))
        failure = m_desk.trouble();
    return failure.isEmpty() ? writePicture(picture, statement.name) : failure;
}

QString ScenarioPlayer::pause(const Statement& statement)
{
    m_desk.wait(qRound(statement.seconds * 1000));
    return settled();
}

QString ScenarioPlayer::savePlot(const Statement& statement)
{
    const QString path = QDir(m_folders.output).filePath(statement.name + QLatin1String(".svg"));
    return repeat(statement.seconds, [&] { return m_desk.plotOutput(path); });
}

QString ScenarioPlayer::saveFile(const Statement& statement)
{
    const QString from = QDir(m_folders.userData).filePath(statement.name);
    const QString to = QDir(m_folders.output).filePath(statement.destinationName);
    QString failure = repeat(statement.seconds, [&from] {
        return QFile::exists(from) ? QString() : QStringLiteral("there is no %1").arg(from);
    });
    if (!failure.isEmpty())
        return failure;
    QFile::remove(to);
    return QFile::copy(from, to) ? QString() : QStringLiteral("cannot write %1").arg(to);
}

QString ScenarioPlayer::locate(const ScreenTarget& target, double seconds, QPoint& place)
{
    if (!target.isPlace)
        return repeat(seconds, [&] { return lookFor(target, place); });
    place = target.place;
    return {};
}

QString ScenarioPlayer::lookFor(const ScreenTarget& target, QPoint& place)
{
    Keypad::ScreenDescription screen;
    QString trouble = look(screen);
    if (!trouble.isEmpty())
        return trouble;
    const QString name = shownTarget(target, m_texts);
    const QVector<Keypad::ScreenItem> found = findTarget(target, screen, m_texts);
    if (found.isEmpty())
        return QStringLiteral("%1 is not on the screen").arg(name);
    const int count = likelyCount(found);
    if (count > 1 && target.relations.isEmpty())
        return QStringLiteral("%1 is on the screen %2 times: say beside what").arg(name).arg(count);
    if (!found.first().enabled)
        return QStringLiteral("%1 is disabled").arg(name);
    place = found.first().rect.center();
    return {};
}
