// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "runsequence.h"

namespace {

QVector<QByteArray> stopSequence()
{
    return RunSequence::stopCommandsBeforeDelete() + RunSequence::stopCommandsAfterDelete();
}

// Two blanks, and one before the line's end, belong to a command and must be seen.
QByteArray visible(const QByteArray& command)
{
    QString text = QString::fromUtf8(command);
    text.replace(QLatin1Char(' '), QChar(0x2423));
    text.replace(QLatin1Char('\n'), QChar(0x23CE));
    return text.toUtf8() + '\n';
}

class CommandsLine : public CommandLine
{
public:
    CommandsLine()
        : CommandLine(QStringLiteral("commands"),
                      QStringLiteral(
                          "Prints what Run sends to the instrument for a setup, the closing query "
                          "included: one command a line, blanks shown as \u2423 and line feeds as "
                          "\u23CE."))
    {
        addArgument(QStringLiteral("SETUP"),
                    QStringLiteral("Setup file, - for standard input; none with --stop."),
                    QStringLiteral("[SETUP]"));
        addOption({QStringLiteral("stop")}, QStringLiteral("What Stop sends instead."));
        addOption({QStringLiteral("raw")}, QStringLiteral("The bytes as they are sent."));
        addLoadOption();
    }
};

QString sequenceOf(const CommandLine& line, Streams& streams, QVector<QByteArray>& sequence)
{
    QJsonObject document;
    const bool isStop = line.isSet(QStringLiteral("stop"));
    if (!isStop) {
        QString reason = readSetup(line.arguments().constFirst(), streams, document);
        if (!reason.isEmpty())
            return reason;
    }
    sequence = isStop ? stopSequence() : RunSequence::runCommands(trainOf(document, line.load()));
    sequence.append(RunSequence::ClosingQuery);
    return QString();
}

} // namespace

int runCommands(const QStringList& arguments, Streams& streams)
{
    CommandsLine line;
    if (const auto ended = line.parse(arguments, streams, 0, 1))
        return *ended;
    if (line.arguments().isEmpty() && !line.isSet(QStringLiteral("stop")))
        return line.usageError(QStringLiteral("too few arguments"), streams);
    if (line.isSet(QStringLiteral("stop")) && (!line.arguments().isEmpty() || line.load()))
        return line.usageError(QStringLiteral("--stop is the same for every setup and load: give "
                                              "neither of them"),
                               streams);

    QVector<QByteArray> sequence;
    const QString reason = sequenceOf(line, streams, sequence);
    if (!reason.isEmpty()) {
        printError(streams, reason);
        return ExitInput;
    }
    const bool raw = line.isSet(QStringLiteral("raw"));
    for (const QByteArray& command : sequence)
        streams.out->write(raw ? command : visible(command));
    return ExitOk;
}
