// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "benchsetup.h"
#include "trainsamples.h"

#include <cstdlib>

// One Run's calculation, for an instruction counter that collects inside countedRun() alone.

extern "C" Q_DECL_EXPORT bool countedRun(const char* path, const QJsonObject& document)
{
    return writeTrainWaveform(path, PulseTrain::fromDocument(document));
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return countedRun(argv[1], benchmarkSetup(std::atoi(argv[2]))) ? 0 : 1;
}
