// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpicall.h"

#include <QByteArray>
#include <QVector>

/// One command or query of a program message, as it was written.
struct ScpiUnit
{
    QVector<QByteArray> nodes; ///< the header's mnemonics in upper case, suffix digits included;
                               ///< the only one of a common command begins with '*'
    bool isRooted = false;     ///< it began with a colon
    bool isQuery = false;
    QVector<ScpiParameter> parameters;
    int errorNumber = 0; ///< standard number of the syntax error in it, which voids it; 0 for none

    bool isCommon() const { return !nodes.isEmpty() && nodes.first().startsWith('*'); }
};

/// Takes a program message (without its line feed) apart at its semicolons. Empty units are left
/// out. A unit with a syntax error carries its number, and reading goes on behind the next
/// semicolon; nothing is executed and nothing of the command tree is known here.
QVector<ScpiUnit> parseScpiMessage(const QByteArray& message);
