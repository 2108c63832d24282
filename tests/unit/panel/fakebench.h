// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"
#include "paneloptions.h"

#include <QHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

/// What the panel talks to, in the test's own thread, on free ports.

/// A keypad that writes down what it is told.
class FakeKeypad
{
public:
    /// Listens from now on and greets whoever comes.
    explicit FakeKeypad(const QString& path);

    QByteArray received() const { return m_received; }
    QByteArray takeReceived() { return std::exchange(m_received, QByteArray()); }

private:
    QLocalServer m_server;
    QByteArray m_received;
};

/// A screen of 800 x 480 in one colour that writes down how it is touched and typed on.
class FakeScreen
{
public:
    explicit FakeScreen(quint16 port = 0);

    quint16 port() const { return m_server.serverPort(); }

    /// "pointer X Y BUTTONS", "down SYMBOL" and "up SYMBOL", in hexadecimal.
    QStringList events() const { return m_events; }
    QStringList takeEvents() { return std::exchange(m_events, QStringList()); }

private:
    void take(QByteArray& bytes);
    int takeMessage(const QByteArray& bytes);

    QTcpServer m_server;
    QStringList m_events;
};

/// An instrument that answers lines from a table and writes all lines down.
class FakeInstrument
{
public:
    explicit FakeInstrument(quint16 port = 0);

    quint16 port() const { return m_server.serverPort(); }
    QList<QByteArray> lines() const { return m_lines; }
    int count(const QByteArray& line) const { return m_lines.count(line); }

    /// How it answers the panel's questions from now on: a burst of @p counts, 1 microsecond and
    /// 1 millivolt each, or none.
    void setState(int sequence, bool isOn, double idle, const QVector<qint16>& counts);
    void answer(const QByteArray& line, const QByteArray& reply) { m_answers[line] = reply; }

private:
    void take(QTcpSocket& client, QByteArray& bytes);

    QTcpServer m_server;
    QHash<QByteArray, QByteArray> m_answers;
    QList<QByteArray> m_lines;
};

/// All three, and what the panel has to know of them.
struct FakeBench
{
    QTemporaryDir folder;
    FakeKeypad keypad{folder.filePath(QStringLiteral("keypad"))};
    FakeScreen screen;
    FakeInstrument instrument;

    PanelOptions options() const;
};

/// The offscreen platform warns of what it does not do to windows; from here on that is left out of
/// the log.
void dropPlatformWarnings();
