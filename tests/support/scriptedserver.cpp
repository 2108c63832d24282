// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scriptedserver.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

#include <chrono>
#include <memory>

namespace {

// How soon the server's thread notices that it is to end.
const int PollMs = 10;
const auto Patience = std::chrono::seconds(10);

} // namespace

ScriptedServer::ScriptedServer(const QVector<Turn>& script, Manner manner, quint16 port)
    : m_script(script)
    , m_manner(manner)
    , m_thread([this, port] { run(port); })
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_bReady; });
}

ScriptedServer::~ScriptedServer()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bStop = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void ScriptedServer::sendNextPiece()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_nPiecesAllowed;
    }
    m_changed.notify_all();
}

void ScriptedServer::answer(const QByteArray& line, const QByteArray& reply)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_answers.insert(line, reply);
}

void ScriptedServer::closeAfter(int count)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_nCloseAt = m_received.size() + count;
}

QByteArray ScriptedServer::received() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_received;
}

bool ScriptedServer::waitForBytes(int count) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, Patience, [=] { return m_received.size() >= count; });
}

int ScriptedServer::accepted() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_nAccepted;
}

bool ScriptedServer::waitForGone(int count) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, Patience, [=] { return m_nGone >= count; });
}

bool ScriptedServer::isStopping() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bStop;
}

void ScriptedServer::setReady()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bReady = true;
    }
    m_changed.notify_all();
}

void ScriptedServer::run(quint16 port)
{
    QTcpServer server;
    if (!server.listen(QHostAddress(QHostAddress::LocalHost), port))
        qFatal("scripted server: %s", qPrintable(server.errorString()));
    setReady();
    if (m_manner == ListenOnly) {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_bStop; });
        return;
    }
    while (!isStopping()) {
        if (!server.hasPendingConnections() && !server.waitForNewConnection(PollMs))
            continue;
        const std::unique_ptr<QTcpSocket> client(server.nextPendingConnection());
        serveClient(*client);
    }
}

void ScriptedServer::serveClient(QTcpSocket& client)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_nAccepted;
    }
    while (m_manner == Serve && client.state() == QAbstractSocket::ConnectedState &&
           !isStopping() && roomLeft() > 0) {
        client.waitForReadyRead(PollMs);
        collect(client.read(qMin<qint64>(client.bytesAvailable(), roomLeft())));
        if (roomLeft() > 0 && !answerLines(client))
            break;
    }
    client.close();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_received.size() >= m_nCloseAt)
            m_nCloseAt = NoLimit;
        ++m_nGone;
    }
    m_changed.notify_all();
}

void ScriptedServer::collect(const QByteArray& bytes)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_received += bytes;
    }
    m_changed.notify_all();
}

int ScriptedServer::roomLeft() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_nCloseAt - m_received.size();
}

// The next line that is not answered yet; empty if none is whole.
QByteArray ScriptedServer::takeLine()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const int start = m_nTaken;
    const int end = m_received.indexOf('\n', start);
    if (end < 0)
        return QByteArray();
    m_nTaken = end + 1;
    return m_received.mid(start, m_nTaken - start);
}

ScriptedServer::Turn ScriptedServer::turnOf(const QByteArray& line)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_nLinesAnswered < m_script.size())
        return m_script.at(m_nLinesAnswered++);
    const auto reply = m_answers.constFind(line);
    return reply == m_answers.constEnd() ? Turn() : Turn{{*reply}, false};
}

// False when the script says that the connection is to be closed.
bool ScriptedServer::answerLines(QTcpSocket& client)
{
    for (QByteArray line = takeLine(); !line.isEmpty(); line = takeLine()) {
        const Turn turn = turnOf(line);
        sendPieces(client, turn);
        if (turn.closeAfterwards)
            return false;
    }
    return true;
}

void ScriptedServer::sendPieces(QTcpSocket& client, const Turn& turn)
{
    for (int i = 0; i < turn.pieces.size(); ++i) {
        if (i > 0) {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_changed.wait(lock, [this] { return m_bStop || m_nPiecesAllowed > 0; });
            if (m_bStop)
                return;
            --m_nPiecesAllowed;
        }
        client.write(turn.pieces.at(i));
        client.waitForBytesWritten();
    }
}
