// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QVector>

#include <condition_variable>
#include <limits>
#include <mutex>
#include <thread>

class QTcpServer;
class QTcpSocket;

/// A command server on the local host that answers as it is told, in a thread of its own, so that a
/// client may block the test's thread. It serves one client after the other. Each line that a
/// client ends with a line feed takes the next turn of the script; when the script has run out,
/// lines are still collected and nothing is answered.
class ScriptedServer
{
public:
    struct Turn
    {
        /// Sent one by one: the first at once, each further one when sendNextPiece() is called.
        QVector<QByteArray> pieces;
        bool closeAfterwards = false;
    };

    enum Manner {
        Serve,          ///< accept and follow the script
        CloseOnConnect, ///< accept and close at once, unread
        ListenOnly,     ///< never accept: the system completes the connection all the same
    };

    /// Listens from now on; the process ends if the port is taken.
    explicit ScriptedServer(const QVector<Turn>& script, Manner manner = Serve,
                            quint16 port = 30000);
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    /// Lets the turn under way send its next piece.
    void sendNextPiece();

    /// Answers every line that reads @p line, line feed included, and has no turn left in the
    /// script.
    void answer(const QByteArray& line, const QByteArray& reply);

    /// Closes the connection, without an answer, once @p count more bytes than until now have been
    /// read, and reads nothing behind them; with 0 as soon as the next client is accepted.
    void closeAfter(int count);

    /// All bytes that all clients sent until now.
    QByteArray received() const;

    /// Waits until @p count bytes have come in all; false after ten seconds.
    bool waitForBytes(int count) const;

    /// Number of clients that were accepted until now.
    int accepted() const;

    /// Waits until @p count clients have gone; false after ten seconds.
    bool waitForGone(int count) const;

private:
    void run(quint16 port);
    void serveClient(QTcpSocket& client);
    void collect(const QByteArray& bytes);
    bool answerLines(QTcpSocket& client);
    void sendPieces(QTcpSocket& client, const Turn& turn);
    QByteArray takeLine();
    Turn turnOf(const QByteArray& line);
    int roomLeft() const;
    bool isStopping() const;
    void setReady();

    static const int NoLimit = std::numeric_limits<int>::max();

    QVector<Turn> m_script;
    Manner m_manner;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    QByteArray m_received;
    QHash<QByteArray, QByteArray> m_answers;
    int m_nCloseAt = NoLimit; // bytes that have been received by then
    int m_nTaken = 0;         // bytes of the lines that have had their turn
    int m_nLinesAnswered = 0;
    int m_nPiecesAllowed = 0;
    int m_nAccepted = 0;
    int m_nGone = 0;
    bool m_bReady = false;
    bool m_bStop = false;

    std::thread m_thread;
};
