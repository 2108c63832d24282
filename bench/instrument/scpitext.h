// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// The character classes of SCPI messages. Bytes above 127 belong to none of them.
namespace ScpiText {

/// White space: every control character but the line feed, which ends a message.
inline bool isBlank(char c)
{
    return static_cast<unsigned char>(c) <= 32 && c != '\n';
}

inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// May stand in a mnemonic or in character data, though not as the first character of one.
inline bool isWord(char c)
{
    return isLetter(c) || isDigit(c) || c == '_';
}

inline bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

/// @p text between double quotes, those within doubled.
inline QByteArray quoted(QByteArray text)
{
    return '"' + text.replace('"', "\"\"") + '"';
}

} // namespace ScpiText
