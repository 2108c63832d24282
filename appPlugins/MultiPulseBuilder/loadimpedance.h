// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "apptypes.h"

/// What stands at channel 1's output; the value is the index of the load choice.
enum class LoadImpedance : Uint16 { Ohm50 = 0, HighZ = 1 };

/// Resistance of a load in ohms, as the setup document stores it and the instrument is told.
inline int loadOhms(LoadImpedance load)
{
    return load == LoadImpedance::HighZ ? 10000 : 50;
}

/// The load that a stored resistance stands for: up to 100 ohms the 50-ohm load.
inline LoadImpedance loadFromOhms(int ohms)
{
    return ohms > 100 ? LoadImpedance::HighZ : LoadImpedance::Ohm50;
}
