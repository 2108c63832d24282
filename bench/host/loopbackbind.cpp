// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "loopbackbind.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<int> g_screenSocket{-1};
std::atomic<int> g_screenError{0};

int socketOption(int socket, int level, int name)
{
    int value = 0;
    socklen_t size = sizeof value;
    return ::getsockopt(socket, level, name, &value, &size) == 0 ? value : 0;
}

int systemBind(int socket, const void* address, socklen_t size)
{
    return static_cast<int>(::syscall(SYS_bind, socket, address, size));
}

void noteScreen(int socket, int result)
{
    if (socketOption(socket, SOL_SOCKET, SO_TYPE) != SOCK_STREAM || g_screenSocket >= 0)
        return;
    if (result == 0)
        g_screenSocket = socket;
    else
        g_screenError = errno;
}

int bindAny(int socket, const void* address, socklen_t size)
{
    const int result = systemBind(socket, address, size);
    noteScreen(socket, result);
    return result;
}

int bindVersion4(int socket, sockaddr_in address)
{
    if (address.sin_addr.s_addr != htonl(INADDR_ANY))
        return systemBind(socket, &address, sizeof address);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return bindAny(socket, &address, sizeof address);
}

// A socket of both versions listens on 127.0.0.1, written as an address of version 6: that is where
// clients look for the screen.
int bindVersion6(int socket, sockaddr_in6 address)
{
    if (!IN6_IS_ADDR_UNSPECIFIED(&address.sin6_addr))
        return systemBind(socket, &address, sizeof address);
    address.sin6_addr = in6addr_loopback;
    if (socketOption(socket, IPPROTO_IPV6, IPV6_V6ONLY) == 0) {
        const std::array<unsigned char, 16> mapped{0, 0, 0,    0,    0,   0, 0, 0,
                                                   0, 0, 0xff, 0xff, 127, 0, 0, 1};
        std::memcpy(&address.sin6_addr, mapped.data(), mapped.size());
    }
    return bindAny(socket, &address, sizeof address);
}

template<typename Address>
Address copyOf(const sockaddr* address)
{
    Address copy;
    std::memcpy(&copy, address, sizeof copy);
    return copy;
}

quint16 portOf(int socket)
{
    sockaddr_in6 address = {};
    socklen_t size = sizeof address;
    if (::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        return 0;
    // The port lies at the same place in both versions.
    return ntohs(address.sin6_port);
}

} // namespace

extern "C" Q_DECL_EXPORT int bind(int socket, const sockaddr* address, socklen_t size) noexcept
{
    if (address == nullptr)
        return systemBind(socket, address, size);
    if (address->sa_family == AF_INET && size >= sizeof(sockaddr_in))
        return bindVersion4(socket, copyOf<sockaddr_in>(address));
    if (address->sa_family == AF_INET6 && size >= sizeof(sockaddr_in6))
        return bindVersion6(socket, copyOf<sockaddr_in6>(address));
    return systemBind(socket, address, size);
}

LoopbackBind::Screen LoopbackBind::screen()
{
    const int socket = g_screenSocket;
    if (socket < 0)
        return g_screenError == 0 ? Screen() : Screen{Screen::Failed, 0, g_screenError};
    const bool listens = socketOption(socket, SOL_SOCKET, SO_ACCEPTCONN) != 0;
    return {listens ? Screen::Listening : Screen::Bound, portOf(socket), 0};
}
