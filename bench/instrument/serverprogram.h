// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QTextStream;

/// Exit codes of kvx-instrument.
enum ServerExit {
    ServerDone = 0,
    TranscriptsDiffer = 1,
    ServerUsage = 2, ///< wrong options, or a file or folder that cannot be used
    ServerNoPort = 4
};

/// Runs the program with its command line, program name first, and returns its exit code. Serving
/// lasts until the application's event loop is quit, or the process is asked to end.
int runServerProgram(const QStringList& arguments, QTextStream& out, QTextStream& err);
