// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputtrace.h"

#include <QString>

/// What two cursors on a trace read, as texts: "1.25 µs", "−2 V".
struct CursorReadout
{
    QString time[2];
    QString volts[2];
    QString timeDifference; ///< second less first
    QString frequency;      ///< 1 / time difference, without a sign; "–" where that is 0
    QString voltsDifference;
};

/// Reads the trace at two times, seconds since the trigger.
CursorReadout readCursors(const OutputTrace& trace, double first, double second);

/// A number with a prefix and @p unit, with six decimals at most: enough for a sample of the
/// longest trace.
QString preciseText(double value, const QString& unit);
