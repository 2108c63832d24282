// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpicall.h"

/// What was made of the number at a place in a message.
struct ScpiNumberResult
{
    int end = 0;         ///< position behind the number and its unit
    int errorNumber = 0; ///< standard number of what is wrong with it; 0 for nothing
};

/// Reads the decimal number, with an optional unit, that begins at @p begin of @p text into
/// @p parameter (kind, text as sent, value in the base unit, base unit). Units are HZ, S, V, VPP,
/// OHM, A, DEG and PCT, with the usual multipliers ("10 kHz", "5us"); M is mega before HZ and OHM
/// and milli elsewhere. The value is always finite: beyond the range of a double it is the error
/// -222.
ScpiNumberResult readScpiNumber(const QByteArray& text, int begin, ScpiParameter& parameter);

/// Reads the non-decimal number "#H1F", "#Q17" or "#B11" that begins at @p begin likewise.
ScpiNumberResult readScpiRadixNumber(const QByteArray& text, int begin, ScpiParameter& parameter);
