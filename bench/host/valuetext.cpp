// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "valuetext.h"

#include <QStringList>

#include <cmath>

namespace {

const int ShortDecimals = 3;
const int MostDecimals = 6;

struct Scaled
{
    double value;
    QString prefix;
};

// What would be rounded up to a thousand of its prefix is one of the next.
Scaled scaled(double value, int decimals)
{
    static const QStringList prefixes{QStringLiteral("n"), QStringLiteral("µ"), QStringLiteral("m"),
                                      QString(),           QStringLiteral("k"), QStringLiteral("M"),
                                      QStringLiteral("G")};
    const int base = 3;
    // Beyond these digits there is but the rounding of doubles.
    const double rounded = QString::number(value, 'g', 12).toDouble();
    if (rounded == 0)
        return {0, QString()};
    const int thousands = static_cast<int>(std::floor(std::log10(std::fabs(rounded)) / 3));
    int index = qBound(0, base + thousands, prefixes.size() - 1);
    const auto at = [&](int place) { return rounded / std::pow(1000.0, place - base); };
    const double shown = QString::number(at(index), 'f', decimals).toDouble();
    if (std::fabs(shown) >= 1000 && index < prefixes.size() - 1)
        ++index;
    return {at(index), prefixes.at(index)};
}

QString withUnit(const Scaled& scaled, const QString& number, const QString& unit)
{
    QString text = number + QLatin1Char(' ') + scaled.prefix + unit;
    return text.replace(QLatin1Char('-'), QChar(0x2212));
}

QString trimmed(QString number, int fewest)
{
    const int point = number.indexOf(QLatin1Char('.'));
    while (number.size() > point + 1 + fewest && number.endsWith(QLatin1Char('0')))
        number.chop(1);
    if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    return number;
}

} // namespace

QString valueText(double value, const QString& unit, int fewest)
{
    if (std::isinf(value))
        return QStringLiteral("∞");
    const Scaled parts = scaled(value, MostDecimals);
    return withUnit(parts, trimmed(QString::number(parts.value, 'f', MostDecimals), fewest), unit);
}

QString shortValueText(double value, const QString& unit)
{
    if (std::isinf(value))
        return QStringLiteral("∞");
    const Scaled parts = scaled(value, ShortDecimals);
    return withUnit(parts, QString::number(parts.value, 'f', ShortDecimals), unit);
}
