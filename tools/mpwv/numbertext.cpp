// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "input.h"

#include <QLatin1Char>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

const int SmallestExponent = -12;
const int LargestExponent = 9;

// Here even the largest prefix leaves more than three digits before the point.
const double OutOfPrefixes = 1e12;

int prefixExponent(QChar letter)
{
    switch (letter.unicode()) {
    case 'n':
        return -9;
    case 'u':
    case 0x00B5: // micro sign
    case 0x03BC: // the Greek letter
        return -6;
    case 'm':
        return -3;
    case 'k':
    case 'K':
        return 3;
    case 'M':
        return 6;
    case 'G':
        return 9;
    default:
        return 0;
    }
}

// The power of a thousand in front of which the value has one to three digits.
int engineeringExponent(double value)
{
    if (value == 0)
        return 0;
    const double power = std::floor(std::log10(std::fabs(value)) / 3) * 3;
    return static_cast<int>(
        std::min(std::max(power, double(SmallestExponent)), double(LargestExponent)));
}

QString mantissaText(double value, int exponent)
{
    return QString::number(value / std::pow(10.0, exponent), 'f', 3);
}

QString prefixText(int exponent)
{
    const QString prefixes = QStringLiteral("pnum kMG");
    return prefixes.mid((exponent - SmallestExponent) / 3, 1).trimmed();
}

} // namespace

QString prefixHint()
{
    return QStringLiteral("n, u, m, k, M and G may stand behind a number");
}

bool parseEngineering(const QString& text, double& value, const QString& unit)
{
    const bool hasUnit = !unit.isEmpty() && text.endsWith(unit);
    static const QRegularExpression form(
        QStringLiteral("\\A([+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+))(?:[eE]([+-]?[0-9]{1,3}))?"
                       "([nu\u00B5\u03BCmkKMG]?)\\z"));
    const QRegularExpressionMatch match = form.match(hasUnit ? text.chopped(unit.size()) : text);
    if (!match.hasMatch())
        return false;

    // The prefix joins the exponent, so that "3u" is the number that is written 3e-06.
    const QString letter = match.captured(3);
    const int prefix = letter.isEmpty() ? 0 : prefixExponent(letter.at(0));
    const int exponent = match.captured(2).toInt() + prefix;
    bool readable = false;
    const double read =
        (match.captured(1) + QLatin1Char('e') + QString::number(exponent)).toDouble(&readable);
    if (!readable || !std::isfinite(read))
        return false;
    value = read;
    return true;
}

QString engineeringText(double value, const QString& unit)
{
    if (!std::isfinite(value))
        return QString::number(value) + QLatin1Char(' ') + unit;
    if (std::fabs(value) >= OutOfPrefixes)
        return QString::number(value, 'e', 3) + QLatin1Char(' ') + unit;

    int exponent = engineeringExponent(value);
    QString mantissa = mantissaText(value, exponent);
    // Rounding to three decimals may have made a thousand of it.
    if (mantissa.midRef(value < 0 ? 1 : 0).startsWith(QLatin1String("1000.")) &&
        exponent < LargestExponent) {
        exponent += 3;
        mantissa = mantissaText(value, exponent);
    }
    return mantissa + QLatin1Char(' ') + prefixText(exponent) + unit;
}
