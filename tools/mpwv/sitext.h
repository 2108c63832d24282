// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Numbers in engineering notation as a drawing shows them: "2 µs", "12.5 kHz".

/// A power of 1000 and its prefix letter, from pico to giga; the letter is empty for 1.
struct SiPrefix
{
    double factor;
    QString letter;
};

/// The prefix with which a number of the given magnitude has one to three digits before the point;
/// the nearest one there is for what is smaller or larger, none for 0 and what is not finite.
SiPrefix siPrefix(double magnitude);

/// @p value with @p unit, a blank and the prefix between them: at most three decimals, no zeros at
/// the end; from a million millions on with an exponent instead. Numbers that are not finite appear
/// as "inf" and "nan".
QString siText(double value, const QString& unit);

/// @p value with at most @p decimals decimals, no zeros at the end and a true minus sign; never
/// minus zero.
QString trimmedNumber(double value, int decimals);
