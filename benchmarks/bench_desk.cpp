// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// How long a detent of the knob or a finger takes until the changed picture has come over RFB and
// is painted, scaled as a panel scales it, on a canvas of its own. It talks to a host that runs
// with the editor open; script/benchmark starts it.

#include "keypadclient.h"
#include "rfbscreen.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QTimer>

#include <cstdio>

namespace {

const int PatienceMs = 5000;
const int QuietMs = 120;

/// Waits for a signal; false when it does not come.
template<typename Sender, typename Signal>
bool waitFor(Sender& sender, Signal signal)
{
    QEventLoop loop;
    QTimer patience;
    QObject::connect(&sender, signal, &loop, [&loop] { loop.exit(0); });
    QObject::connect(&patience, &QTimer::timeout, &loop, [&loop] { loop.exit(1); });
    patience.start(PatienceMs);
    return loop.exec() == 0;
}

/// The host's front, as a panel of the given size has it.
class Front
{
public:
    Front(quint16 port, const QString& keypadPath)
        : m_screen(port)
        , m_keypad(keypadPath)
    {}

    bool open()
    {
        m_screen.start();
        if (!waitFor(m_screen, &RfbScreen::connected))
            return false;
        m_keypad.start();
        if (!waitFor(m_keypad, &KeypadClient::connected))
            return false;
        QObject::connect(&m_keypad, &KeypadClient::described, [this](const auto& screen) {
            for (const Keypad::ScreenItem& item : screen.items) {
                if (item.role == QLatin1String("cell"))
                    m_cells.append(item.rect.center());
            }
        });
        return m_keypad.describe() && waitFor(m_keypad, &KeypadClient::described) &&
               m_cells.size() >= 2;
    }

    void turn(int detents) { m_keypad.turn(detents); }

    void tap(int cell)
    {
        m_screen.sendPointer(m_cells.at(cell), 1);
        m_screen.sendPointer(m_cells.at(cell), 0);
    }

    /// Waits until nothing changes any more.
    void settle()
    {
        QEventLoop loop;
        QTimer quiet;
        QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
        QObject::connect(&m_screen, &RfbScreen::changed, &quiet,
                         [&quiet] { quiet.start(QuietMs); });
        quiet.start(QuietMs);
        loop.exec();
    }

    /// Waits for the next change and paints it.
    bool paintChange()
    {
        if (!waitFor(m_screen, &RfbScreen::changed))
            return false;
        QPainter painter(&m_canvas);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(m_canvas.rect(), m_screen.image());
        return true;
    }

private:
    RfbScreen m_screen;
    KeypadClient m_keypad;
    QVector<QPoint> m_cells;
    QImage m_canvas{1200, 720, QImage::Format_RGB32};
};

Front* front = nullptr;

template<typename Act>
void measure(benchmark::State& state, Act act)
{
    int round = 0;
    for (auto _ : state) {
        front->settle();
        QElapsedTimer timer;
        timer.start();
        act(round++ % 2);
        if (!front->paintChange()) {
            state.SkipWithError("the picture did not change");
            return;
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) * 1e-9);
    }
}

void detentToPicture(benchmark::State& state)
{
    front->tap(0);
    measure(state, [](int round) { front->turn(round == 0 ? 1 : -1); });
}

void touchToPicture(benchmark::State& state)
{
    front->tap(0);
    measure(state, [](int round) { front->tap(round == 0 ? 1 : 0); });
}

// One touch or detent is one measurement: the median of the repetitions is asked for.
BENCHMARK(detentToPicture)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(touchToPicture)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_desk SCREEN-PORT KEYPAD [benchmark options]\n");
        return 2;
    }
    Front desk(QByteArray(argv[1]).toUShort(), QString::fromLocal8Bit(argv[2]));
    if (!desk.open()) {
        std::fprintf(stderr, "bench_desk: no host with an open editor there\n");
        return 1;
    }
    front = &desk;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
