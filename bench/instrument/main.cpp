// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverprogram.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kvx-instrument"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MPB_VERSION));

    QFile standardOutput;
    QFile standardError;
    if (!standardOutput.open(stdout, QIODevice::WriteOnly) ||
        !standardError.open(stderr, QIODevice::WriteOnly))
        return 1;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    return runServerProgram(QCoreApplication::arguments(), out, err);
}
