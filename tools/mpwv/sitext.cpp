// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "sitext.h"

#include <cmath>

namespace {

const char* const Letters[] = {"p", "n", "µ", "m", "", "k", "M", "G"};
const int FirstPower = -4;
const int LastPower = 3;

// Here even the largest prefix leaves more than three digits before the point.
const double OutOfPrefixes = 1e12;

QString letterOf(int power)
{
    return QString::fromUtf8(Letters[power - FirstPower]);
}

int powerOf(double magnitude)
{
    if (!std::isfinite(magnitude) || magnitude == 0)
        return 0;
    const double power = std::floor(std::log10(std::fabs(magnitude)) / 3.0 + 1e-12);
    return static_cast<int>(qBound(double(FirstPower), power, double(LastPower)));
}

double factorOf(int power)
{
    return std::pow(1000.0, power);
}

} // namespace

SiPrefix siPrefix(double magnitude)
{
    const int power = powerOf(magnitude);
    return {factorOf(power), letterOf(power)};
}

QString trimmedNumber(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    if (text == QLatin1String("-0"))
        return QStringLiteral("0");
    return text.replace(QLatin1Char('-'), QStringLiteral("−"));
}

QString siText(double value, const QString& unit)
{
    if (std::isfinite(value) && std::fabs(value) >= OutOfPrefixes)
        return QString::number(value, 'e', 3).replace(QLatin1Char('-'), QStringLiteral("−")) +
               QLatin1Char(' ') + unit;
    int power = powerOf(value);
    // Rounding to three decimals may carry into the next prefix.
    if (std::isfinite(value) && power < LastPower &&
        std::round(std::fabs(value) / factorOf(power) * 1000.0) >= 1e6)
        ++power;
    return trimmedNumber(value / factorOf(power), 3) + QLatin1Char(' ') + letterOf(power) + unit;
}
