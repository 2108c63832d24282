// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpiframer.h"

#include <QByteArray>

class ScpiInstrument;

/// One client's conversation with an instrument: its input buffer, and the way to replies without
/// sockets. Several sessions may share an instrument, which must outlive them.
class ScpiSession
{
public:
    explicit ScpiSession(ScpiInstrument& instrument)
        : m_instrument(instrument)
    {}

    /// Takes in bytes in pieces of any size; nothing is executed yet.
    void append(const QByteArray& bytes) { m_framer.append(bytes); }

    /// Moves the oldest complete message into @p message; false when there is none.
    bool next(ScpiFramer::Message& message) { return m_framer.next(message); }

    /// Executes a message and returns its reply with line feed, or nothing. A message that was too
    /// long is the error -363.
    QByteArray execute(const ScpiFramer::Message& message);

    /// Takes in bytes, executes every message that they complete and returns the replies, one line
    /// each.
    QByteArray feed(const QByteArray& bytes);

private:
    ScpiInstrument& m_instrument;
    ScpiFramer m_framer;
};
