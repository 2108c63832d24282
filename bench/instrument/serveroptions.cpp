// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serveroptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

void declareOptions(QCommandLineParser& parser)
{
    const auto tr = [](const char* text) { return QString::fromLatin1(text); };
    parser.setApplicationDescription(tr(
        "Simulated two-channel arbitrary function generator: an SCPI command server on 127.0.0.1.\n"
        "Prints \"listening on 127.0.0.1:PORT\" when clients can connect; ends on SIGINT and\n"
        "SIGTERM."));
    parser.addOptions({
        {{tr("h"), tr("help")}, tr("Show this text.")},
        {{tr("v"), tr("version")}, tr("Show the version.")},
        {tr("port"), tr("TCP port; 0 takes any free one. Default: 30000."), tr("N"), tr("30000")},
        {tr("user-data"), tr("Folder that commands name M:/. Default: /mnt/user-data."),
         tr("FOLDER"), tr("/mnt/user-data")},
        {tr("model"),
         tr("Model family, or one of its models: KVX705XX, KVX7040X, KVX7030X, KVX7020X or "
            "KVX7010X. Default: KVX7010X."),
         tr("FAMILY"), tr("KVX7010X")},
        {tr("fault"), tr("Do something wrong on purpose; several may be given."), tr("FAULT")},
        {tr("seed"), tr("Start of the random numbers that faults use. Default: 1."), tr("N"),
         tr("1")},
        {tr("transcript"), tr("Write every command and reply to FILE."), tr("FILE")},
        {tr("replay"),
         tr("Give the commands of transcript FILE to a fresh instrument, without a network, and "
            "print the new transcript."),
         tr("FILE")},
        {tr("compare"),
         tr("Compare two transcripts, A and B, times and client numbers apart; exit code 1 if they "
            "differ.")},
    });
    parser.addPositionalArgument(tr("A B"), tr("With --compare: the transcripts."), tr("[A B]"));
}

QString helpText(const QCommandLineParser& parser)
{
    QString text = parser.helpText() + QStringLiteral("\nFaults (joined by commas or repeated):\n");
    for (const QString& line : faultDescriptions())
        text += QStringLiteral("  ") + line + QLatin1Char('\n');
    text += QStringLiteral("\nExit codes: 0 ended or equal, 1 transcripts differ, 2 wrong use or "
                           "unusable file or folder,\n4 the port cannot be opened.\n");
    return text;
}

QString versionText()
{
    return QStringLiteral("kvx-instrument %1\n").arg(QCoreApplication::applicationVersion());
}

/// A whole number from 0 to @p max; what is wrong with the option, or an empty text.
QString readNumber(const QCommandLineParser& parser, const QString& option, quint32 max,
                   quint32& number)
{
    bool isNumber = false;
    const quint32 value = parser.value(option).toUInt(&isNumber);
    if (!isNumber || value > max)
        return QStringLiteral("--%1 %2: not a whole number from 0 to %3")
            .arg(option, parser.value(option))
            .arg(max);
    number = value;
    return QString();
}

QString readNumbers(const QCommandLineParser& parser, ServerOptions& options)
{
    quint32 port = 0;
    const QString error = readNumber(parser, QStringLiteral("port"), 65535, port);
    options.port = static_cast<quint16>(port);
    return error.isEmpty() ? readNumber(parser, QStringLiteral("seed"), 0xffffffff, options.seed)
                           : error;
}

QString readFaults(const QCommandLineParser& parser, FaultPlan& plan)
{
    for (const QString& text : parser.values(QStringLiteral("fault"))) {
        QString error = addFaults(text, plan);
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

QString readMode(const QCommandLineParser& parser, ServerOptions& options)
{
    const QStringList paths = parser.positionalArguments();
    const bool compares = parser.isSet(QStringLiteral("compare"));
    if (paths.size() != (compares ? 2 : 0))
        return compares ? QStringLiteral("--compare takes two files")
                        : QStringLiteral("unexpected argument: %1").arg(paths.first());
    if (compares) {
        options.mode = ServerOptions::Compare;
        options.firstPath = paths.at(0);
        options.secondPath = paths.at(1);
    } else if (parser.isSet(QStringLiteral("replay"))) {
        options.mode = ServerOptions::Replay;
        options.replayPath = parser.value(QStringLiteral("replay"));
    }
    return QString();
}

} // namespace

QString readServerOptions(const QStringList& arguments, ServerOptions& options)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version"))) {
        options.mode = ServerOptions::ShowText;
        options.text = parser.isSet(QStringLiteral("help")) ? helpText(parser) : versionText();
        return QString();
    }
    options.userData = parser.value(QStringLiteral("user-data"));
    options.model = parser.value(QStringLiteral("model"));
    options.transcriptPath = parser.value(QStringLiteral("transcript"));
    QString error = readMode(parser, options);
    if (error.isEmpty())
        error = readNumbers(parser, options);
    if (error.isEmpty())
        error = readFaults(parser, options.faults);
    return error;
}
