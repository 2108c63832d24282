// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "runsequence.h"
#include "trainsamples.h"

#include <QJsonDocument>

#include <cstddef>
#include <cstdlib>
#include <memory>

// Qt 5.15's JSON parser leaks the values of members that a document names twice; everything behind
// it is checked for leaks by the unit tests.
extern "C" Q_DECL_EXPORT const char* __asan_default_options()
{
    return "detect_leaks=0";
}

// A setup file as a stranger made it, on the whole road: document, pulse train, samples, waveform
// file and commands. The sample buffer has exactly its size, so that the sanitizer sees any write
// outside it.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return 0;

    const PulseTrain train = PulseTrain::fromDocument(document.object());
    const std::unique_ptr<double[]> buffer(new double[PointBudget]);
    if (!writeTrainWaveform("/dev/null", train, buffer.get()))
        std::abort();

    for (const QByteArray& command : RunSequence::runCommands(train)) {
        if (!command.endsWith('\n') || command.count('\n') != 1)
            std::abort();
    }
    return 0;
}
