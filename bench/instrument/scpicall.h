// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

#include <functional>

/// One parameter of a program message unit, as it was sent.
struct ScpiParameter
{
    enum Kind {
        Word,   ///< character data: ON, TIMER, MINimum
        Number, ///< decimal numeric data, with an optional unit suffix
        String, ///< quoted string data; text holds the content without the quotes
        Block   ///< arbitrary block data; text holds its bytes
    };
    Kind kind = Word;
    QByteArray text;
    double number = 0; ///< of a Number, in the base unit: the suffix is applied
    QByteArray unit;   ///< of a Number sent with a suffix: the base unit, such as "HZ"
};

/// One command or query on its way through the instrument: what was asked, and what came of it.
struct ScpiCall
{
    QVector<int>
        suffixes; ///< numeric suffix of each node that has one in the pattern; 1 by default
    QVector<ScpiParameter> parameters;
    bool isQuery = false;

    QByteArray reply;       ///< of a query, without line end
    int errorNumber = 0;    ///< standard number (-222 ...) for the error queue; 0 for none
    QByteArray errorDetail; ///< appended to the standard text behind a semicolon; may be empty

    void fail(int number, const QByteArray& detail = QByteArray())
    {
        errorNumber = number;
        errorDetail = detail;
    }
};

/// A node of the command tree. The pattern is written in the usual notation: upper case for the
/// short form, brackets round optional nodes, '#' where a numeric suffix may stand:
/// "[SOURce#]:BURSt[:STATe]". An empty function means that the form does not exist (-113).
struct ScpiCommand
{
    const char* pattern;
    std::function<void(ScpiCall&)> set;
    std::function<void(ScpiCall&)> query;
};
