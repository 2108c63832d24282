// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpiblock.h"

#include <QByteArray>
#include <QString>

class InstrumentLink;

/// Queries over a link to the instrument.

/// A longest reply of one line; what is longer is no reply to anything asked here.
const int MaxLineBytes = 64 * 1024;

/// Sends @p query, which ends in a line feed, and reads up to the line feed of the reply, in
/// however many pieces it comes. Returns an empty text and fills @p reply (without its line end),
/// or the reason, which names the query.
QString askLine(InstrumentLink& link, const QByteArray& query, QByteArray& reply);

/// As askLine(), for a reply that is a block and a line feed.
QString askBlock(InstrumentLink& link, const QByteArray& query, QByteArray& data);

/// As askLine(), for a reply that is one finite number.
QString askNumber(InstrumentLink& link, const QByteArray& query, double& number);

/// A command as it is shown to people: without its line end, safe for a terminal.
QString shownCommand(const QByteArray& command);
