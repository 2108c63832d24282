// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "backoff.h"

Backoff::Backoff(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Backoff::due);
}

void Backoff::wait()
{
    m_timer.start(m_nNextMs);
    m_nNextMs = qMin(2 * m_nNextMs, int(LongestMs));
}

void Backoff::reset()
{
    m_timer.stop();
    m_nNextMs = FirstMs;
}
