// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// What a user waits for: the window's first picture, an opened setup, Run. The plug-in's file is
// loaded by a host, and a server on the instrument's port reads at once. It needs a world of its
// own and the content in it.

#include "benchsetup.h"
#include "editorhost.h"
#include "pulsetrain.h"
#include "runsequence.h"
#include "scriptedserver.h"
#include "trainsamples.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace {

const char SetupPath[] = "/mnt/user-data/thirty.json";
const char WaveformPath[] = "/mnt/user-data/run.mpwv";
const int Rounds = 25;

void dropLog(QtMsgType, const QMessageLogContext&, const QString&) {}

// Answers the identification queries alone: the one of show(), which exec()'s reset follows, and
// those that end each Run and Stop.
std::unique_ptr<ScriptedServer> instrument(int shows, int runs)
{
    const ScriptedServer::Turn answer{{"MAKER,KVX7010X,0,1.0\n"}, false};
    const ScriptedServer::Turn silence{};
    const int runCommands = RunSequence::runCommands(PulseTrain()).size();
    QVector<ScriptedServer::Turn> script;
    for (int i = 0; i < shows; ++i)
        script << answer << silence;
    for (int i = 0; i < runs; ++i) {
        script += QVector<ScriptedServer::Turn>(runCommands, silence);
        script << answer << silence << silence << answer;
    }
    return std::make_unique<ScriptedServer>(script);
}

// Until the widget and all in it are on the screen.
void paint(QWidget* widget)
{
    widget->repaint();
    QCoreApplication::processEvents();
}

void showToFirstFrame(benchmark::State& state)
{
    const auto server = instrument(Rounds, 0);
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
    const auto server = instrument(1, 0);
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
    const auto server = instrument(1, Rounds);
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

double residentMiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / (1024 * 1024);
}

// Above a host that has shown its empty screen.
void reportMemory()
{
    const auto server = instrument(1, 0);
    {
        QWidget empty;
        empty.setGeometry(0, 0, 800, 480);
        empty.show();
        paint(&empty);
    }
    const double before = residentMiB();
    EditorHost host;
    host.show();
    host.exec([&] {
        paint(host.editor());
        std::printf(
            "memory of the loaded plug-in with its editor shown: %.1f MiB above %.1f MiB of "
            "an empty host\n",
            residentMiB() - before, before);
    });
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

    reportMemory();
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
