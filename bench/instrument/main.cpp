// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverprogram.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

#include <unistd.h>

namespace {

/// Keeps the standard output for what the program itself says, and returns a descriptor of it. The
/// waveform memory tells of its troubles with printf, which goes to the standard error from here
/// on.
int takeStandardOutput()
{
    const int own = ::dup(STDOUT_FILENO);
    return own < 0 || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0 ? -1 : own;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kvx-instrument"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MPB_VERSION));

    const int output = takeStandardOutput();
    QFile standardOutput;
    QFile standardError;
    if (output < 0 ||
        !standardOutput.open(output, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) ||
        !standardError.open(stderr, QIODevice::WriteOnly))
        return ServerUsage;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    return runServerProgram(QCoreApplication::arguments(), out, err);
}
