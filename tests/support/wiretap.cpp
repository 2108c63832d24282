// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "wiretap.h"

#include <cerrno>
#include <dlfcn.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const int PatienceMs = 10000;

Wiretap* g_pTap = nullptr;

// An address of that family, for which every socket address is aligned.
template<typename Address>
const Address* as(const sockaddr* address)
{
    return static_cast<const Address*>(static_cast<const void*>(address));
}

bool isInstrument(const sockaddr* address)
{
    const quint16 port = htons(Wiretap::InstrumentPort);
    if (address->sa_family == AF_INET)
        return as<sockaddr_in>(address)->sin_port == port;
    return address->sa_family == AF_INET6 && as<sockaddr_in6>(address)->sin6_port == port;
}

bool leadsToInstrument(int socket)
{
    sockaddr_storage storage = {};
    socklen_t size = sizeof storage;
    auto* address = reinterpret_cast<sockaddr*>(&storage);
    return getpeername(socket, address, &size) == 0 && isInstrument(address);
}

bool waitFor(int socket, short events)
{
    pollfd wanted = {socket, events, 0};
    return poll(&wanted, 1, PatienceMs) == 1;
}

// The next function of that name behind this program's own.
template<typename Function>
Function nextOf(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

Wiretap::Wiretap()
{
    g_pTap = this;
}

Wiretap::~Wiretap()
{
    g_pTap = nullptr;
}

bool Wiretap::waitForHangUp(int socket)
{
    return waitFor(socket, POLLRDHUP);
}

// The network library calls these instead of the system's, and they pass the call on.

extern "C" Q_DECL_EXPORT int connect(int socket, const sockaddr* address, socklen_t size)
{
    static const auto next = nextOf<decltype(&::connect)>("connect");
    const int result = next(socket, address, size);
    const int error = errno;
    if (g_pTap != nullptr && g_pTap->connected && isInstrument(address) &&
        waitFor(socket, POLLOUT) && leadsToInstrument(socket))
        g_pTap->connected(socket);
    errno = error;
    return result;
}

extern "C" Q_DECL_EXPORT ssize_t write(int file, const void* bytes, size_t size)
{
    static const auto next = nextOf<decltype(&::write)>("write");
    const ssize_t written = next(file, bytes, size);
    const int error = errno;
    if (written > 0 && g_pTap != nullptr && g_pTap->written && leadsToInstrument(file))
        g_pTap->written(file, QByteArray(static_cast<const char*>(bytes), int(written)));
    errno = error;
    return written;
}
