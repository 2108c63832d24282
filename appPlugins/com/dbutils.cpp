// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dbutils.h"

#include <cmath>

namespace {

double safetyMargin(double limit)
{
    const double margin = std::fabs(limit) * 1e-13 / 100;
    return margin < 1e-15 ? 1e-15 : margin;
}

} // namespace

double DBRound(double value, double step)
{
    // Lifts values that lie a hair below a half step, as 0.00005 / 0.0001 does in binary.
    const double halfStepLift = 1.000000000000001;
    const double noOfSteps = (std::fabs(value) * halfStepLift + step * 0.5) / step;
    if (!std::isfinite(noOfSteps))
        return value;

    // Truncation stays in floating point: a step count of 2^31 or more has no place in a 32-bit
    // integer, and an integer conversion out of range differs between processors.
    const double rounded = std::trunc(noOfSteps) * step;
    return value < 0 ? -rounded : rounded;
}

bool DBSameValue(double value, double trialValue)
{
    if (std::fabs(value) < 1e13 && std::fabs(trialValue) < 1e13)
        return std::fabs(value - trialValue) <= 1e-15;

    const double ratio = value / trialValue;
    return ratio > 0.99999999999995 && ratio < 1.00000000000005;
}

double limitPlusSafety(double limit)
{
    return limit + safetyMargin(limit);
}

double limitMinusSafety(double limit)
{
    return limit - safetyMargin(limit);
}
