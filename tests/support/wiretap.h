// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

#include <functional>

/// Looks on while this process talks to the instrument's port: whoever talks there blocks the
/// thread, so that nothing else gets a turn between two commands. The calls are made in the thread
/// that connects or writes, at the system's own calls. One tap at a time; its program exports its
/// symbols.
class Wiretap
{
public:
    static const int InstrumentPort = 30000;

    Wiretap();
    ~Wiretap();
    Wiretap(const Wiretap&) = delete;
    Wiretap& operator=(const Wiretap&) = delete;

    /// Called when the connection stands, with the socket.
    std::function<void(int socket)> connected;

    /// Called when a write has left, with the socket and what was written.
    std::function<void(int socket, const QByteArray& bytes)> written;

    /// Waits until the other side's close can be seen on a socket; false after ten seconds.
    static bool waitForHangUp(int socket);
};
