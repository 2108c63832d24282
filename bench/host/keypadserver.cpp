// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadserver.h"

#include "hostfolders.h"
#include "keydriver.h"

#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QPointer>

#include <sys/stat.h>

namespace {

const int ConnectMs = 1000;

bool isSocket(const QString& path)
{
    struct stat state = {};
    return ::lstat(QFile::encodeName(path).constData(), &state) == 0 && S_ISSOCK(state.st_mode);
}

bool hasListener(const QString& path)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    return socket.waitForConnected(ConnectMs);
}

/// Makes room at @p path. Returns why there is none, or an empty text.
QString clear(const QString& path)
{
    const QFileInfo info(path);
    const QString objection = HostFolders::keypadObjection(info.absolutePath());
    if (!objection.isEmpty())
        return objection;
    if (!info.exists() && !info.isSymLink())
        return QString();
    if (!isSocket(path))
        return QStringLiteral("there is another file");
    if (hasListener(path))
        return QStringLiteral("a running host has it");
    QLocalServer::removeServer(path);
    return QString();
}

} // namespace

KeypadServer::KeypadServer(KeyDriver& driver, Describe describe, const QString& version)
    : m_driver(driver)
    , m_describe(std::move(describe))
    , m_strVersion(version)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &KeypadServer::acceptClient);
}

// The sockets close with the server and would tell clients that are forgotten by then.
KeypadServer::~KeypadServer()
{
    for (QLocalSocket* socket : m_clients.keys())
        socket->disconnect(this);
}

QString KeypadServer::listen(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QString error = clear(absolute);
    if (error.isEmpty() && !m_server.listen(absolute))
        error = m_server.errorString();
    return error.isEmpty() ? error : QStringLiteral("keypad %1: %2").arg(path, error);
}

void KeypadServer::acceptClient()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        Client client;
        client.source = ++m_nLastSource;
        m_clients.insert(socket, client);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readFrom(socket); });
        connect(socket, &QLocalSocket::disconnected, this,
                [this, socket] { removeClient(socket); });
        answer(socket, Keypad::helloLine(m_strVersion));
        // A client may be gone again by now.
        if (m_clients.contains(socket) && socket->isOpen())
            readFrom(socket);
    }
}

void KeypadServer::removeClient(QLocalSocket* socket)
{
    const auto client = m_clients.find(socket);
    if (client == m_clients.end())
        return;
    const int source = client->source;
    m_clients.erase(client);
    socket->deleteLater();
    m_driver.releaseAll(source);
}

void KeypadServer::readFrom(QLocalSocket* socket)
{
    m_clients[socket].lines.append(socket->readAll());
    QByteArray line;
    while (m_clients.contains(socket)) {
        Keypad::LineBuffer& lines = m_clients[socket].lines;
        if (lines.isOverlong()) {
            answer(socket,
                   Keypad::errorLine(
                       QStringLiteral("a line may have %1 bytes").arg(Keypad::MaxCommandBytes)));
            lines.clear();
            return socket->disconnectFromServer();
        }
        if (!lines.takeLine(line))
            return;
        execute(socket, line);
    }
}

void KeypadServer::execute(QLocalSocket* socket, const QByteArray& line)
{
    Keypad::Command command;
    const QString error = Keypad::parseCommand(line, command);
    if (!error.isEmpty())
        return answerLater(socket, [error] { return Keypad::errorLine(error); });
    switch (command.kind) {
    case Keypad::Command::Press:
        return m_driver.press(command.value, m_clients[socket].source);
    case Keypad::Command::Release:
        return m_driver.release(command.value);
    case Keypad::Command::Turn:
        return m_driver.turn(command.value);
    case Keypad::Command::Describe:
        return answerLater(socket, [this] { return Keypad::screenLine(m_describe()); });
    }
}

// Keys that came before the question wait in the event queue, and what they do belongs to the
// answer.
void KeypadServer::answerLater(QLocalSocket* socket, const std::function<QByteArray()>& makeLine)
{
    const QPointer<QLocalSocket> asker(socket);
    QMetaObject::invokeMethod(
        this,
        [this, asker, makeLine] {
            if (asker != nullptr)
                answer(asker, makeLine());
        },
        Qt::QueuedConnection);
}

// A client that asks and never reads is not waited for.
void KeypadServer::answer(QLocalSocket* socket, const QByteArray& line)
{
    if (socket->bytesToWrite() > 4 * Keypad::MaxReplyBytes)
        return socket->abort();
    socket->write(line);
    socket->flush();
}
