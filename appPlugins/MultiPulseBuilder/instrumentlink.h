// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTcpSocket>
#include <QVector>

/// A blocking connection to the instrument's SCPI command server, opened for one operation and
/// closed at its end. Each wait lasts 30 seconds at most.
class InstrumentLink
{
public:
    static const quint16 DefaultPort = 30000;
    static const int TimeoutMs = 30000;

    /// Nothing is connected yet.
    explicit InstrumentLink(const QHostAddress& host = QHostAddress(QHostAddress::LocalHost),
                            quint16 port = DefaultPort);

    /// Connects for reading and writing. False when nobody answers; errorString() says why.
    bool connectToInstrument();

    /// Sends @p command as it is and waits until it has left. False when it has not; at once, and
    /// with nothing logged, where there is no connection.
    bool send(const QByteArray& command);

    /// Sends the commands in order up to the first that fails, which is left in @p failed
    /// (unchanged when all were sent). Returns whether all were sent. A sequence that ends with
    /// confirm() ends with it after a failure too: this call does not do that.
    bool sendAll(const QVector<QByteArray>& commands, QByteArray& failed);

    /// Waits for a reply and returns what has come, in one read; empty when nothing came.
    QByteArray waitForReply();

    /// Sends @p query and waits for its reply, which is returned for information only: it tells
    /// that the instrument has worked through everything sent before.
    QByteArray confirm(const QByteArray& query);

    /// Ends the connection; nothing where there is none. Forgets errorString().
    void close();

    QString errorString() const { return m_socket.errorString(); }
    QAbstractSocket::SocketError error() const { return m_socket.error(); }

    /// The text of the warning for a connection that could not be made.
    QString connectWarning() const;

private:
    bool isConnected() const;

    QHostAddress m_host;
    quint16 m_nPort;
    QTcpSocket m_socket;
};
