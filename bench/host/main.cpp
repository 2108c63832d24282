// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostapplication.h"
#include "hostprogram.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <QtPlugin>

#include <cstdio>

#include <unistd.h>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

namespace {

/// Keeps the standard output for what the program itself says, and returns a descriptor of it.
/// Plug-ins may print what they like, which goes to the standard error from here on.
int takeStandardOutput()
{
    const int own = ::dup(STDOUT_FILENO);
    return own < 0 || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0 ? -1 : own;
}

// Read before the application of the screen is there: the platform depends on it, and texts and
// errors need none.
QString readCommandLine(int argc, char** argv, HostOptions& options)
{
    const QCoreApplication application(argc, argv);
    return readHostOptions(QCoreApplication::arguments(), QStringLiteral(MPB_VERSION), options);
}

int run(int& argc, char** argv, QTextStream& out, QTextStream& err)
{
    HostOptions options;
    const QString error = readCommandLine(argc, argv, options);
    if (!error.isEmpty()) {
        err << "kvx-host: " << error << '\n';
        return HostUsage;
    }
    if (options.isText) {
        out << options.text;
        return HostDone;
    }
    preparePlatform(options);
    // The platform would take options of its own from the command line.
    int ownArguments = 1;
    HostApplication application(ownArguments, argv);
    return runHostProgram(application, options, out, err);
}

} // namespace

int main(int argc, char** argv)
{
    const int output = takeStandardOutput();
    QFile standardOutput;
    QFile standardError;
    if (output < 0 ||
        !standardOutput.open(output, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) ||
        !standardError.open(stderr, QIODevice::WriteOnly))
        return HostUsage;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    return run(argc, argv, out, err);
}
