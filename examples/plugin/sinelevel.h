// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// What a sine of @p amplitude volts peak-to-peak means.
/// @{
double effectiveVolts(double amplitude);
/// Power in @p ohms, in decibels above a milliwatt.
double powerDbm(double amplitude, double ohms);
/// @}
