// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputtrace.h"

/// Which part of a trace is seen: pure arithmetic, in seconds and volts.
struct TraceView
{
    double from = 0;
    double to = 1e-3;
    double low = -1;
    double high = 1;

    double seconds() const { return to - from; }
    double volts() const { return high - low; }

    /// All of @p trace from the trigger on, with a margin; of a trace without samples the first
    /// millisecond at its idle level.
    static TraceView all(const OutputTrace& trace);

    /// Makes @p factor times as much visible; what is at @p time stays where it is. Within what
    /// doubles can tell apart and a hundred times @p whole.
    void zoomTime(double factor, double time, const TraceView& whole);
    void zoomVolts(double factor, double level, const TraceView& whole);

    /// Moves by a share of what is visible, and not away from @p whole.
    void pan(double share, const TraceView& whole);
};
