// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commandlog.h"
#include "desk.h"
#include "identifiertexts.h"
#include "scenarioparser.h"

#include <QStringList>

#include <functional>

class QTextStream;

/// Where a scenario finds and leaves its files.
struct ScenarioFolders
{
    QString translations; ///< catalogues
    QString userData;     ///< what the programs call the user-data folder
    QString output;       ///< where pictures and copies go
    QString pictures;     ///< approved pictures
    bool approve = false; ///< take what the screen shows for approved
};

/// Plays scenarios at a desk. Every statement that looks for something tries again until its time
/// is over. Keys wait until the screen is not busy, for it would drop them; touches do not, for
/// what keeps it busy may be a question.
class ScenarioPlayer
{
public:
    /// All outlive the player. @p out gets the texts of the steps.
    ScenarioPlayer(Desk& desk, CommandLog& commands, const ScenarioFolders& folders,
                   QTextStream& out);

    /// Begins to read identifiers in a language, the screen's own if it is empty. Returns what is
    /// wrong, or nothing.
    QString begin(const QString& language);

    /// Plays it. Returns nothing, or a report: the statement that failed, what was expected, what
    /// the screen showed. A picture of that moment is left as failure.png.
    QString play(const Scenario& scenario);

private:
    using Attempt = std::function<QString()>;

    QString perform(const Statement& statement);
    QString performAction(const Statement& statement);
    QString performExpectation(const Statement& statement);

    QString tell(const Statement& statement);
    QString waitForLanguage(const Statement& statement);
    QString touchTarget(const Statement& statement);
    QString holdTarget(const Statement& statement);
    QString drag(const Statement& statement);
    QString turn(const Statement& statement);
    QString strike(const QStringList& keys);
    QString type(const Statement& statement);
    QString savePicture(const Statement& statement);
    QString pause(const Statement& statement);
    QString savePlot(const Statement& statement);
    QString saveFile(const Statement& statement);

    QString expectText(const Statement& statement);
    QString expectNoText(const Statement& statement);
    QString expectState(const Statement& statement);
    QString expectPicture(const Statement& statement);
    QString expectCommand(const Statement& statement);
    QString expectNoCommand(const Statement& statement);
    QString expectFile(const Statement& statement, bool wanted);

    QString locate(const ScreenTarget& target, double seconds, QPoint& place);
    QString lookFor(const ScreenTarget& target, QPoint& place);
    QString waitUntilIdle();
    QString repeat(double seconds, const Attempt& attempt);
    QString look(Keypad::ScreenDescription& screen);
    QString settled();
    QString writePicture(const QImage& picture, const QString& name);
    QString report(const Scenario& scenario, const Statement& statement, const QString& failure);

    Desk& m_desk;
    CommandLog& m_commands;
    const ScenarioFolders& m_folders;
    QTextStream& m_out;
    IdentifierTexts m_texts;
    QString m_strStep;
};
