// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cursorreadout.h"

#include "sitext.h"

#include <cmath>

namespace {

const int Decimals = 6;

QString secondsText(double seconds)
{
    return preciseText(seconds, QStringLiteral("s"));
}

QString voltsText(double volts)
{
    // Levels come from 16 bits: what is smaller than that is rounding.
    const double finest = 1e-7;
    return preciseText(std::round(volts / finest) * finest, QStringLiteral("V"));
}

} // namespace

QString preciseText(double value, const QString& unit)
{
    const SiPrefix prefix = siPrefix(value);
    return trimmedNumber(value / prefix.factor, Decimals) + QLatin1Char(' ') + prefix.letter + unit;
}

CursorReadout readCursors(const OutputTrace& trace, double first, double second)
{
    const double times[] = {first, second};
    CursorReadout readout;
    for (int i = 0; i < 2; ++i) {
        readout.time[i] = secondsText(times[i]);
        readout.volts[i] = voltsText(trace.voltsAt(times[i]));
    }
    const double difference = second - first;
    readout.timeDifference = secondsText(difference);
    readout.frequency = difference == 0
                            ? QStringLiteral("–")
                            : preciseText(1 / std::fabs(difference), QStringLiteral("Hz"));
    readout.voltsDifference = voltsText(trace.voltsAt(second) - trace.voltsAt(first));
    return readout;
}
