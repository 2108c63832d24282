// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/fontsubstitution.h"
#include "desktopkeys.h"
#include "galleryoptions.h"
#include "gallerywindow.h"
#include "languages.h"
#include "parameterform.h"
#include "rendering.h"
#include "soak.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QStyleFactory>

#include <cstdio>

namespace {

// The style sheets give no colours for some parts; those come from the style, not from the desktop.
void dress()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    substituteTextFont();
}

int refuse(const QString& reason)
{
    std::fprintf(stderr, "toolkit-gallery: %s\n", qUtf8Printable(reason));
    return 2;
}

int show(GalleryWindow& window, const GalleryOptions& options)
{
    if (!options.page.isEmpty())
        window.showPage(options.page);
    DesktopKeys keys(&window);
    window.connectKeys(keys);
    window.show();
    return QApplication::exec();
}

int render(GalleryWindow& window, Languages& languages, const GalleryOptions& options)
{
    const auto orAll = [](const QString& one, const QStringList& all) {
        return one.isEmpty() ? all : QStringList(one);
    };
    window.show();
    const QString error =
        Rendering::renderAll(window, languages, orAll(options.page, GalleryWindow::pageNames()),
                             orAll(options.language, Languages::all()), options.folder);
    if (error.isEmpty())
        return 0;
    std::fprintf(stderr, "toolkit-gallery: %s\n", qUtf8Printable(error));
    return 1;
}

int soak(GalleryWindow& window, const GalleryOptions& options)
{
    window.showPage(QStringLiteral("components"));
    window.show();
    Soak monkey(*window.form(), options.seed);
    if (monkey.run(options.events)) {
        std::printf("%d events with seed %u: %d changes, %d values out of range, no fault\n",
                    monkey.eventsDone(), options.seed, monkey.changes(), monkey.refusals());
        return 0;
    }
    for (const QString& event : monkey.history())
        std::printf("%s\n", qUtf8Printable(event));
    std::printf("event %d with seed %u: %s\n", monkey.eventsDone() + 1, options.seed,
                qUtf8Printable(monkey.fault()));
    return 1;
}

int run(const GalleryOptions& options)
{
    Languages languages;
    languages.install(options.language.isEmpty() ? Languages::all().first() : options.language);
    GalleryWindow window(languages);
    switch (options.task) {
    case GalleryOptions::Render:
        return render(window, languages, options);
    case GalleryOptions::Soak:
        return soak(window, options);
    default:
        return show(window, options);
    }
}

// Done with before the application of the window is there: what is asked for decides whether it
// needs a display.
GalleryOptions readCommandLine(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return parseGalleryOptions(QCoreApplication::arguments());
}

} // namespace

int main(int argc, char** argv)
{
    const GalleryOptions options = readCommandLine(argc, argv);
    if (options.task == GalleryOptions::Refuse)
        return refuse(options.text);
    if (options.task == GalleryOptions::Tell) {
        std::printf("%s", qUtf8Printable(options.text));
        return 0;
    }
    if (options.task != GalleryOptions::Show)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!options.logs)
        QLoggingCategory::setFilterRules(QStringLiteral("default=false"));

    // The instrument's screen has no scale, and the pages are as large as it.
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QApplication application(argc, argv);
    dress();
    return run(options);
}
