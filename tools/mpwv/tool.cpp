// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tool.h"

#include "input.h"

#include <QIODevice>

#include <algorithm>
#include <numeric>

namespace {

const int NameWidth = 10;
const int MostSlips = 2;

QByteArray helpText(const QVector<Command>& commands)
{
    QByteArray text = "Usage: mpwv COMMAND [options] ...\n"
                      "Setups of multi-pulse trains and waveform files: make, inspect, check, plot "
                      "and play them.\n\nCommands:\n";
    for (const Command& command : commands)
        text += "  " + QByteArray(command.name).leftJustified(NameWidth) + command.summary + '\n';
    text += "\nOptions:\n"
            "  -h, --help  Print this help; behind a command, the command's, as \"mpwv help\n"
            "              COMMAND\" does.\n"
            "  --version   Print the version.\n\n"
            "Exit codes: 0 done, 1 something found or different, 2 wrong use, 3 input refused,\n"
            "4 output not written, 5 the instrument does not answer as it should.\n";
    return text;
}

// Letters to put in, take away or replace until one name is the other.
int editDistance(const QString& from, const QString& to)
{
    QVector<int> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i + 1;
        for (int j = 0; j < to.size(); ++j) {
            const int replaced = diagonal + (from.at(i) == to.at(j) ? 0 : 1);
            diagonal = row.at(j + 1);
            row[j + 1] = std::min({replaced, row.at(j) + 1, diagonal + 1});
        }
    }
    return row.constLast();
}

// The command that is meant; empty where none is near enough to be a slip of the fingers.
QString nearest(const QVector<Command>& commands, const QString& name)
{
    const auto distance = [&name](const Command& command) {
        return editDistance(name, QLatin1String(command.name));
    };
    const auto best = std::min_element(
        commands.cbegin(), commands.cend(),
        [&distance](const Command& a, const Command& b) { return distance(a) < distance(b); });
    return distance(*best) <= MostSlips ? QString(QLatin1String(best->name)) : QString();
}

int unknownCommand(const QVector<Command>& commands, const QString& name, Streams& streams)
{
    // A name as long as a letter to the editor is not compared with anything.
    const QString meant = nearest(commands, name.left(NameWidth * 2));
    const QString hint = meant.isEmpty() ? QStringLiteral("\"mpwv --help\" lists them")
                                         : QStringLiteral("do you mean \"%1\"?").arg(meant);
    printError(streams, QStringLiteral("there is no command \"%1\"; ").arg(printable(name)) + hint);
    return ExitUsage;
}

int runNamed(const QVector<Command>& commands, const QString& name, const QStringList& arguments,
             Streams& streams)
{
    for (const Command& command : commands) {
        if (name == QLatin1String(command.name))
            return command.run(arguments, streams);
    }
    return unknownCommand(commands, name, streams);
}

} // namespace

int runTool(const QVector<Command>& commands, const QStringList& arguments, Streams& streams)
{
    const QString first = arguments.value(0);
    if (first.isEmpty()) {
        printError(streams, QStringLiteral("no command; \"mpwv --help\" lists them"));
        return ExitUsage;
    }
    const bool isHelp = first == QLatin1String("help");
    if (isHelp && arguments.size() > 1)
        return runNamed(commands, arguments.at(1), {QStringLiteral("--help")}, streams);
    if (isHelp || first == QLatin1String("--help") || first == QLatin1String("-h")) {
        streams.out->write(helpText(commands));
        return ExitOk;
    }
    if (first == QLatin1String("--version")) {
        streams.out->write("mpwv " MPB_VERSION "\n");
        return ExitOk;
    }
    return runNamed(commands, first, arguments.mid(1), streams);
}
