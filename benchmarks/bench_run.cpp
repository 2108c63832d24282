// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "benchsetup.h"
#include "trainsamples.h"
#include "waveformsample.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

// One Run's calculation, from the setup document to the closed waveform file, beside the least that
// any such calculation must do: one pass that converts 131072 doubles to 16 bits and hands them to
// the kernel in one write. The report gives the ratio of the two.

namespace {

QByteArray filePath()
{
    static const QTemporaryDir folder;
    return folder.filePath(QStringLiteral("run.mpwv")).toUtf8();
}

void onePass(benchmark::State& state)
{
    std::vector<double> samples(PointBudget);
    for (int i = 0; i < PointBudget; ++i)
        samples[i] = i % 2 == 0 ? 1.0 : -1.0;
    std::vector<quint16> words(PointBudget);
    const QByteArray path = filePath();

    for (auto _ : state) {
        for (int i = 0; i < PointBudget; ++i)
            words[i] = appPlugins::sampleWord(samples[i]);
        const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        const ssize_t written = ::write(file, words.data(), words.size() * sizeof(quint16));
        benchmark::DoNotOptimize(written);
        ::close(file);
    }
}
BENCHMARK(onePass)->Unit(benchmark::kMicrosecond);

void documentToFile(benchmark::State& state)
{
    const QJsonObject document = benchmarkSetup(static_cast<int>(state.range(0)));
    const QByteArray path = filePath();
    for (auto _ : state) {
        if (!writeTrainWaveform(path.constData(), PulseTrain::fromDocument(document)))
            state.SkipWithError("the waveform file could not be written");
    }
}
BENCHMARK(documentToFile)->Arg(2)->Arg(10)->Arg(30)->Unit(benchmark::kMicrosecond);

void documentToSamples(benchmark::State& state)
{
    const QJsonObject document = benchmarkSetup(static_cast<int>(state.range(0)));
    std::vector<double> buffer(PointBudget);
    for (auto _ : state)
        benchmark::DoNotOptimize(synthesise(PulseTrain::fromDocument(document), buffer.data()));
}
BENCHMARK(documentToSamples)->Arg(2)->Arg(30)->Unit(benchmark::kMicrosecond);

void discardLog(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(discardLog);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
