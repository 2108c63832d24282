// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QQueue>

/// Cuts one client's byte stream into program messages, however the bytes arrive. A line feed ends
/// a message unless it lies inside the counted bytes of a definite-length block; a quoted string
/// does not protect it, so that a forgotten quote costs one message and not all that follow.
/// Messages of nothing but white space are dropped.
class ScpiFramer
{
public:
    /// Longest message in bytes, its line feed not counted. A longer one is dropped whole, up to
    /// its line feed, and reported as an overrun; no more than this is ever held of a message.
    static constexpr int MaxMessageLength = 65536;

    struct Message
    {
        QByteArray bytes;       ///< without the line feed; empty for an overrun
        bool isOverrun = false; ///< it was longer than MaxMessageLength
    };

    /// Takes in the next piece of the stream.
    void append(const QByteArray& bytes);

    /// Moves the oldest complete message into @p message; false when there is none.
    bool next(Message& message);

private:
    enum State { Header, Gap, Parameter, Quoted, BlockStart, BlockLength, BlockData };

    void take(char c);
    void advance(char c);
    void advanceOutside(char c);
    void advanceBlockStart(char c);
    void advanceBlockLength(char c);
    void finish();

    State m_state = Header;
    char m_quote = 0;
    bool m_bHeaderSeen = false; ///< this message unit has its first character
    int m_nLengthDigits = 0;    ///< digits of the block's length still to come
    qint64 m_nBlockBytes = 0;   ///< bytes of the block still to come, once its length is read
    Message m_current;
    QQueue<Message> m_complete;
};
