// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serversignals.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::array<int, 2> g_signalPipe{-1, -1};

int openPipe()
{
    if (::pipe2(g_signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("ServerSignals: no pipe");
    return g_signalPipe[0];
}

// Hardly anything may be called in a signal handler; writing to a pipe may.
void writeToPipe(int)
{
    const char byte = 1;
    const ssize_t written = ::write(g_signalPipe[1], &byte, 1);
    static_cast<void>(written);
}

} // namespace

ServerSignals::ServerSignals(QObject* parent)
    : QObject(parent)
    , m_notifier(openPipe(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &ServerSignals::drain);
    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

void ServerSignals::drain()
{
    std::array<char, 16> bytes{};
    while (::read(g_signalPipe[0], bytes.data(), bytes.size()) > 0) {
    }
    emit endRequested();
}
