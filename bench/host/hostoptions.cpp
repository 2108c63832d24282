// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostoptions.h"

#include "hostfolders.h"
#include "keypadprotocol.h"
#include "languages.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

/// The options, as the parser knows them.
struct Known
{
    QCommandLineOption screenPort{
        QStringLiteral("screen-port"),
        QStringLiteral("Show the screen on this port of 127.0.0.1; 0 takes a free one."),
        QStringLiteral("N"), QStringLiteral("5900")};
    QCommandLineOption keypad{
        QStringLiteral("keypad"),
        QStringLiteral("Take keys from this local socket. Its folder must be yours alone."),
        QStringLiteral("PATH"), Keypad::defaultSocketPath()};
    QCommandLineOption plugins{QStringLiteral("plugins"),
                               QStringLiteral("Look for plug-ins in this folder."),
                               QStringLiteral("FOLDER")};
    QCommandLineOption userData{
        QStringLiteral("user-data"),
        QStringLiteral("Folder of the user's files; made if it is not there."),
        QStringLiteral("FOLDER"), QStringLiteral("/mnt/user-data")};
    QCommandLineOption instrumentPort{QStringLiteral("instrument-port"),
                                      QStringLiteral("TCP port of the instrument's commands."),
                                      QStringLiteral("N"), QStringLiteral("30000")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("en, de, zh_CN or ja, for this start."),
                                QStringLiteral("LANGUAGE")};
    QCommandLineOption translations{QStringLiteral("translations"),
                                    QStringLiteral("Folder of the catalogues of texts."),
                                    QStringLiteral("FOLDER")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this text.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};
};

/// What is wrong with a port, or an empty text.
QString readPort(const QString& name, const QString& value, int smallest, quint16& port)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber || number < smallest || number > 65535)
        return QStringLiteral("--%1 %2: not a port").arg(name, value);
    port = static_cast<quint16>(number);
    return QString();
}

QString readLanguage(const QString& value, QString& language)
{
    if (!value.isEmpty() && !Languages::all().contains(value))
        return QStringLiteral("--language %1: choose one of %2")
            .arg(value, Languages::all().join(QLatin1String(", ")));
    language = value;
    return QString();
}

QString readValues(const QCommandLineParser& parser, const Known& known, HostOptions& options)
{
    options.keypadPath = parser.value(known.keypad);
    options.pluginFolder = parser.value(known.plugins);
    options.userData = parser.value(known.userData);
    options.translations = parser.value(known.translations);
    if (options.keypadPath.isEmpty())
        return QStringLiteral("--keypad: no path");
    QString error = readPort(known.screenPort.names().first(), parser.value(known.screenPort), 0,
                             options.screenPort);
    if (error.isEmpty())
        error = readPort(known.instrumentPort.names().first(), parser.value(known.instrumentPort),
                         1, options.instrumentPort);
    if (error.isEmpty())
        error = readLanguage(parser.value(known.language), options.language);
    return error;
}

void fillFolders(const QString& program, HostOptions& options)
{
    if (options.pluginFolder.isEmpty())
        options.pluginFolder = HostFolders::plugins(program);
    if (options.translations.isEmpty())
        options.translations = HostFolders::translations(program);
}

} // namespace

QString readHostOptions(const QStringList& arguments, const QString& version, HostOptions& options)
{
    const Known known;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "The user interface of the instrument: its screen, and a place for plug-ins."));
    parser.addOptions({known.screenPort, known.keypad, known.plugins, known.userData,
                       known.instrumentPort, known.language, known.translations, known.help,
                       known.version});
    if (!parser.parse(arguments))
        return parser.errorText();
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first());
    options.isText = parser.isSet(known.help) || parser.isSet(known.version);
    if (options.isText) {
        options.text = parser.isSet(known.help) ? parser.helpText()
                                                : QStringLiteral("kvx-host %1\n").arg(version);
        return QString();
    }
    const QString error = readValues(parser, known, options);
    if (error.isEmpty())
        fillFolders(QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath(), options);
    return error;
}
