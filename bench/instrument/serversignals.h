// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Turns the signals SIGINT and SIGTERM into a Qt signal, from its construction to the end of the
/// process. One instance in a process.
class ServerSignals : public QObject
{
    Q_OBJECT

public:
    explicit ServerSignals(QObject* parent = nullptr);

signals:
    void endRequested();

private slots:
    void drain();

private:
    QSocketNotifier m_notifier;
};
