// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Turns the signals SIGINT and SIGTERM into a Qt signal, from its construction to the end of the
/// process. One instance in a process.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject* parent = nullptr);

Q_SIGNALS:
    void endRequested();

private:
    void drain();

    QSocketNotifier m_notifier;
};
