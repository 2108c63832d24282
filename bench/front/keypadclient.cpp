// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadclient.h"

KeypadClient::KeypadClient(const QString& socketPath, QObject* parent)
    : QObject(parent)
    , m_strPath(socketPath)
    , m_socket(this)
    , m_backoff(this)
{
    connect(&m_backoff, &Backoff::due, this, &KeypadClient::connectNow);
    connect(&m_socket, &QLocalSocket::readyRead, this, &KeypadClient::readLines);
    connect(&m_socket, &QLocalSocket::errorOccurred, this,
            [this] { drop(m_socket.errorString()); });
}

KeypadClient::~KeypadClient()
{
    m_socket.disconnect(this);
}

void KeypadClient::start()
{
    if (m_bStarted)
        return;
    m_bStarted = true;
    connectNow();
}

void KeypadClient::stop()
{
    if (!m_bStarted)
        return;
    m_bStarted = false;
    m_backoff.reset();
    drop(QStringLiteral("the connection was ended"));
}

void KeypadClient::connectNow()
{
    m_socket.connectToServer(m_strPath);
}

bool KeypadClient::press(int code)
{
    return send({Keypad::Command::Press, code});
}

bool KeypadClient::release(int code)
{
    return send({Keypad::Command::Release, code});
}

bool KeypadClient::turn(int detents)
{
    while (m_bConnected && detents != 0) {
        const int now = qBound(-Keypad::MaxTurn, detents, Keypad::MaxTurn);
        send({Keypad::Command::Turn, now});
        detents -= now;
    }
    return m_bConnected;
}

bool KeypadClient::describe()
{
    return send({Keypad::Command::Describe, 0});
}

bool KeypadClient::send(const Keypad::Command& command)
{
    if (!m_bConnected)
        return false;
    m_socket.write(Keypad::commandLine(command));
    m_socket.flush();
    return true;
}

void KeypadClient::readLines()
{
    m_lines.append(m_socket.readAll());
    QByteArray line;
    while (!m_lines.isOverlong() && m_lines.takeLine(line)) {
        Keypad::Reply reply;
        const QString reason = Keypad::parseReply(line, reply);
        if (!reason.isEmpty()) {
            drop(reason);
            return;
        }
        takeReply(reply);
    }
    if (m_lines.isOverlong())
        drop(QStringLiteral("a reply of the host has no end"));
}

void KeypadClient::takeReply(const Keypad::Reply& reply)
{
    switch (reply.kind) {
    case Keypad::Reply::Hello:
        m_backoff.reset();
        m_bConnected = true;
        m_strReason.clear();
        Q_EMIT connected(reply.text);
        break;
    case Keypad::Reply::Screen:
        Q_EMIT described(reply.screen);
        break;
    case Keypad::Reply::Error:
        Q_EMIT refused(reply.text);
        break;
    }
}

void KeypadClient::drop(const QString& reason)
{
    m_bConnected = false;
    m_lines.clear();
    {
        const QSignalBlocker blocker(m_socket);
        m_socket.abort();
    }
    if (m_bStarted)
        m_backoff.wait();
    if (reason == m_strReason)
        return;
    m_strReason = reason;
    Q_EMIT gone(reason);
}
