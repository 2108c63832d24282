// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// @file
/// Numbers and kinds of quantities.

/// Unsigned 16-bit integer; indices of choice components travel as this type.
using Uint16 = quint16;

/// Unsigned 32-bit integer; sizes and addresses of waveform memory, in samples.
using Uint32 = quint32;

/// Kind of a physical quantity. The base unit of each kind is the SI unit without prefix.
enum ENUM_UNIT_TYPE {
    UNIT_EMPTY = 0,     ///< a plain number
    UNIT_FREQUENCY = 1, ///< hertz
    UNIT_TIME = 2,      ///< seconds
    UNIT_PERCENT = 3,   ///< percent
    UNIT_RATE = 4,      ///< samples per second
    UNIT_PHASE = 5,     ///< degrees
    UNIT_VOLTAGE = 6,   ///< volts
    UNIT_POINTS = 7     ///< waveform points
};
