// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "paneloptions.h"

#include "keypadprotocol.h"
#include "panellanguages.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

void declareOptions(QCommandLineParser& parser)
{
    const auto tr = [](const char* text) { return QString::fromLatin1(text); };
    parser.setApplicationDescription(
        tr("The front of a two-channel arbitrary function generator: its touch screen, knob and "
           "keys,\nand what channel 1 puts out. Prints \"ready\" once the screen is seen."));
    parser.addOptions({
        {{tr("h"), tr("help")}, tr("Show this text.")},
        {{tr("v"), tr("version")}, tr("Show the version.")},
        {tr("screen-port"), tr("TCP port of the screen on this machine. Default: 5900."), tr("N"),
         tr("5900")},
        {tr("keypad"),
         tr("Socket of the host's keypad. Default: kvx-keypad in the user's run "
            "time folder."),
         tr("PATH")},
        {tr("instrument-port"), tr("TCP port of the instrument. Default: 30000."), tr("N"),
         tr("30000")},
        {tr("language"), tr("Language of the panel: en, de, zh_CN or ja."), tr("LANGUAGE")},
        {tr("translations"), tr("Folder of the texts."), tr("FOLDER")},
        {tr("picture"),
         tr("Leave a picture of the front in FILE, a .png: with the last burst, or else at the "
            "end."),
         tr("FILE")},
        {tr("no-settings"), tr("Neither read nor keep the window's place and the language.")},
    });
}

QString readPort(const QCommandLineParser& parser, const QString& option, quint16& port)
{
    bool isNumber = false;
    const uint value = parser.value(option).toUInt(&isNumber);
    if (!isNumber || value < 1 || value > 65535)
        return QStringLiteral("--%1 %2: not a whole number from 1 to 65535")
            .arg(option, parser.value(option));
    port = quint16(value);
    return QString();
}

QString readValues(const QCommandLineParser& parser, PanelOptions& options)
{
    QString error = readPort(parser, QStringLiteral("screen-port"), options.screenPort);
    if (error.isEmpty())
        error = readPort(parser, QStringLiteral("instrument-port"), options.instrumentPort);
    options.keypadPath = parser.value(QStringLiteral("keypad"));
    if (!parser.isSet(QStringLiteral("keypad")))
        options.keypadPath = Keypad::defaultSocketPath();
    options.language = parser.value(QStringLiteral("language"));
    options.translations = parser.value(QStringLiteral("translations"));
    options.picture = parser.value(QStringLiteral("picture"));
    options.keepsSettings = !parser.isSet(QStringLiteral("no-settings"));
    if (error.isEmpty() && parser.isSet(QStringLiteral("language")) &&
        !PanelLanguages::all().contains(options.language))
        error =
            QStringLiteral("--language %1: not one of en, de, zh_CN and ja").arg(options.language);
    if (error.isEmpty() && options.keypadPath.isEmpty())
        error = QStringLiteral("--keypad: the path is empty");
    return error;
}

} // namespace

QString readPanelOptions(const QStringList& arguments, PanelOptions& options)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments))
        return parser.errorText();
    if (parser.isSet(QStringLiteral("help")))
        options.text = parser.helpText();
    else if (parser.isSet(QStringLiteral("version")))
        options.text = QStringLiteral("kvx-panel %1\n").arg(QCoreApplication::applicationVersion());
    if (!options.text.isEmpty())
        return QString();
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("unexpected argument: %1").arg(parser.positionalArguments().first());
    return readValues(parser, options);
}
