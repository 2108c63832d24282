// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioprogram.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
    // Plots are drawn, and nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kvx-scenario"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MPB_VERSION));
    QFile in;
    if (!in.open(stdin, QIODevice::ReadOnly))
        return ScenarioUsage;
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    return runScenarioProgram(QCoreApplication::arguments(), in, out, err);
}
