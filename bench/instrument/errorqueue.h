// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QQueue>

/// The instrument's error queue: first in, first out, with room for Capacity entries. An error that
/// finds it full takes the newest entry's place as -350, so that the first causes are kept.
class ErrorQueue
{
public:
    static constexpr int Capacity = 20;
    /// Longest text of an entry, quotes not counted; longer ones are cut.
    static constexpr int MaxTextLength = 255;
    static constexpr int QueueOverflow = -350;

    /// Appends an error with the standard text of @p number, and @p detail, if any, behind a
    /// semicolon. Characters of the detail that cannot be printed become dots.
    void push(int number, const QByteArray& detail = QByteArray());

    /// Takes the oldest entry out and returns it as a reply: the number, a comma and the quoted
    /// text; 0,"No error" when the queue is empty.
    QByteArray take();

    void clear() { m_entries.clear(); }
    bool isEmpty() const { return m_entries.isEmpty(); }
    int count() const { return m_entries.size(); }

    /// The standard text of an error number; that of its class for a number without one of its own.
    static QByteArray standardText(int number);

private:
    QQueue<QByteArray> m_entries;
};
