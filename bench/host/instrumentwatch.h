// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentpoller.h"

#include <QThread>

/// The poller in its thread. Signals of poller() arrive in the thread of their receiver; its
/// operations are called through the functions here.
class InstrumentWatch
{
public:
    InstrumentWatch(quint16 port, std::function<bool()> isBlocked);
    ~InstrumentWatch();
    InstrumentWatch(const InstrumentWatch&) = delete;
    InstrumentWatch& operator=(const InstrumentWatch&) = delete;

    const InstrumentPoller* poller() const { return &m_poller; }

    void start();
    void trigger();
    void setOutput(int channel, bool on);

private:
    QThread m_thread;
    InstrumentPoller m_poller;
};
