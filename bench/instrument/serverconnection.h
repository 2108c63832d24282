// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faultplan.h"
#include "scpisession.h"
#include "transcript.h"

#include <QObject>
#include <QQueue>
#include <QTimer>

#include <random>

class QTcpSocket;
class ScpiInstrument;
class ServerClock;

/// What all connections of a server share; borrowed.
struct ServerContext
{
    ScpiInstrument& instrument;
    ServerClock& clock;
    FaultPlan faults;
    quint32 seed = 1;                       ///< with the connection's number, of its random choices
    TranscriptWriter* transcript = nullptr; ///< null for none
};

/// One client's connection: executes its messages in order, sends each reply at once in one piece,
/// and does wrong what the faults ask. A client that does not read its replies is not read from
/// either once MaxWaitingBytes are waiting for it. Messages that were complete when the client
/// closed are still executed.
class ServerConnection : public QObject
{
    Q_OBJECT

public:
    static constexpr int MaxWaitingBytes = 1024 * 1024;
    /// Milliseconds between the pieces of a split reply, so that they arrive as pieces.
    static constexpr int PieceGapMs = 10;

    /// Takes the connected @p socket over. @p number tells connections apart, from 1.
    ServerConnection(QTcpSocket* socket, int number, const ServerContext& context, QObject* parent);

signals:
    /// Everything is over; the connection may be deleted, later.
    void finished();

private slots:
    void work();
    void sendPiece();
    void handleDisconnect();

private:
    bool mayWork() const;
    bool readMore();
    qint64 bytesUntilFault() const;
    void applyByteFaults();
    void handle(const ScpiFramer::Message& message);
    bool applyCommandFaults();
    void answer(QByteArray reply);
    QByteArray rubbish();
    void send(const QByteArray& reply);
    void close();
    void closeSendingSide();
    void note(TranscriptEvent::Mark mark, const QByteArray& bytes = QByteArray());

    QTcpSocket* m_pSocket;
    int m_nNumber;
    const ServerContext& m_context;
    ScpiSession m_session;
    std::mt19937 m_random;
    QTimer m_pieceTimer;
    QQueue<QByteArray> m_pieces; ///< of the reply being sent
    qint64 m_nReceived = 0;
    qint64 m_nCommands = 0;
    bool m_bWorking = false; ///< work() is on the stack
    bool m_bMuted = false;   ///< nothing can be sent any more
    bool m_bClosed = false;  ///< closed by this side
};
