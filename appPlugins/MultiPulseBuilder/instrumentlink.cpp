// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentlink.h"

InstrumentLink::InstrumentLink(const QHostAddress& host, quint16 port)
    : m_host(host)
    , m_nPort(port)
{}

bool InstrumentLink::connectToInstrument()
{
    m_socket.connectToHost(m_host, m_nPort, QIODevice::ReadWrite);
    return m_socket.waitForConnected(TimeoutMs);
}

// Where there is no connection, or none any more, the library would complain in the log.
bool InstrumentLink::isConnected() const
{
    return m_socket.state() == QAbstractSocket::ConnectedState;
}

bool InstrumentLink::send(const QByteArray& command)
{
    if (!isConnected())
        return false;
    m_socket.write(command);
    return m_socket.waitForBytesWritten(TimeoutMs);
}

bool InstrumentLink::sendAll(const QVector<QByteArray>& commands, QByteArray& failed)
{
    for (const QByteArray& command : commands) {
        if (!send(command)) {
            failed = command;
            return false;
        }
    }
    return true;
}

QByteArray InstrumentLink::waitForReply()
{
    if (isConnected())
        m_socket.waitForReadyRead(TimeoutMs);
    return m_socket.isOpen() ? m_socket.readAll() : QByteArray();
}

QByteArray InstrumentLink::confirm(const QByteArray& query)
{
    send(query);
    return waitForReply();
}

void InstrumentLink::close()
{
    m_socket.close();
}

QString InstrumentLink::connectWarning() const
{
    return QStringLiteral("TcpSocket connect error! port:%1, reason:%2")
        .arg(m_nPort)
        .arg(errorString());
}
