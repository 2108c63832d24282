// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentwatch.h"

InstrumentWatch::InstrumentWatch(quint16 port, std::function<bool()> isBlocked)
    : m_poller(port, std::move(isBlocked))
{
    m_thread.setObjectName(QStringLiteral("instrument"));
    m_poller.moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::started, &m_poller, &InstrumentPoller::start);
    QObject::connect(&m_thread, &QThread::finished, &m_poller, &InstrumentPoller::stop,
                     Qt::DirectConnection);
}

InstrumentWatch::~InstrumentWatch()
{
    m_thread.quit();
    m_thread.wait();
}

void InstrumentWatch::start()
{
    m_thread.start();
}

void InstrumentWatch::trigger()
{
    QMetaObject::invokeMethod(&m_poller, [this] { m_poller.trigger(); });
}

void InstrumentWatch::setOutput(int channel, bool on)
{
    QMetaObject::invokeMethod(&m_poller, [this, channel, on] { m_poller.setOutput(channel, on); });
}
