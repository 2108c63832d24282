// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "setupcheck.h"
#include "waveformcheck.h"

#include <algorithm>

namespace {

// A damaged waveform file has findings; what is neither a waveform file nor a setup has a reason.
QString findingsOf(const QString& path, Streams& streams, QVector<Finding>& findings)
{
    QByteArray bytes;
    QString unreadable = readBytes(path, streams, bytes);
    if (!unreadable.isEmpty())
        return unreadable;

    QJsonObject document;
    QString refused = parseSetup(path, bytes, document);
    if (refused.isEmpty())
        findings = checkSetup(document);
    else if (isWaveform(bytes) || path.endsWith(QLatin1String(".mpwv")))
        findings = checkWaveform(bytes);
    else
        return refused;
    return QString();
}

int checkFile(const QString& path, Streams& streams)
{
    QVector<Finding> findings;
    const QString reason = findingsOf(path, streams, findings);
    if (!reason.isEmpty()) {
        printError(streams, reason);
        return ExitInput;
    }
    for (const Finding& finding : findings)
        streams.out->write(findingLine(path, finding).toUtf8() + '\n');
    return findings.isEmpty() ? ExitOk : ExitFound;
}

} // namespace

int runCheck(const QStringList& arguments, Streams& streams)
{
    CommandLine line(
        QStringLiteral("check"),
        QStringLiteral("Looks for everything in waveform files and setups that the editor would "
                       "not have written. One line a finding; exit code 1 if there are any."));
    line.addArgument(QStringLiteral("FILE"),
                     QStringLiteral("Waveform file or setup, - for standard input."),
                     QStringLiteral("FILE..."));
    if (const auto ended = line.parse(arguments, streams, 1, arguments.size()))
        return *ended;

    int exitCode = ExitOk;
    for (const QString& path : line.arguments())
        exitCode = std::max(exitCode, checkFile(path, streams));
    return exitCode;
}
