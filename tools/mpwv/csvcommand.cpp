// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"
#include "commandline.h"
#include "input.h"
#include "waveformsource.h"

int runCsv(const QStringList& arguments, Streams& streams)
{
    CommandLine line(QStringLiteral("csv"),
                     QStringLiteral("Prints time and volts of every point, separated by a comma: "
                                    "what leaves the generator, at the load."));
    addSourceOptions(line);
    line.addOption({QStringLiteral("o"), QStringLiteral("output")},
                   QStringLiteral("Write to this file instead of the standard output."),
                   QStringLiteral("FILE"));
    if (const std::optional<int> ended = line.parse(arguments, streams, 1, 1))
        return *ended;
    const bool toFile = line.isSet(QStringLiteral("output"));
    const QString path = toFile ? line.value(QStringLiteral("output")) : QStringLiteral("-");
    const QString overwritten = overwriteReason(line.arguments().constFirst(), path);
    if (!overwritten.isEmpty())
        return line.usageError(overwritten, streams);

    WaveformSource source;
    if (const std::optional<int> ended = readSource(line, streams, source))
        return *ended;

    const QString reason = writeOutput(path, csvOf(source.waveform), streams);
    if (reason.isEmpty())
        return ExitOk;
    printError(streams, reason);
    return ExitOutput;
}
