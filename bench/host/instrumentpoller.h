// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentstate.h"

#include <QObject>
#include <QTimer>

#include <functional>

class InstrumentClient;

/// Asks the instrument what it is set to, about twice a second, and sends it the few commands of
/// the host's own. It lives in a thread of its own: what it has is made by start() and gone after
/// stop(), both called in that thread.
///
/// Nothing is sent while commands are blocked, which is looked at before every message: the poll
/// waits for its next turn, a command is dropped.
class InstrumentPoller : public QObject
{
    Q_OBJECT

public:
    /// @p isBlocked tells from any thread whether commands are held back.
    InstrumentPoller(quint16 port, std::function<bool()> isBlocked);
    ~InstrumentPoller() override;

    void start();
    void stop();

    /// Triggers both channels.
    void trigger();

    /// Switches the output of channel 1 or 2.
    void setOutput(int channel, bool on);

Q_SIGNALS:
    /// Told at first and whenever something is different.
    void stateChanged(const InstrumentState& state);

private:
    using Reader = std::function<bool(const QByteArray&)>;

    void poll();
    void askNext();
    void ask(const QByteArray& query, const Reader& reader);
    void endRound(InstrumentState::Link link, const QString& reason);
    void command(const QByteArray& line);
    void handleGone(const QString& reason);
    void publish(const InstrumentState& state);

    quint16 m_nPort;
    std::function<bool()> m_isBlocked;
    InstrumentClient* m_pClient = nullptr;
    QTimer* m_pTimer = nullptr;
    int m_nStep = -1;   // of the round that is under way; none: -1
    QString m_strModel; // empty until a connection has told it
    InstrumentState m_round;
    InstrumentState m_state;
    bool m_bPublished = false;
};
