// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backoff.h"
#include "keypadprotocol.h"

#include <QLocalSocket>

/// A connection to the host's keypad. It lives in a thread with an event loop, never blocks, and
/// connects anew by itself when the host has gone. What is sent while there is none is dropped:
/// keys that nobody got must not arrive later.
class KeypadClient : public QObject
{
    Q_OBJECT

public:
    explicit KeypadClient(const QString& socketPath, QObject* parent = nullptr);
    ~KeypadClient() override;

    /// Begins to connect, and to connect again.
    void start();

    /// Ends the connection for good.
    void stop();

    /// Whether the host has greeted.
    bool isConnected() const { return m_bConnected; }

    /// Why there is no connection; empty while there is one and before the first attempt.
    QString goneReason() const { return m_strReason; }

    /// Key codes as in frontpanelkeys.h and Qt::Key. False while there is no connection.
    bool press(int code);
    bool release(int code);

    /// Detents, clockwise positive; any number but 0, sent in as many commands as it takes.
    bool turn(int detents);

    /// Asks what is on the screen; described() answers.
    bool describe();

Q_SIGNALS:
    void connected(const QString& hostVersion);

    /// As InstrumentClient::gone().
    void gone(const QString& reason);

    void described(const Keypad::ScreenDescription& screen);

    /// The host refused a command.
    void refused(const QString& reason);

private:
    void connectNow();
    bool send(const Keypad::Command& command);
    void readLines();
    void takeReply(const Keypad::Reply& reply);
    void drop(const QString& reason);

    QString m_strPath;
    QLocalSocket m_socket;
    Backoff m_backoff;
    Keypad::LineBuffer m_lines{Keypad::MaxReplyBytes};
    bool m_bStarted = false;
    bool m_bConnected = false;
    QString m_strReason;
};
