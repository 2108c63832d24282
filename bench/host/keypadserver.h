// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"

#include <QLocalServer>
#include <QMap>

#include <functional>
#include <memory>

class KeyDriver;
class QLocalSocket;

/// The local socket to which front panels and scripts connect, for this user alone.
class KeypadServer : public QObject
{
    Q_OBJECT

public:
    using Describe = std::function<Keypad::ScreenDescription()>;

    /// Keys go to @p driver, which must live longer; @p describe tells what is on the screen.
    KeypadServer(KeyDriver& driver, Describe describe, const QString& version);
    ~KeypadServer() override;

    /// Listens on @p path. A socket that a killed host has left there is taken over; one that a
    /// running host listens on is not, and neither is another file. Returns what is wrong, or an
    /// empty text.
    QString listen(const QString& path);

private:
    struct Client
    {
        int source = 0;
        Keypad::LineBuffer lines{Keypad::MaxCommandBytes};
    };

    void acceptClient();
    void removeClient(QLocalSocket* socket);
    void readFrom(QLocalSocket* socket);
    void execute(QLocalSocket* socket, const QByteArray& line);
    void answerLater(QLocalSocket* socket, const std::function<QByteArray()>& makeLine);
    void answer(QLocalSocket* socket, const QByteArray& line);

    KeyDriver& m_driver;
    Describe m_describe;
    QString m_strVersion;
    QLocalServer m_server;
    QMap<QLocalSocket*, Client> m_clients;
    int m_nLastSource = 0;
};
