// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "stepcount.h"

#include <QDebug>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace appPlugins {

namespace {

bool isDigitAt(const QString& text, int index)
{
    return index < text.size() && text.at(index) >= QLatin1Char('0') &&
           text.at(index) <= QLatin1Char('9');
}

bool beginsLikeNumber(const QString& text)
{
    return isDigitAt(text, text.startsWith(QLatin1Char('-')) ? 1 : 0);
}

} // namespace

long long stepCount(double value, double resolution)
{
    const double steps = value * std::pow(10, std::log10(1 / resolution));
    // An infinite count has no digits to read back.
    if (std::isinf(steps))
        return steps > 0 ? std::numeric_limits<long long>::max()
                         : std::numeric_limits<long long>::min();

    // The longest double has 309 digits before the point.
    char text[400];
    std::snprintf(text, sizeof text, "%.0lf", steps);
    return std::strtoll(text, nullptr, 10);
}

int shownDecimals(double resolution, double times)
{
    return static_cast<int>(std::log10(1 / resolution) + std::log10(times));
}

long long addSteps(long long value, long long steps)
{
    long long sum = 0;
    if (!__builtin_add_overflow(value, steps, &sum))
        return sum;
    return steps > 0 ? std::numeric_limits<long long>::max()
                     : std::numeric_limits<long long>::min();
}

long long tenToThe(int exponent)
{
    if (exponent > std::numeric_limits<long long>::digits10)
        return std::numeric_limits<long long>::max();

    long long power = exponent < 0 ? 0 : 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

long long typedSteps(const QString& typed, int decimals, long long fallback)
{
    QString digits = typed;
    if (!beginsLikeNumber(digits))
        return fallback;

    const int point = digits.indexOf(QLatin1Char('.'));
    int shift = decimals;
    if (point >= 0) {
        digits.remove(point, 1);
        shift -= digits.size() - point;
        qDebug() << "normalize"
                 << "shift" << shift << typed;
    }
    if (shift < 0)
        digits.chop(-shift);
    else
        digits.append(QString(shift, QLatin1Char('0')));
    // All of it was finer than a step.
    if (!beginsLikeNumber(digits))
        return 0;

    bool ok = false;
    const long long steps = digits.toLongLong(&ok, 10);
    return ok ? steps : std::numeric_limits<long long>::max();
}

} // namespace appPlugins
