// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Where the triggers of a burst come from. A trigger by hand counts whatever is selected.
enum class BurstTrigger {
    Manual,   ///< by hand alone
    External, ///< edges of the selected slope at the trigger input
    Timer     ///< the internal timer
};

enum class EdgeSlope { Positive, Negative };

/// What both channels are triggered by.
struct TriggerSettings
{
    BurstTrigger source = BurstTrigger::Timer;
    EdgeSlope slope = EdgeSlope::Positive; ///< of the external trigger
    double timerInterval = 1e-3;           ///< seconds

    /// Whether an edge at the trigger input triggers.
    bool acceptsEdge(EdgeSlope edge) const
    {
        return source == BurstTrigger::External && edge == slope;
    }
};

/// A time that is never reached: the end of a burst without end.
const qint64 EndlessNanoseconds = Q_INT64_C(2305843009213693952);

/// Whole nanoseconds that cover @p seconds; EndlessNanoseconds for what is longer or not a number.
qint64 coveringNanoseconds(double seconds);

/// Decides for one channel which triggers begin a burst: those that find the channel at rest. All
/// times are nanoseconds of the caller's clock, which never goes back. Nothing runs by itself: what
/// the timer did meanwhile is computed when somebody asks, however many bursts that were.
class BurstSchedule
{
public:
    /// Comes to rest and waits for triggers from @p now on; the timer's first one is @p now itself.
    void arm(qint64 now);

    /// A single trigger. True when it begins a burst of @p duration; false when it comes during
    /// another burst and is lost.
    bool trigger(qint64 now, qint64 duration);

    /// Bursts of @p duration that a timer of @p interval (1 ns at least) began since the last call,
    /// up to and including @p now.
    qint64 timerBursts(qint64 interval, qint64 duration, qint64 now);

private:
    qint64 m_nNextTick = 0;
    qint64 m_nBusyUntil = 0;
};
