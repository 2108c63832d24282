// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenarioplayer.h"

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct ScenarioOptions
{
    enum Task {
        Play,  ///< play the files
        Check, ///< read them alone
        Tell,  ///< nothing but text
        Refuse ///< nothing, the command line being wrong
    };

    Task task = Play;
    QString text;      ///< what to tell, or why the command line is refused
    QStringList files; ///< "-" is the standard input
    quint16 screenPort = 5900;
    quint16 instrumentPort = 30000;
    QString keypad;     ///< path of the keypad's socket
    QString transcript; ///< the instrument's; empty for none
    QString language;   ///< empty for the screen's own
    ScenarioFolders folders;
};

/// Reads the command line, the program's name first.
ScenarioOptions parseScenarioOptions(const QStringList& arguments);
