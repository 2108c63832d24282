// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioplayer.h"

#include "pictureapproval.h"
#include "targetfinder.h"

#include <QDir>
#include <QFile>

namespace {

QString stateWord(Statement::State state)
{
    switch (state) {
    case Statement::Enabled:
        return QStringLiteral("enabled");
    case Statement::Disabled:
        return QStringLiteral("disabled");
    case Statement::Focused:
        return QStringLiteral("focused");
    case Statement::Checked:
        return QStringLiteral("checked");
    default:
        return QStringLiteral("unchecked");
    }
}

bool isInState(const Keypad::ScreenItem& item, Statement::State state)
{
    switch (state) {
    case Statement::Enabled:
        return item.enabled;
    case Statement::Disabled:
        return !item.enabled;
    case Statement::Focused:
        return item.focus;
    case Statement::Checked:
        return item.checked;
    default:
        return !item.checked;
    }
}

// The host asks for the state of the channels all the time.
QString lastOf(const QStringList& commands)
{
    const int most = 20;
    return commands.mid(qMax(0, commands.size() - most)).join(QStringLiteral(" | "));
}

} // namespace

QString ScenarioPlayer::performExpectation(const Statement& statement)
{
    switch (statement.kind) {
    case Statement::ExpectText:
        return expectText(statement);
    case Statement::ExpectNoText:
        return expectNoText(statement);
    case Statement::ExpectState:
        return expectState(statement);
    case Statement::ExpectPicture:
        return expectPicture(statement);
    case Statement::ExpectCommand:
        return expectCommand(statement);
    case Statement::ExpectNoCommand:
        return expectNoCommand(statement);
    case Statement::ExpectFile:
        return expectFile(statement, true);
    default:
        return expectFile(statement, false);
    }
}

QString ScenarioPlayer::expectText(const Statement& statement)
{
    return repeat(statement.seconds, [&] {
        Keypad::ScreenDescription screen;
        QString trouble = look(screen);
        if (!trouble.isEmpty() || !findTarget(statement.target, screen, m_texts).isEmpty())
            return trouble;
        return QStringLiteral("%1 is not on the screen")
            .arg(shownTarget(statement.target, m_texts));
    });
}

QString ScenarioPlayer::expectNoText(const Statement& statement)
{
    return repeat(statement.seconds, [&] {
        Keypad::ScreenDescription screen;
        QString trouble = look(screen);
        if (!trouble.isEmpty() || findTarget(statement.target, screen, m_texts).isEmpty())
            return trouble;
        return QStringLiteral("%1 is on the screen").arg(shownTarget(statement.target, m_texts));
    });
}

QString ScenarioPlayer::expectState(const Statement& statement)
{
    return repeat(statement.seconds, [&] {
        Keypad::ScreenDescription screen;
        QString trouble = look(screen);
        if (!trouble.isEmpty())
            return trouble;
        const QVector<Keypad::ScreenItem> found = findTarget(statement.target, screen, m_texts);
        const QString name = shownTarget(statement.target, m_texts);
        if (found.isEmpty())
            return QStringLiteral("%1 is not on the screen").arg(name);
        if (!isInState(found.first(), statement.state))
            return QStringLiteral("%1 is not %2").arg(name, stateWord(statement.state));
        return QString();
    });
}

QString ScenarioPlayer::expectPicture(const Statement& statement)
{
    QString failure = waitUntilIdle();
    if (failure.isEmpty())
        failure = settled();
    if (!failure.isEmpty())
        return failure;
    PictureApproval approval(m_folders.pictures, statement.name, m_texts.language());
    QImage seen;
    const auto see = [&] {
        QImage screen;
        if (!m_desk.picture(screen))
            return m_desk.trouble();
        seen = statement.area.isEmpty() ? screen : screen.copy(statement.area);
        return m_folders.approve ? approval.approve(seen) : approval.compare(seen);
    };
    failure = repeat(statement.seconds, see);
    if (!failure.isEmpty() && !seen.isNull()) {
        writePicture(seen, statement.name + QStringLiteral("-seen"));
        if (!approval.difference().isNull())
            writePicture(approval.difference(), statement.name + QStringLiteral("-difference"));
    }
    return failure;
}

QString ScenarioPlayer::expectCommand(const Statement& statement)
{
    return repeat(statement.seconds, [&] {
        if (m_commands.find(statement.text, m_texts))
            return QString();
        return QStringLiteral("\"%1\" was not sent; what was sent: %2")
            .arg(statement.text.shown(m_texts), lastOf(m_commands.remaining()));
    });
}

QString ScenarioPlayer::expectNoCommand(const Statement& statement)
{
    QString failure = waitUntilIdle();
    if (!failure.isEmpty())
        return failure;
    return m_commands.contains(statement.text, m_texts)
               ? QStringLiteral("\"%1\" was sent").arg(statement.text.shown(m_texts))
               : QString();
}

QString ScenarioPlayer::expectFile(const Statement& statement, bool wanted)
{
    const QString path = QDir(m_folders.userData).filePath(statement.name);
    return repeat(statement.seconds, [&] {
        if (QFile::exists(path) == wanted)
            return QString();
        return wanted ? QStringLiteral("there is no %1").arg(path)
                      : QStringLiteral("there is %1").arg(path);
    });
}
