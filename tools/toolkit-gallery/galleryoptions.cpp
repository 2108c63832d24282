// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "galleryoptions.h"

#include "gallerywindow.h"
#include "languages.h"

#include <QCommandLineParser>

namespace {

struct Switches
{
    QCommandLineOption page{QStringLiteral("page"),
                            QStringLiteral("The page to begin with or to render: units, editor, "
                                           "small, components, states or tables."),
                            QStringLiteral("name")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("The language to begin with or to render: en, de, "
                                               "zh_CN or ja."),
                                QStringLiteral("name")};
    QCommandLineOption render{QStringLiteral("render"),
                              QStringLiteral("Write the pages as PAGE-LANGUAGE.png into a folder; "
                                             "needs no display."),
                              QStringLiteral("folder")};
    QCommandLineOption soak{QStringLiteral("soak"),
                            QStringLiteral("Press keys and touch the form of components at random, "
                                           "this many times, and check it after each; needs no "
                                           "display. Exit code 1 at the first fault."),
                            QStringLiteral("events")};
    QCommandLineOption seed{QStringLiteral("seed"),
                            QStringLiteral("Repeat the random events of this number (default 1)."),
                            QStringLiteral("number"), QStringLiteral("1")};
    QCommandLineOption log{QStringLiteral("log"), QStringLiteral("Print what the library logs.")};
};

GalleryOptions refused(const QString& reason)
{
    GalleryOptions options;
    options.task = GalleryOptions::Refuse;
    options.text = reason;
    return options;
}

GalleryOptions telling(const QString& text)
{
    GalleryOptions options;
    options.task = GalleryOptions::Tell;
    options.text = text;
    return options;
}

void setUp(QCommandLineParser& parser, const Switches& switches)
{
    parser.setApplicationDescription(
        QStringLiteral("Shows every widget of the instrument's toolkit in every state, to look at "
                       "and to try by mouse and keyboard."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({switches.page, switches.language, switches.render, switches.soak,
                       switches.seed, switches.log});
}

bool readNumbers(const QCommandLineParser& parser, const Switches& switches,
                 GalleryOptions& options)
{
    bool eventsRead = true;
    bool seedRead = false;
    if (options.task == GalleryOptions::Soak)
        options.events = parser.value(switches.soak).toInt(&eventsRead);
    options.seed = parser.value(switches.seed).toUInt(&seedRead);
    return eventsRead && seedRead && options.events >= 0;
}

GalleryOptions read(const QCommandLineParser& parser, const Switches& switches)
{
    GalleryOptions options;
    if (parser.isSet(switches.render))
        options.task = GalleryOptions::Render;
    else if (parser.isSet(switches.soak))
        options.task = GalleryOptions::Soak;
    options.page = parser.value(switches.page);
    options.language = parser.value(switches.language);
    options.folder = parser.value(switches.render);
    options.logs = parser.isSet(switches.log);
    if (!readNumbers(parser, switches, options))
        return refused(QStringLiteral("--soak and --seed want whole numbers"));
    if (!options.page.isEmpty() && !GalleryWindow::pageNames().contains(options.page))
        return refused(QStringLiteral("there is no page \"%1\"").arg(options.page));
    if (!options.language.isEmpty() && !Languages::all().contains(options.language))
        return refused(QStringLiteral("there is no language \"%1\"").arg(options.language));
    return options;
}

} // namespace

GalleryOptions parseGalleryOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    const Switches switches;
    setUp(parser, switches);
    if (!parser.parse(arguments))
        return refused(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return telling(parser.helpText());
    if (parser.isSet(QStringLiteral("version")))
        return telling(QStringLiteral("toolkit-gallery " MPB_VERSION "\n"));
    if (!parser.positionalArguments().isEmpty())
        return refused(
            QStringLiteral("unexpected \"%1\"").arg(parser.positionalArguments().first()));
    return read(parser, switches);
}
