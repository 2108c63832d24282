// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// Default, limits and resolution of every parameter of a pulse train, in base units (pulses,
/// seconds). The window, the setup document and the shell tool all read them here.
struct ParameterRange
{
    double defaultValue;
    double maximum;
    double minimum;
    double resolution;
};

const ParameterRange PulseCountRange = {2, 30, 2, 1};
const ParameterRange PulseWidthRange = {2e-06, 0.00015, 2e-08, 1e-09};
const ParameterRange PulseGapRange = {1e-05, 0.00015, 2e-08, 1e-09};
const ParameterRange TriggerDelayRange = {1e-05, 0.00015, 1e-06, 1e-10};
const ParameterRange TriggerTimerRange = {0.001, 500, 2e-06, 1e-07};

/// Volts; the limits of the levels depend on the instrument and the load.
const double LevelResolution = 0.0001;

/// Texts of a new row of the pulse table: the defaults of width and gap.
const char DefaultWidthText[] = "2.000u";
const char DefaultGapText[] = "10.000u";
