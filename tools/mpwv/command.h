// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QIODevice;

/// What a command reads and writes. Nothing else of the process is touched, so that tests hold the
/// exact output, error text and exit code of a command.
struct Streams
{
    QIODevice* in;
    QIODevice* out;
    QIODevice* err;
    bool errIsTerminal; ///< progress bars are drawn there only
};

/// Exit codes of every command.
enum ExitCode {
    ExitOk = 0,
    ExitFound = 1,      ///< check found something, diff found a difference
    ExitUsage = 2,      ///< the command line is wrong
    ExitInput = 3,      ///< an input cannot be read or is refused
    ExitOutput = 4,     ///< an output cannot be written
    ExitInstrument = 5, ///< the instrument does not answer as it should
};

/// One command of the tool. @p arguments are those behind the command's name; the result is an
/// ExitCode.
struct Command
{
    const char* name;
    const char* summary; ///< one line for the list of commands
    int (*run)(const QStringList& arguments, Streams& streams);
};

int runRender(const QStringList& arguments, Streams& streams);
int runInfo(const QStringList& arguments, Streams& streams);
int runCheck(const QStringList& arguments, Streams& streams);
int runTiming(const QStringList& arguments, Streams& streams);
int runDiff(const QStringList& arguments, Streams& streams);
int runSweep(const QStringList& arguments, Streams& streams);
int runPlot(const QStringList& arguments, Streams& streams);
int runCsv(const QStringList& arguments, Streams& streams);
int runCommands(const QStringList& arguments, Streams& streams);
int runPlay(const QStringList& arguments, Streams& streams);
int runStop(const QStringList& arguments, Streams& streams);
int runIdentify(const QStringList& arguments, Streams& streams);
