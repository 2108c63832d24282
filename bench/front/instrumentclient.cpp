// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentclient.h"

#include "scpiblock.h"

#include <QHostAddress>

#include <cmath>

namespace {

const int MaxLineBytes = 64 * 1024;

// Magnitudes from here on stand for infinity and for what is not a number.
const double LargestNumber = 9.9e37;

QByteArray ended(QByteArray line)
{
    if (!line.endsWith('\n'))
        line += '\n';
    return line;
}

QString shown(const QByteArray& query)
{
    return QString::fromLatin1(query.trimmed().left(60));
}

} // namespace

bool InstrumentReply::toNumber(double& number) const
{
    bool isNumber = false;
    const double value = data.toDouble(&isNumber);
    if (!ok || !isNumber || !std::isfinite(value) || std::fabs(value) >= LargestNumber)
        return false;
    number = value;
    return true;
}

InstrumentClient::InstrumentClient(quint16 port, QObject* parent)
    : QObject(parent)
    , m_nPort(port)
    , m_socket(this)
    , m_backoff(this)
    , m_timeout(this)
{
    m_timeout.setSingleShot(true);
    connect(&m_timeout, &QTimer::timeout, this, [this] {
        drop(QStringLiteral("%1: no reply in time").arg(shown(m_waiting.head().line)));
    });
    connect(&m_backoff, &Backoff::due, this, &InstrumentClient::connectNow);
    connect(&m_socket, &QTcpSocket::connected, this, &InstrumentClient::handleConnected);
    connect(&m_socket, &QTcpSocket::readyRead, this, &InstrumentClient::readReply);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &InstrumentClient::handleSocketEnd);
}

InstrumentClient::~InstrumentClient()
{
    m_socket.disconnect(this);
}

void InstrumentClient::start()
{
    if (m_bStarted)
        return;
    m_bStarted = true;
    connectNow();
}

void InstrumentClient::stop()
{
    if (!m_bStarted)
        return;
    m_bStarted = false;
    m_backoff.reset();
    drop(QStringLiteral("the connection was ended"));
}

void InstrumentClient::connectNow()
{
    m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_nPort);
}

void InstrumentClient::handleConnected()
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_backoff.reset();
    m_bConnected = true;
    m_strReason.clear();
    Q_EMIT connected();
}

void InstrumentClient::handleSocketEnd()
{
    drop(m_socket.errorString());
}

bool InstrumentClient::send(const QByteArray& command)
{
    if (!m_bConnected)
        return false;
    enqueue({ended(command), nullptr, false, 0});
    return true;
}

void InstrumentClient::ask(const QByteArray& query, Handler handler, int timeoutMs)
{
    enqueue({ended(query), std::move(handler), false, timeoutMs});
}

void InstrumentClient::askBlock(const QByteArray& query, Handler handler, int timeoutMs)
{
    enqueue({ended(query), std::move(handler), true, timeoutMs});
}

void InstrumentClient::enqueue(const Request& request)
{
    if (!m_bConnected) {
        failLater(request.handler);
        return;
    }
    m_waiting.enqueue(request);
    sendNext();
}

void InstrumentClient::failLater(const Handler& handler)
{
    const QString reason =
        m_strReason.isEmpty() ? QStringLiteral("there is no connection") : m_strReason;
    QMetaObject::invokeMethod(
        this,
        [handler, reason] {
            handler({false, QByteArray(), reason});
        },
        Qt::QueuedConnection);
}

void InstrumentClient::sendNext()
{
    while (!m_bAsking && m_bConnected && !m_waiting.isEmpty()) {
        m_socket.write(m_waiting.head().line);
        if (m_waiting.head().handler) {
            m_bAsking = true;
            m_timeout.start(m_waiting.head().timeoutMs);
        } else {
            m_waiting.dequeue();
        }
    }
}

void InstrumentClient::readReply()
{
    m_received += m_socket.readAll();
    if (!m_bAsking) {
        drop(QStringLiteral("the instrument sent what nobody had asked for"));
        return;
    }
    InstrumentReply reply;
    if (!takeReply(reply))
        return;
    if (!m_received.isEmpty()) {
        drop(QStringLiteral("%1: more than one reply").arg(shown(m_waiting.head().line)));
        return;
    }
    deliver(reply);
}

// Takes the whole reply, once it is there. False while it is not, or where it can be none and the
// connection was dropped.
bool InstrumentClient::takeReply(InstrumentReply& reply)
{
    return m_waiting.head().isBlock ? takeBlock(reply) : takeLine(reply);
}

bool InstrumentClient::takeLine(InstrumentReply& reply)
{
    const int end = m_received.indexOf('\n');
    if (end < 0 && m_received.size() > MaxLineBytes)
        drop(QStringLiteral("%1: the reply has no end").arg(shown(m_waiting.head().line)));
    if (end < 0)
        return false;
    reply = {true, m_received.left(end).trimmed(), QString()};
    m_received.remove(0, end + 1);
    return true;
}

bool InstrumentClient::takeBlock(InstrumentReply& reply)
{
    int size = 0;
    QByteArray data;
    const BlockState state = parseBlock(m_received, data, size);
    const bool isWhole = state == BlockState::Complete && m_received.size() > size;
    if (state == BlockState::Malformed || (isWhole && m_received.at(size) != '\n')) {
        drop(QStringLiteral("%1: the reply is no block").arg(shown(m_waiting.head().line)));
        return false;
    }
    if (!isWhole)
        return false;
    reply = {true, data, QString()};
    m_received.remove(0, size + 1);
    return true;
}

void InstrumentClient::deliver(const InstrumentReply& reply)
{
    m_timeout.stop();
    m_bAsking = false;
    const Request request = m_waiting.dequeue();
    sendNext();
    request.handler(reply);
}

void InstrumentClient::drop(const QString& reason)
{
    m_timeout.stop();
    m_bAsking = false;
    m_bConnected = false;
    m_received.clear();
    {
        const QSignalBlocker blocker(m_socket);
        m_socket.abort();
    }
    if (m_bStarted)
        m_backoff.wait();
    failAll(reason);
    tellGone(reason);
}

// A handler may ask again; that fails later, and not in this loop.
void InstrumentClient::failAll(const QString& reason)
{
    QQueue<Request> failed;
    failed.swap(m_waiting);
    for (const Request& request : qAsConst(failed)) {
        if (request.handler)
            request.handler({false, QByteArray(), reason});
    }
}

void InstrumentClient::tellGone(const QString& reason)
{
    if (reason == m_strReason)
        return;
    m_strReason = reason;
    Q_EMIT gone(reason);
}
