// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scpifixture.h"
#include "server.h"
#include "serverclock.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

/// A server on any free port round a small instrument, with its transcript in memory.
class ServerFixture
{
public:
    explicit ServerFixture(const FaultPlan& faults = FaultPlan(), quint32 seed = 1)
        : m_opened(log.open(QIODevice::ReadWrite))
        , m_writer(log)
        , server({device.instrument, m_clock, faults, seed, &m_writer})
    {
        if (!m_opened || !server.open(0))
            qFatal("no server");
    }

    /// The transcript so far, without times and title: "1 > *OPC?\n" a line.
    QList<QByteArray> transcript() const
    {
        QList<QByteArray> lines = log.data().chopped(1).split('\n').mid(1);
        for (QByteArray& line : lines)
            line = line.mid(line.indexOf(' ') + 1);
        return lines;
    }

    ScpiFixture device;
    QBuffer log;

private:
    bool m_opened;
    ServerClock m_clock;
    TranscriptWriter m_writer;

public:
    InstrumentServer server;
};

/// A client of that server, with everything that it received, and the pieces in which it came.
class Client
{
public:
    explicit Client(const ServerFixture& fixture)
    {
        QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this] {
            pieces.append(socket.readAll());
            received += pieces.last();
        });
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), fixture.server.port());
    }

    void send(const QByteArray& bytes)
    {
        if (socket.state() != QAbstractSocket::ConnectedState)
            QSignalSpy(&socket, &QTcpSocket::connected).wait();
        socket.write(bytes);
        socket.flush();
    }

    bool isConnected() const { return socket.state() == QAbstractSocket::ConnectedState; }

    QTcpSocket socket;
    QByteArray received;
    QList<QByteArray> pieces;
};
