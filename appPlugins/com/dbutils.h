// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

/// @file
/// Tolerant rounding and comparison of doubles. Every range test, rounding and equality test on
/// real values goes through these functions, so that a value that prints as a limit passes the
/// limit's test and a half step rounds the same way on every platform. No state, no side effects.

/// Rounds @p value to a multiple of @p step (> 0), halves away from zero; a value that lies a hair
/// (1e-15 of itself) below a half step counts as the half step. A value that is not finite, or
/// whose step count is not, is returned as it is. (roundTiesToAway of IEEE 754, with that lift.)
APPPLUGINS_EXPORT double DBRound(double value, double step);

/// True when the two values are the same: within 1e-15 of each other while both magnitudes are
/// below 1e13; from there on when their ratio lies strictly between 0.99999999999995
/// and 1.00000000000005. False where either is not finite.
APPPLUGINS_EXPORT bool DBSameValue(double value, double trialValue);

/// @p limit plus a safety margin of 1e-15 of its magnitude, at least 1e-15: the upper bound to test
/// against.
APPPLUGINS_EXPORT double limitPlusSafety(double limit);

/// @p limit minus the margin of limitPlusSafety(): the lower bound to test against.
APPPLUGINS_EXPORT double limitMinusSafety(double limit);
