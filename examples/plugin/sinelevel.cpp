// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "sinelevel.h"

#include <cmath>

double effectiveVolts(double amplitude)
{
    return amplitude / (2 * std::sqrt(2.0));
}

double powerDbm(double amplitude, double ohms)
{
    const double volts = effectiveVolts(amplitude);
    const double milliwatt = 1e-3;
    return 10 * std::log10(volts * volts / ohms / milliwatt);
}
