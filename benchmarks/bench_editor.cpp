// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// What a user waits for: the window's first picture, an opened setup, Run. The plug-in's file is
// loaded by a host, and a server on the instrument's port reads at once. It needs a world of its
// own and the content in it.

#include "benchinstrument.h"
#include "benchsetup.h"
#include "editorhost.h"
#include "pulsetrain.h"
#include "trainsamples.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <benchmark/benchmark.h>
#include <vector>

namespace {

const char SetupPath[] = "/mnt/user-data/thirty.json";
const char WaveformPath[] = "/mnt/user-data/run.mpwv";
const int Rounds = 25;

void dropLog(QtMsgType, const QMessageLogContext&, const QString&) {}

void showToFirstFrame(benchmark::State& state)
{
    const auto server = benchmarkInstrument(Rounds, 0);
    for (auto round : state) {
        Q_UNUSED(round)
        EditorHost host;
        QElapsedTimer clock;
        clock.start();
        host.show();
        host.exec([&] {
            paint(host.editor());
            state.SetIterationTime(double(clock.nsecsElapsed()) / 1e9);
        });
    }
}

void openSetup(benchmark::State& state)
{
    const auto server = benchmarkInstrument(1, 0);
    EditorHost host;
    host.show();
    EditorHost::record().browserResult = 1;
    EditorHost::record().browserPath = QLatin1String(SetupPath);
    host.exec([&] {
        for (auto round : state) {
            Q_UNUSED(round)
            host.action(EditorHost::Open)->trigger();
            paint(host.editor());
        }
    });
}

void runPress(benchmark::State& state)
{
    const auto server = benchmarkInstrument(1, Rounds);
    EditorHost host;
    host.show();
    EditorHost::record().browserResult = 1;
    EditorHost::record().browserPath = QLatin1String(SetupPath);
    host.exec([&] {
        host.action(EditorHost::Open)->trigger();
        for (auto round : state) {
            Q_UNUSED(round)
            host.action(EditorHost::Run)->trigger();
            state.PauseTiming();
            host.action(EditorHost::Run)->trigger();
            state.ResumeTiming();
        }
    });
}

PulseTrain trainOfSetup()
{
    return PulseTrain::fromDocument(benchmarkSetup(30));
}

void runCalculation(benchmark::State& state)
{
    std::vector<double> buffer(PointBudget);
    const PulseTrain train = trainOfSetup();
    for (auto round : state) {
        Q_UNUSED(round)
        benchmark::DoNotOptimize(synthesise(train, buffer.data()));
    }
}

void runCalculationAndFile(benchmark::State& state)
{
    const PulseTrain train = trainOfSetup();
    for (auto round : state) {
        Q_UNUSED(round)
        benchmark::DoNotOptimize(writeTrainWaveform(WaveformPath, train));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    qInstallMessageHandler(dropLog);
    QFile setup(QString::fromLatin1(SetupPath));
    if (!setup.open(QIODevice::WriteOnly) ||
        setup.write(QJsonDocument(benchmarkSetup(30)).toJson()) < 0)
        return 1;
    setup.close();

    benchmark::RegisterBenchmark("show to first frame", showToFirstFrame)
        ->UseManualTime()
        ->Iterations(Rounds)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("open 30 pulses to painted", openSetup)
        ->UseRealTime()
        ->Iterations(Rounds)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Run press to last reply", runPress)
        ->UseRealTime()
        ->Iterations(Rounds)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("of it, calculation", runCalculation)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("of it, calculation and file", runCalculationAndFile)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
