// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// What the server does wrong on purpose, on every connection alike. Counts begin anew with each
/// connection; a negative count means never.
struct FaultPlan
{
    bool noAccept = false; ///< the port is open, but nobody takes the connection
    bool refuse = false;   ///< the port is taken and closed: connections are refused
    bool noReply = false;  ///< commands are executed, replies withheld
    bool rubbish = false;  ///< replies are random bytes of random length instead
    int slowMs = 0;        ///< milliseconds before a reply, and between its pieces
    int pieces = 1;        ///< a reply leaves in as many pieces

    qint64 closeAfter = -1;     ///< the connection is closed once so many bytes were received
    qint64 halfCloseAfter = -1; ///< likewise, but the server goes on reading and executing
    qint64 closeAt = -1;        ///< closed when the command of this number, from 1, is complete;
                                ///< it is not executed
    qint64 halfCloseAt = -1;    ///< likewise, but executed, without its reply
};

/// Adds the faults of @p text, joined by commas ("slow=50,split=3"), to @p plan. Returns what is
/// wrong with it, naming the fault, or an empty text; @p plan then has all of them.
QString addFaults(const QString& text, FaultPlan& plan);

/// One line for each fault: its form and what it does.
QStringList faultDescriptions();
