// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

/// Conversions of doubles to 32-bit counts that mean the same on every processor: not a number
/// gives 0, what lies outside the range gives the nearest count, fractions are cut off.
inline qint32 toCount(double value)
{
    if (std::isnan(value))
        return 0;
    const double low = std::numeric_limits<qint32>::min();
    const double high = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(std::max(value, low), high));
}

/// As toCount(), for a sum of counts.
inline qint32 toCount(qint64 value)
{
    const qint64 low = std::numeric_limits<qint32>::min();
    const qint64 high = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(std::max(value, low), high));
}
