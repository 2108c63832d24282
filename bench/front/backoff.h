// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>

/// Asks for another attempt to connect after a while that grows from attempt to attempt, so that a
/// peer that comes back is found soon and one that stays away costs little.
class Backoff : public QObject
{
    Q_OBJECT

public:
    static const int FirstMs = 100;
    static const int LongestMs = 2000;

    explicit Backoff(QObject* parent = nullptr);

    /// Sends due() once, after the while.
    void wait();

    /// The peer is there: the next while is the shortest again, and nothing is due.
    void reset();

Q_SIGNALS:
    void due();

private:
    QTimer m_timer;
    int m_nNextMs = FirstMs;
};
