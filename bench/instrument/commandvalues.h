// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpicall.h"

#include <QByteArray>

#include <initializer_list>

/// Reading parameters of commands and writing replies. The read functions take the only parameter
/// of a call; they return false and fail the call when there is none (-109), more than one (-108),
/// or one of the wrong kind (-104).

/// Whether @p text is the short form (the capitals) or the long form of @p mnemonic, in any case:
/// "pos" and "Positive" are "POSitive".
bool isMnemonic(const QByteArray& text, const char* mnemonic);

/// What a number may be, in its base unit.
struct NumberRange
{
    double minimum;
    double maximum;
    double defaultValue;
    bool mayBeInfinite = false; ///< INFinity is a value too, above the maximum
    const char* unit = "";      ///< base unit that may be sent: "HZ"; "VPP" takes "V" too
};

/// A number within the range, or one of the words MINimum, MAXimum, DEFault and INFinity; -222 for
/// what is out of range, not-a-number words included; -131 for a unit that is not the range's, -138
/// for one where the range has none.
bool readNumber(ScpiCall& call, const NumberRange& range, double& value);

/// ON and OFF, or a number that is on unless it rounds to 0; -138 for a number with a unit.
bool readSwitch(ScpiCall& call, bool& on);

/// Quoted text.
bool readText(ScpiCall& call, QByteArray& text);

/// Index of the mnemonic that the parameter is, or -1 with the call failed (-224 for another word).
int readMnemonic(ScpiCall& call, std::initializer_list<const char*> mnemonics);

/// Fails the call (-108) if it has parameters.
bool expectNoParameter(ScpiCall& call);

/// Replies @p value, or with MINimum, MAXimum or DEFault as parameter that value of the range.
void replyNumber(ScpiCall& call, const NumberRange& range, double value);

/// Replies @p text, unless the call has parameters.
void replyPlain(ScpiCall& call, const QByteArray& text);

/// The shortest decimal text that gives the same number when read back; 9.9E+37 with its sign for
/// an infinite number, 9.91E+37 for one that is not a number.
QByteArray numberText(double value);

/// "EXT" for "EXTernal".
QByteArray shortForm(const char* mnemonic);
