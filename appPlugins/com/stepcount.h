// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QString>

/// @file
/// Arithmetic on whole resolution steps: the truth of every numeric parameter.
namespace appPlugins {

/// Steps of @p value (base unit) at @p resolution (base unit): printed as a whole number by the
/// formatter and read back, so that a value on the grid gives its exact count. A count beyond 64
/// bits saturates.
APPPLUGINS_EXPORT long long stepCount(double value, double resolution);

/// Decimals that a value at @p resolution shows in a prefix of the factor @p times, truncated
/// toward zero: log10(1 / resolution) + log10(times). Negative by the zeros that follow a count of
/// steps in a prefix that is finer than the resolution.
APPPLUGINS_EXPORT int shownDecimals(double resolution, double times);

/// @p value plus @p steps; saturates at the ends of 64 bits.
APPPLUGINS_EXPORT long long addSteps(long long value, long long steps);

/// Ten to the power of @p exponent as steps: 0 for a negative power, the largest count from 10^19
/// on.
APPPLUGINS_EXPORT long long tenToThe(int exponent);

/// What was typed, as steps: digits with at most one point and an optional "-" in front, in a
/// prefix that shows @p decimals; these are negative where the prefix is finer than the resolution.
/// Digits that are finer than a step are cut off, not rounded. A number that does not fit gives the
/// largest count; any other text gives @p fallback.
APPPLUGINS_EXPORT long long typedSteps(const QString& typed, int decimals, long long fallback);

} // namespace appPlugins
