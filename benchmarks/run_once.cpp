// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "benchsetup.h"
#include "trainsamples.h"

#include <cstdlib>

// One Run's calculation, for an instruction counter that collects inside countedRun() alone. One
// that counts the whole program can subtract a program with no Run.

extern "C" Q_DECL_EXPORT bool countedRun(const char* path, const QJsonObject& document)
{
    return writeTrainWaveform(path, PulseTrain::fromDocument(document));
}

// Arguments: file, pulses, and the number of Runs if it is not 1.
int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4)
        return 2;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QJsonObject setup = benchmarkSetup(std::atoi(argv[2]));
    bool done = true;
    for (int runs = argc == 4 ? std::atoi(argv[3]) : 1; runs > 0; --runs)
        done = countedRun(argv[1], setup) && done;
    return done ? 0 : 1;
}
