// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QIODevice;
class QTextStream;

/// Exit codes of kvx-scenario.
enum ScenarioExit {
    ScenarioPassed = 0,
    ScenarioFailed = 1, ///< something was not as expected
    ScenarioUsage = 2 ///< wrong options or scenarios, a file or folder that cannot be used, no host
};

/// Runs the program with its command line, program name first, and returns its exit code. @p in is
/// read where a scenario is named "-".
int runScenarioProgram(const QStringList& arguments, QIODevice& in, QTextStream& out,
                       QTextStream& err);
