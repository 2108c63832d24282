// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "triggermodel.h"

#include <algorithm>
#include <cmath>

namespace {

const double NanosecondsPerSecond = 1e9;

// Smallest multiple of step that is not below length, at least one step.
qint64 wholeSteps(qint64 length, qint64 step)
{
    const qint64 steps = length / step + (length % step != 0);
    return std::max<qint64>(1, steps) * step;
}

} // namespace

qint64 coveringNanoseconds(double seconds)
{
    // The products of decimal fractions miss whole numbers by a few units in the last place; only
    // what is more than that counts as a begun nanosecond.
    const double exact = seconds * NanosecondsPerSecond;
    const double covering = std::ceil(exact - std::max(1.0, exact) * 1e-12);
    if (!(covering < double(EndlessNanoseconds)))
        return EndlessNanoseconds;
    return std::max<qint64>(0, qint64(covering));
}

void BurstSchedule::arm(qint64 now)
{
    m_nNextTick = now;
    m_nBusyUntil = now;
}

bool BurstSchedule::trigger(qint64 now, qint64 duration)
{
    if (now < m_nBusyUntil)
        return false;

    m_nBusyUntil = now + duration;
    return true;
}

qint64 BurstSchedule::timerBursts(qint64 interval, qint64 duration, qint64 now)
{
    if (m_nNextTick < m_nBusyUntil)
        m_nNextTick += wholeSteps(m_nBusyUntil - m_nNextTick, interval);
    if (m_nNextTick > now)
        return 0;

    const qint64 spacing = wholeSteps(duration, interval);
    const qint64 repeats = (now - m_nNextTick) / spacing;
    const qint64 last = m_nNextTick + repeats * spacing;
    m_nBusyUntil = last + duration;
    m_nNextTick = last + interval;
    return 1 + repeats;
}
