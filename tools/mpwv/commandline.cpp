// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "input.h"

#include <QIODevice>

namespace {

const int HelpWidth = 79;

// The parser breaks the lines of the options' descriptions, but not of its own.
QString wrapped(const QString& text)
{
    QString lines;
    int width = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const bool fits = width + 1 + word.size() <= HelpWidth;
        if (!lines.isEmpty())
            lines += QLatin1Char(fits ? ' ' : '\n');
        width = fits && width > 0 ? width + 1 + word.size() : word.size();
        lines += word;
    }
    return lines;
}

} // namespace

CommandLine::CommandLine(const QString& command, const QString& description)
    : m_strCommand(command)
{
    m_parser.setApplicationDescription(wrapped(description));
    // The parser's own help option would bring one for toolkit options with it.
    addOption({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this help."));
}

void CommandLine::addArgument(const QString& name, const QString& description,
                              const QString& syntax)
{
    m_parser.addPositionalArgument(name, description, syntax);
}

void CommandLine::addOption(const QStringList& names, const QString& description,
                            const QString& valueName)
{
    m_parser.addOption(QCommandLineOption(names, description, valueName));
}

void CommandLine::addLoadOption()
{
    addOption({QStringLiteral("load")},
              QStringLiteral("Play into this load instead of the document's: 50 or hi-z."),
              QStringLiteral("LOAD"));
}

void CommandLine::addJsonOption()
{
    addOption({QStringLiteral("json")}, QStringLiteral("Print JSON, for programs to read."));
}

std::optional<int> CommandLine::parse(const QStringList& arguments, Streams& streams, int least,
                                      int most)
{
    const bool understood = m_parser.parse(QStringList(m_strCommand) + arguments);
    if (understood && isSet(QStringLiteral("help"))) {
        streams.out->write(helpText().toUtf8());
        return ExitOk;
    }
    const QString wrong = understood ? complaint(least, most) : m_parser.errorText();
    if (!wrong.isEmpty())
        return usageError(wrong, streams);
    return std::nullopt;
}

QString CommandLine::complaint(int least, int most)
{
    const QStringList given = arguments();
    if (given.size() < least)
        return QStringLiteral("too few arguments");
    if (given.size() > most)
        return QStringLiteral("one argument too many: %1").arg(given.at(most));
    if (given.count(QStringLiteral("-")) > 1)
        return QStringLiteral("the standard input can be read once only");
    if (!readLoad())
        return QStringLiteral("--load: \"%1\" is neither 50 nor hi-z")
            .arg(value(QStringLiteral("load")));
    return QString();
}

bool CommandLine::readLoad()
{
    if (!m_parser.optionNames().contains(QStringLiteral("load")))
        return true;

    LoadImpedance load;
    if (!parseLoad(value(QStringLiteral("load")), load))
        return false;
    m_load = load;
    return true;
}

int CommandLine::usageError(const QString& text, Streams& streams) const
{
    printError(streams, QStringLiteral("%1: %2").arg(m_strCommand, text));
    printError(streams,
               QStringLiteral("\"mpwv %1 --help\" tells how it is used").arg(m_strCommand));
    return ExitUsage;
}

QString CommandLine::helpText() const
{
    // The parser puts the program's name, without the command, into its first line.
    const QString text = m_parser.helpText();
    const QString options = QStringLiteral(" [options]");
    const int lineEnd = text.indexOf(QLatin1Char('\n'));
    const int arguments = text.indexOf(options) + options.size();
    return QStringLiteral("Usage: mpwv %1 [options]").arg(m_strCommand) +
           text.mid(arguments, lineEnd - arguments) + text.mid(lineEnd);
}

PulseTrain trainOf(const QJsonObject& document, std::optional<LoadImpedance> load)
{
    return load ? PulseTrain::fromDocument(document, *load) : PulseTrain::fromDocument(document);
}
