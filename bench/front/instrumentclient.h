// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backoff.h"

#include <QByteArray>
#include <QQueue>
#include <QTcpSocket>
#include <QTimer>

#include <functional>

/// What became of a query.
struct InstrumentReply
{
    bool ok = false;
    QByteArray data; ///< the line without its end, or the block's data
    QString reason;  ///< why there is none

    /// The reply as a finite number below the instrument's "not a number"; false for anything else.
    bool toNumber(double& number) const;
};

/// A connection to the instrument's SCPI command server that never blocks: it lives in a thread
/// with an event loop and is to be used from that thread alone. It connects to this machine only,
/// and connects anew by itself when the instrument has gone.
///
/// What is asked goes out in the order in which it was asked, one query at a time. A reply that
/// does not come in time, bytes that nobody asked for and blocks that are none end the connection,
/// so that a late reply is never taken for another query's; all that waits then fails.
class InstrumentClient : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(const InstrumentReply&)>;

    static const int DefaultTimeoutMs = 5000;

    explicit InstrumentClient(quint16 port, QObject* parent = nullptr);
    ~InstrumentClient() override;

    /// Begins to connect, and to connect again.
    void start();

    /// Ends the connection for good; what waits fails.
    void stop();

    bool isConnected() const { return m_bConnected; }

    /// Why there is no connection; empty while there is one and before the first attempt.
    QString goneReason() const { return m_strReason; }

    /// Sends a command that has no reply, the line feed added where it is missing. False, with
    /// nothing done, while there is no connection.
    bool send(const QByteArray& command);

    /// Sends a query whose reply is one line. @p handler is called once, later and not from within
    /// this call, unless the client is deleted before.
    void ask(const QByteArray& query, Handler handler, int timeoutMs = DefaultTimeoutMs);

    /// As ask(), for a reply that is a definite-length block and a line feed.
    void askBlock(const QByteArray& query, Handler handler, int timeoutMs = DefaultTimeoutMs);

Q_SIGNALS:
    void connected();

    /// The connection has gone, or a first attempt found nobody. Further attempts that find nobody
    /// are told only when the reason is another one.
    void gone(const QString& reason);

private:
    struct Request
    {
        QByteArray line;
        Handler handler; // none for a command
        bool isBlock = false;
        int timeoutMs = 0;
    };

    void connectNow();
    void handleConnected();
    void handleSocketEnd();
    void enqueue(const Request& request);
    void failLater(const Handler& handler);
    void sendNext();
    void readReply();
    bool takeReply(InstrumentReply& reply);
    bool takeLine(InstrumentReply& reply);
    bool takeBlock(InstrumentReply& reply);
    void deliver(const InstrumentReply& reply);
    void drop(const QString& reason);
    void failAll(const QString& reason);
    void tellGone(const QString& reason);

    quint16 m_nPort;
    QTcpSocket m_socket;
    Backoff m_backoff;
    QTimer m_timeout;
    QQueue<Request> m_waiting;
    bool m_bAsking = false; // the first of m_waiting is out
    bool m_bStarted = false;
    bool m_bConnected = false;
    QByteArray m_received;
    QString m_strReason;
};
