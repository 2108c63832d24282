// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverconnection.h"

#include "scpiinstrument.h"
#include "serverclock.h"

#include <QScopedValueRollback>
#include <QTcpSocket>

#include <algorithm>
#include <limits>
#include <vector>

#include <sys/socket.h>

namespace {

const qint64 ReadSize = 65536;
const int MaxRubbish = 80;

int between(std::mt19937& random, int low, int high)
{
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

/// @p bytes in @p count pieces, or as many as it has bytes, cut at random places.
QQueue<QByteArray> cut(const QByteArray& bytes, int count, std::mt19937& random)
{
    std::vector<int> places{0, bytes.size()};
    const auto pieces = static_cast<std::size_t>(std::min(count, bytes.size()));
    while (places.size() < pieces + 1) {
        const int place = between(random, 1, bytes.size() - 1);
        const auto at = std::lower_bound(places.begin(), places.end(), place);
        if (*at != place)
            places.insert(at, place);
    }
    QQueue<QByteArray> result;
    for (std::size_t i = 1; i < places.size(); ++i)
        result.enqueue(bytes.mid(places[i - 1], places[i] - places[i - 1]));
    return result;
}

bool isReached(qint64 limit, qint64 count)
{
    return limit >= 0 && count >= limit;
}

} // namespace

ServerConnection::ServerConnection(QTcpSocket* socket, int number, const ServerContext& context,
                                   QObject* parent)
    : QObject(parent)
    , m_pSocket(socket)
    , m_nNumber(number)
    , m_context(context)
    , m_session(context.instrument)
    , m_random(context.seed + static_cast<quint32>(number))
{
    m_pSocket->setParent(this);
    m_pSocket->setReadBufferSize(ReadSize);
    m_pSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_pieceTimer.setSingleShot(true);
    connect(m_pSocket, &QTcpSocket::readyRead, this, &ServerConnection::work);
    connect(m_pSocket, &QTcpSocket::bytesWritten, this, &ServerConnection::work);
    connect(m_pSocket, &QTcpSocket::disconnected, this, &ServerConnection::handleDisconnect);
    connect(&m_pieceTimer, &QTimer::timeout, this, &ServerConnection::sendPiece);
    m_context.clock.tick();
    note(TranscriptEvent::Connected);
    // Bytes that came before the signals were connected, and counts of 0, would wait for ever.
    m_pieceTimer.start(0);
}

void ServerConnection::work()
{
    if (m_bWorking)
        return;
    const QScopedValueRollback<bool> working(m_bWorking, true);
    ScpiFramer::Message message;
    while (mayWork()) {
        if (m_session.next(message)) {
            handle(message);
            continue;
        }
        applyByteFaults();
        if (!readMore())
            break;
    }
}

bool ServerConnection::mayWork() const
{
    const bool isWaiting = !m_bMuted && m_pSocket->bytesToWrite() > MaxWaitingBytes;
    return !m_bClosed && m_pieces.isEmpty() && !isWaiting;
}

bool ServerConnection::readMore()
{
    // A client that goes with replies unread resets the connection, which leaves nothing to read.
    if (!m_pSocket->isOpen())
        return false;
    const QByteArray bytes = m_pSocket->read(std::min(ReadSize, bytesUntilFault()));
    m_nReceived += bytes.size();
    m_session.append(bytes);
    return !bytes.isEmpty();
}

qint64 ServerConnection::bytesUntilFault() const
{
    qint64 count = std::numeric_limits<qint64>::max();
    for (const qint64 limit : {m_context.faults.closeAfter, m_context.faults.halfCloseAfter}) {
        if (limit > m_nReceived)
            count = std::min(count, limit - m_nReceived);
    }
    return count;
}

void ServerConnection::applyByteFaults()
{
    if (isReached(m_context.faults.halfCloseAfter, m_nReceived))
        closeSendingSide();
    if (isReached(m_context.faults.closeAfter, m_nReceived))
        close();
}

void ServerConnection::handle(const ScpiFramer::Message& message)
{
    ++m_nCommands;
    if (!applyCommandFaults())
        return;
    m_context.clock.tick();
    note(message.isOverrun ? TranscriptEvent::Overrun : TranscriptEvent::Command,
         message.isOverrun ? QByteArray() : message.bytes + '\n');
    const QByteArray reply = m_session.execute(message);
    if (!reply.isEmpty() && !m_context.faults.noReply)
        answer(reply);
}

/// False when the command is not to be executed any more.
bool ServerConnection::applyCommandFaults()
{
    if (isReached(m_context.faults.closeAt, m_nCommands))
        close();
    else if (isReached(m_context.faults.halfCloseAt, m_nCommands))
        closeSendingSide();
    return !m_bClosed;
}

void ServerConnection::answer(QByteArray reply)
{
    if (m_context.faults.rubbish)
        reply = rubbish();
    note(TranscriptEvent::Reply, reply);
    if (!m_bMuted)
        send(reply);
}

QByteArray ServerConnection::rubbish()
{
    QByteArray bytes(between(m_random, 1, MaxRubbish), '\0');
    std::generate(bytes.begin(), bytes.end(),
                  [this] { return static_cast<char>(between(m_random, 0, 255)); });
    return bytes;
}

void ServerConnection::send(const QByteArray& reply)
{
    m_pieces = cut(reply, m_context.faults.pieces, m_random);
    if (m_context.faults.slowMs > 0)
        m_pieceTimer.start(m_context.faults.slowMs);
    else
        sendPiece();
}

void ServerConnection::sendPiece()
{
    if (!m_pieces.isEmpty()) {
        const QByteArray piece = m_pieces.dequeue();
        if (!m_pieces.isEmpty())
            m_pieceTimer.start(std::max(m_context.faults.slowMs, PieceGapMs));
        m_pSocket->write(piece);
        // Clients take what one read returns for the whole reply, so it leaves in one call, before
        // the next reply can join it.
        m_pSocket->flush();
    }
    work();
}

void ServerConnection::close()
{
    m_bClosed = true;
    m_pieceTimer.stop();
    m_pieces.clear();
    m_pSocket->disconnectFromHost();
}

void ServerConnection::closeSendingSide()
{
    if (m_bMuted)
        return;
    m_bMuted = true;
    m_pSocket->flush();
    // Qt closes both directions or none.
    ::shutdown(static_cast<int>(m_pSocket->socketDescriptor()), SHUT_WR);
}

void ServerConnection::handleDisconnect()
{
    m_bMuted = true;
    m_pieceTimer.stop();
    m_pieces.clear();
    work();
    m_context.clock.tick();
    note(TranscriptEvent::Disconnected);
    emit finished();
}

void ServerConnection::note(TranscriptEvent::Mark mark, const QByteArray& bytes)
{
    if (m_context.transcript != nullptr)
        m_context.transcript->write({m_context.clock.now(), m_nNumber, mark, bytes});
}
