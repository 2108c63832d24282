// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariooptions.h"

#include "keypadprotocol.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace {

QCommandLineOption valued(const char* name, const char* description, const char* value)
{
    return {QString::fromLatin1(name), QString::fromLatin1(description),
            QString::fromLatin1(value)};
}

struct Switches
{
    QCommandLineOption check{QStringLiteral("check"),
                             QStringLiteral("Read the scenarios without playing them.")};
    QCommandLineOption screenPort =
        valued("screen-port", "RFB port of the host's screen (default 5900).", "n");
    QCommandLineOption keypad = valued("keypad", "Socket of the host's keypad.", "path");
    QCommandLineOption instrumentPort =
        valued("instrument-port", "The instrument's port, for plots (default 30000).", "n");
    QCommandLineOption transcript =
        valued("transcript", "The instrument's transcript, for the commands to expect.", "file");
    QCommandLineOption userData =
        valued("user-data", "The user-data folder (default /mnt/user-data).", "folder");
    QCommandLineOption language =
        valued("language", "Language of the identifiers (default: the screen's).", "name");
    QCommandLineOption translations =
        valued("translations",
               "Folder of the catalogues (default: MPB_TRANSLATIONS_DIR, or those that "
               "were installed with the program).",
               "folder");
    QCommandLineOption output =
        valued("output", "Where pictures and copies go (default: here).", "folder");
    QCommandLineOption pictures = valued(
        "pictures", "Approved pictures (default: pictures beside the first scenario).", "folder");
    QCommandLineOption approve{QStringLiteral("approve"),
                               QStringLiteral("Take what the screen shows for approved.")};
};

ScenarioOptions ending(ScenarioOptions::Task task, const QString& text)
{
    ScenarioOptions options;
    options.task = task;
    options.text = text;
    return options;
}

ScenarioOptions refused(const QString& reason)
{
    return ending(ScenarioOptions::Refuse, reason);
}

void setUp(QCommandLineParser& parser, const Switches& switches)
{
    parser.setApplicationDescription(
        QStringLiteral("Plays scenarios at the desk: touches, keys and what is to be seen then."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({switches.check, switches.screenPort, switches.keypad,
                       switches.instrumentPort, switches.transcript, switches.userData,
                       switches.language, switches.translations, switches.output, switches.pictures,
                       switches.approve});
    parser.addPositionalArgument(QStringLiteral("scenario"),
                                 QStringLiteral("Files to play in order; - is the standard input."),
                                 QStringLiteral("scenario..."));
}

QString installedTranslations()
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QStringLiteral("../share/multi-pulse-builder/translations"));
}

QString valueOr(const QCommandLineParser& parser, const QCommandLineOption& option,
                const QString& otherwise)
{
    return parser.isSet(option) ? parser.value(option) : otherwise;
}

ScenarioFolders readFolders(const QCommandLineParser& parser, const Switches& switches,
                            const QString& firstFile)
{
    ScenarioFolders folders;
    const QString environment = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
    folders.translations = valueOr(parser, switches.translations,
                                   environment.isEmpty() ? installedTranslations() : environment);
    folders.userData = valueOr(parser, switches.userData, QStringLiteral("/mnt/user-data"));
    folders.output = valueOr(parser, switches.output, QDir::currentPath());
    folders.pictures = valueOr(parser, switches.pictures,
                               QFileInfo(firstFile).dir().filePath(QStringLiteral("pictures")));
    folders.approve = parser.isSet(switches.approve);
    return folders;
}

bool readPort(const QString& text, quint16& port)
{
    bool isNumber = false;
    port = text.toUShort(&isNumber);
    return isNumber && port != 0;
}

ScenarioOptions read(const QCommandLineParser& parser, const Switches& switches)
{
    ScenarioOptions options;
    options.task = parser.isSet(switches.check) ? ScenarioOptions::Check : ScenarioOptions::Play;
    options.files = parser.positionalArguments();
    if (options.files.isEmpty())
        return refused(QStringLiteral("no scenario is named"));
    for (const auto& [option, port] :
         {std::pair(&switches.screenPort, &options.screenPort),
          std::pair(&switches.instrumentPort, &options.instrumentPort)}) {
        if (parser.isSet(*option) && !readPort(parser.value(*option), *port))
            return refused(
                QStringLiteral("--%1 wants a number from 1 to 65535").arg(option->names().first()));
    }
    options.keypad =
        parser.isSet(switches.keypad) ? parser.value(switches.keypad) : Keypad::defaultSocketPath();
    options.transcript = parser.value(switches.transcript);
    options.language = parser.value(switches.language);
    options.folders = readFolders(parser, switches, options.files.first());
    return options;
}

} // namespace

ScenarioOptions parseScenarioOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    const Switches switches;
    setUp(parser, switches);
    if (!parser.parse(arguments))
        return refused(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return ending(ScenarioOptions::Tell, parser.helpText());
    if (parser.isSet(QStringLiteral("version")))
        return ending(ScenarioOptions::Tell, QStringLiteral("kvx-scenario " MPB_VERSION "\n"));
    return read(parser, switches);
}
