// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "serverconnection.h"

#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

/// The command server of an instrument: listens on 127.0.0.1 and gives every client a
/// ServerConnection. It works in the event loop of its thread.
class InstrumentServer : public QObject
{
    Q_OBJECT

public:
    explicit InstrumentServer(const ServerContext& context, QObject* parent = nullptr);

    /// Opens @p port, or any free one for 0; with the fault "refuse" it is held closed instead.
    /// False when that fails; errorString() says why.
    bool open(quint16 port);

    /// The port that was opened.
    quint16 port() const;
    QString errorString() const;

    /// Number of clients connected now.
    int clientCount() const { return m_nClients; }

private slots:
    void takeConnections();
    void forgetClient();

private:
    const ServerContext m_context;
    QTcpServer m_server;
    QTcpSocket m_closedPort; ///< holds the port of a server that refuses
    int m_nConnections = 0;
    int m_nClients = 0;
};
