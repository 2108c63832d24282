// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioplayer.h"

#include "scenarioreport.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

namespace {

const int MillisecondsBetweenLooks = 20;
const double SecondsUntilIdle = 60;

} // namespace

ScenarioPlayer::ScenarioPlayer(Desk& desk, CommandLog& commands, const ScenarioFolders& folders,
                               QTextStream& out)
    : m_desk(desk)
    , m_commands(commands)
    , m_folders(folders)
    , m_out(out)
{}

QString ScenarioPlayer::begin(const QString& language)
{
    Keypad::ScreenDescription screen;
    QString failure = look(screen);
    if (!failure.isEmpty())
        return failure;
    return m_texts.load(m_folders.translations, language.isEmpty() ? screen.language : language);
}

QString ScenarioPlayer::play(const Scenario& scenario)
{
    m_strStep.clear();
    for (const Statement& statement : scenario.statements) {
        const QString failure = perform(statement);
        if (!failure.isEmpty())
            return report(scenario, statement, failure);
    }
    return {};
}

QString ScenarioPlayer::perform(const Statement& statement)
{
    return statement.kind < Statement::ExpectText || statement.kind > Statement::ExpectNoFile
               ? performAction(statement)
               : performExpectation(statement);
}

QString ScenarioPlayer::repeat(double seconds, const Attempt& attempt)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        QString failure = attempt();
        if (failure.isEmpty() || !m_desk.trouble().isEmpty() || clock.elapsed() > seconds * 1000)
            return failure;
        m_desk.wait(MillisecondsBetweenLooks);
    }
}

QString ScenarioPlayer::look(Keypad::ScreenDescription& screen)
{
    return m_desk.describe(screen) ? QString() : m_desk.trouble();
}

QString ScenarioPlayer::settled()
{
    return m_desk.settle() ? QString() : m_desk.trouble();
}

QString ScenarioPlayer::waitUntilIdle()
{
    return repeat(SecondsUntilIdle, [this] {
        Keypad::ScreenDescription screen;
        const QString failure = look(screen);
        return failure.isEmpty() && screen.busy ? QStringLiteral("the screen stays busy") : failure;
    });
}

QString ScenarioPlayer::writePicture(const QImage& picture, const QString& name)
{
    const QString path = QDir(m_folders.output).filePath(QStringLiteral("%1.png").arg(name));
    return picture.save(path) ? QString() : QStringLiteral("cannot write %1").arg(path);
}

QString ScenarioPlayer::report(const Scenario& scenario, const Statement& statement,
                               const QString& failure)
{
    ScenarioFailure told;
    told.place = QStringLiteral("%1:%2").arg(scenario.fileName).arg(statement.line);
    told.statement = statement.source;
    told.step = m_strStep;
    told.reason = failure;
    Keypad::ScreenDescription screen;
    QImage picture;
    const QString name = QStringLiteral("failure");
    told.hasScreen = m_desk.describe(screen);
    told.screen = screen;
    if (m_desk.picture(picture) && writePicture(picture, name).isEmpty())
        told.picture = QDir(m_folders.output).filePath(name + QStringLiteral(".png"));
    return failureText(told);
}
