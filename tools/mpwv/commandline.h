// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "pulsetrain.h"

#include <QCommandLineParser>

#include <optional>

class QJsonObject;

/// Options and arguments of one command of the tool: parsed, checked for their number, and its help
/// text, without touching the process.
class CommandLine
{
public:
    /// @p command is the name behind "mpwv"; @p description stands above the options in the help.
    CommandLine(const QString& command, const QString& description);

    /// @p syntax is how the argument stands in the usage line: "SETUP...", "[FILE]".
    void addArgument(const QString& name, const QString& description, const QString& syntax);
    void addOption(const QStringList& names, const QString& description,
                   const QString& valueName = QString());
    /// "--load 50|hi-z", read by load().
    void addLoadOption();
    /// "--json", for output that programs read.
    void addJsonOption();

    /// Reads the arguments behind the command's name; @p least to @p most of them may be no option.
    /// Returns the exit code when the command ends here, help and complaint printed, and nothing
    /// when it goes on.
    std::optional<int> parse(const QStringList& arguments, Streams& streams, int least, int most);

    bool isSet(const QString& option) const { return m_parser.isSet(option); }
    QString value(const QString& option) const { return m_parser.value(option); }
    QStringList arguments() const { return m_parser.positionalArguments(); }
    /// The load of "--load"; nothing where the document decides.
    std::optional<LoadImpedance> load() const { return m_load; }

    /// Complains about the use of the command and points to its help. Returns ExitUsage.
    int usageError(const QString& text, Streams& streams) const;

private:
    QString helpText() const;
    QString complaint(int least, int most);
    bool readLoad();

    QCommandLineParser m_parser;
    QString m_strCommand;
    std::optional<LoadImpedance> m_load;
};

/// The document's train, with another load where one is given.
PulseTrain trainOf(const QJsonObject& document, std::optional<LoadImpedance> load);
