// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "paneloptions.h"
#include "panelprogram.h"

#include <QApplication>
#include <QTextStream>

#include <cstdio>

namespace {

void nameProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("kvx-panel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MPB_VERSION));
}

// Read before the application of the window is there: texts and errors need no display.
QString readCommandLine(int argc, char** argv, PanelOptions& options)
{
    const QCoreApplication application(argc, argv);
    nameProgram();
    return readPanelOptions(QCoreApplication::arguments(), options);
}

} // namespace

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    PanelOptions options;
    const QString error = readCommandLine(argc, argv, options);
    if (!error.isEmpty()) {
        err << "kvx-panel: " << error << '\n';
        return PanelUsage;
    }
    if (!options.text.isEmpty()) {
        out << options.text;
        return PanelDone;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication application(argc, argv);
    nameProgram();
    return runPanel(options, out, err);
}
