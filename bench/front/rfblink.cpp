// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rfblink.h"

#include "rfbsession.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// Signals are for the main thread; and a server that hangs up while it is written to is no reason
// to end.
void blockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace

RfbLink::RfbLink(quint16 port, Listener listener)
    : m_nPort(port)
    , m_listener(std::move(listener))
    , m_nWakeFd(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , m_thread([this] { run(); })
{}

RfbLink::~RfbLink()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bStop = true;
        // Wakes the library from whatever it is waiting for.
        if (m_nSocket >= 0)
            ::shutdown(m_nSocket, SHUT_RDWR);
    }
    ::eventfd_write(m_nWakeFd, 1);
    m_thread.join();
    ::close(m_nWakeFd);
}

QImage RfbLink::image() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_image;
}

QRect RfbLink::takeChange()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_change, QRect());
}

void RfbLink::sendPointer(const QPoint& position, int buttons)
{
    queue({Input::Pointer, position, buttons, 0, false});
}

void RfbLink::sendKey(quint32 keySymbol, bool isDown)
{
    queue({Input::Key, QPoint(), 0, keySymbol, isDown});
}

void RfbLink::askForPicture()
{
    queue({Input::Picture, QPoint(), 0, 0, false});
}

void RfbLink::queue(const Input& input)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        // A server that is busy gets the way's end instead of the whole way.
        const auto isOnTheWay = [this, &input](int fromEnd) {
            const int index = m_inputs.size() - fromEnd;
            return index >= 0 && m_inputs.at(index).kind == Input::Pointer &&
                   m_inputs.at(index).buttons == input.buttons;
        };
        const bool isFurtherMove = input.kind == Input::Pointer && isOnTheWay(1) && isOnTheWay(2);
        if (isFurtherMove)
            m_inputs.last() = input;
        else
            m_inputs.append(input);
    }
    ::eventfd_write(m_nWakeFd, 1);
}

QVector<RfbLink::Input> RfbLink::takeInputs()
{
    eventfd_t count = 0;
    ::eventfd_read(m_nWakeFd, &count);
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_inputs, {});
}

bool RfbLink::isStopping() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_bStop;
}

// A picture that somebody still shows is left to him: writing makes a copy of it then.
void RfbLink::publish(const QImage& picture, const QRect& part)
{
    bool isNews = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const QRect area = part.intersected(picture.rect());
        if (m_image.size() != picture.size()) {
            m_image = picture.copy();
            m_change = QRect();
        } else {
            for (int y = area.top(); y <= area.bottom(); ++y)
                std::memcpy(m_image.scanLine(y) + 4 * area.left(),
                            picture.constScanLine(y) + 4 * area.left(), size_t(4 * area.width()));
        }
        isNews = m_change.isEmpty();
        m_change |= area;
    }
    if (isNews)
        m_listener.changed();
}

QString RfbLink::connectToServer()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
        return systemError(errno);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_nSocket = fd;
    }
    const int on = 1;
    ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(m_nPort);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto* const general = static_cast<const sockaddr*>(static_cast<const void*>(&address));
    if (::connect(fd, general, sizeof address) == 0)
        return QString();
    if (errno != EINPROGRESS)
        return systemError(errno);
    return waitForConnection() ? QString() : systemError(ECONNREFUSED);
}

bool RfbLink::waitForConnection() const
{
    pollfd waits[] = {{m_nSocket, POLLOUT, 0}, {m_nWakeFd, POLLIN, 0}};
    while (::poll(waits, 2, -1) < 0 && errno == EINTR) {
    }
    int error = 0;
    socklen_t size = sizeof error;
    ::getsockopt(m_nSocket, SOL_SOCKET, SO_ERROR, &error, &size);
    return error == 0 && (waits[0].revents & POLLOUT) != 0;
}

void RfbLink::run()
{
    blockSignals();
    QString reason = connectToServer();
    // What was to end before the connection stood could not be shut down yet.
    if (reason.isEmpty() && !isStopping())
        reason = RfbSession(*this, m_nSocket).run();
    const int fd = m_nSocket;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_nSocket = -1;
    }
    if (fd >= 0)
        ::close(fd);
    if (!isStopping())
        m_listener.ended(reason);
}
