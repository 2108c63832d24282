// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "apptypes.h"

#include <cmath>

namespace appPlugins {

/// A normalised sample (-1 to 1) as the 16-bit word of the file: narrowed to single precision,
/// times 8191 times 4, truncated toward zero. A number that is not finite, as undefined levels
/// leave it behind, gives 0; a conversion out of range would differ between processors. Defined for
/// -65536 < sample < 65536.
inline quint16 sampleWord(double normalised)
{
    const double scaled = static_cast<double>(static_cast<float>(normalised)) * 8191.0 * 4.0;
    const bool inRange = std::fabs(scaled) < 2147483648.0;
    return static_cast<quint16>(static_cast<qint32>(inRange ? scaled : 0.0));
}

/// The word with its two bytes exchanged.
inline quint16 exchangedWord(quint16 word)
{
    return static_cast<quint16>((word << 8) | (word >> 8));
}

} // namespace appPlugins
