// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "tool.h"
#include "wholefile.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include <cstdio>
#include <memory>

#include <unistd.h>

namespace {

const QVector<Command>& allCommands()
{
    static const QVector<Command> commands = {
        {"render", "make waveform files of setups", runRender},
        {"info", "print what a waveform file holds", runInfo},
        {"check", "find what is wrong or odd in files", runCheck},
        {"timing", "tell what the waveform's points make of a setup's times", runTiming},
        {"diff", "compare two waveform files or setups", runDiff},
        {"sweep", "make the series of setups of a double-pulse test", runSweep},
        {"plot", "draw volts against seconds", runPlot},
        {"csv", "print time and volts", runCsv},
        {"commands", "print what Run or Stop sends to the instrument", runCommands},
        {"play", "play a setup on the instrument", runPlay},
        {"stop", "stop the instrument's output", runStop},
        {"identify", "ask the instrument what it is", runIdentify},
    };
    return commands;
}

// Pictures need fonts and painting, everything else starts faster without them. No window is ever
// opened, so no display is needed.
bool mayPaint(const QString& command)
{
    return command == QLatin1String("plot") || command == QLatin1String("play");
}

// The toolkit gets the program's name alone: options that it knows too are the commands' own.
std::unique_ptr<QCoreApplication> makeApplication(const QString& command, int& argc, char** argv)
{
    argc = 1;
    if (!mayPaint(command))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

int runWithStreams(const QStringList& arguments)
{
    QFile in;
    QFile out;
    QFile err;
    in.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered);
    out.open(stdout, QIODevice::WriteOnly);
    err.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    Streams streams = {&in, &out, &err, isatty(STDERR_FILENO) != 0};

    const int exitCode = runTool(allCommands(), arguments, streams);
    if (out.flush() && std::fflush(stdout) == 0)
        return exitCode;
    printError(streams, QStringLiteral("standard output: ") + out.errorString());
    return ExitOutput;
}

} // namespace

int main(int argc, char** argv)
{
    removeUnfinishedOnSignals();
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // The library logs every step for the host's log; a shell tool speaks for itself.
    QLoggingCategory::setFilterRules(QStringLiteral("default=false"));
    const auto application = makeApplication(arguments.value(0), argc, argv);
    return runWithStreams(arguments);
}
