// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>

/// The instrument's time, in nanoseconds from the start, which stands still while a message is
/// worked on. The transcript notes the very times that the generator computed with, so a replay
/// that sets them again gets the same replies.
class ServerClock
{
public:
    ServerClock() { m_timer.start(); }

    /// Moves the time on to the present.
    void tick() { m_nNow = m_timer.nsecsElapsed(); }
    /// Moves the time to @p nanoseconds; an earlier one than now is ignored.
    void advanceTo(qint64 nanoseconds) { m_nNow = qMax(m_nNow, nanoseconds); }

    qint64 now() const { return m_nNow; }

private:
    QElapsedTimer m_timer;
    qint64 m_nNow = 0;
};
