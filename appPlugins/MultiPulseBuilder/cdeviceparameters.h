// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// The device's parameters in one door: its table of models and the generators of its waveforms.
#include "devicetable.h"
#include "pulsesynthesis.h"
