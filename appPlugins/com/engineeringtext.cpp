// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "engineeringtext.h"

#include "dbutils.h"

#include <algorithm>

namespace {

double prefixFactor(QChar letter)
{
    switch (letter.unicode()) {
    case 'n':
        return 1e-09;
    case 'u':
        return 1e-06;
    case 'm':
        return 0.001;
    case 'K':
        return 1000;
    case 'M':
        return 1000000;
    case 'G':
        return 1000000000;
    default:
        return 0;
    }
}

bool isPrefix(QChar letter)
{
    return prefixFactor(letter) != 0;
}

} // namespace

double engineeringTextToDouble(const QString& text, double resolution)
{
    const auto prefix = std::find_if(text.cbegin(), text.cend(), isPrefix);
    if (prefix == text.cend())
        return DBRound(text.toDouble(), resolution);

    QString number = text;
    number.remove(int(prefix - text.cbegin()), 1);
    return DBRound(number.toDouble() * prefixFactor(*prefix), resolution);
}
