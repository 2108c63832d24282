// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "engineeringtext.h"

#include <cmath>
#include <cstddef>
#include <cstdlib>

// A cell text as a stranger typed it: whatever comes out lies on the grid of the resolution, or is
// too large to have one.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const double resolution = 1e-9;
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const double value = engineeringTextToDouble(text, resolution);
    const double steps = value / resolution;
    if (std::fabs(steps) < 1e9 && std::fabs(steps - std::round(steps)) > 1e-5)
        std::abort();
    return 0;
}
