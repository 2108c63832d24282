// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// Linked into tests that run under an emulator. QEMU 7 lets a program wait for process descriptors
// but refuses to make them; QProcess asks only whether it can wait for them, and then waits for a
// program that was never started. Told that there are none, it starts programs without them.

#include <cerrno>
#include <cstdarg>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) long syscall(long number, ...) noexcept
{
    long values[6];
    va_list arguments;
    va_start(arguments, number);
    for (long& value : values)
        value = va_arg(arguments, long);
    va_end(arguments);

    if (number == SYS_waitid && values[0] == P_PIDFD) {
        errno = EINVAL;
        return -1;
    }
    using Function = long (*)(long, ...);
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "syscall"));
    return next(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}
