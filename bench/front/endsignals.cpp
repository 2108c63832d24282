// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "endsignals.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::array<int, 2> g_pipe{-1, -1};

int openPipe()
{
    if (::pipe2(g_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("EndSignals: no pipe");
    return g_pipe[0];
}

// Hardly anything may be called in a signal handler; writing to a pipe may.
void writeToPipe(int)
{
    const char byte = 1;
    const ssize_t written = ::write(g_pipe[1], &byte, 1);
    static_cast<void>(written);
}

} // namespace

EndSignals::EndSignals(QObject* parent)
    : QObject(parent)
    , m_notifier(openPipe(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &EndSignals::drain);
    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

void EndSignals::drain()
{
    std::array<char, 16> bytes{};
    while (::read(g_pipe[0], bytes.data(), bytes.size()) > 0) {
    }
    Q_EMIT endRequested();
}
