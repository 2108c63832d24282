// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "server.h"

InstrumentServer::InstrumentServer(const ServerContext& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
{
    connect(&m_server, &QTcpServer::newConnection, this, &InstrumentServer::takeConnections);
}

bool InstrumentServer::open(quint16 port)
{
    if (m_context.faults.refuse)
        // As a listening server binds: connections that ended lately do not hold the port.
        return m_closedPort.bind(QHostAddress(QHostAddress::LocalHost), port,
                                 QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint);
    if (!m_server.listen(QHostAddress(QHostAddress::LocalHost), port))
        return false;
    if (m_context.faults.noAccept)
        m_server.pauseAccepting();
    return true;
}

quint16 InstrumentServer::port() const
{
    return m_context.faults.refuse ? m_closedPort.localPort() : m_server.serverPort();
}

QString InstrumentServer::errorString() const
{
    return m_context.faults.refuse ? m_closedPort.errorString() : m_server.errorString();
}

void InstrumentServer::takeConnections()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        auto* connection = new ServerConnection(socket, ++m_nConnections, m_context, this);
        ++m_nClients;
        connect(connection, &ServerConnection::finished, this, &InstrumentServer::forgetClient);
        connect(connection, &ServerConnection::finished, connection, &QObject::deleteLater);
    }
}

void InstrumentServer::forgetClient()
{
    --m_nClients;
}
