// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// The part of the process that keeps its TCP and UDP sockets on this machine.
///
/// The platform plug-in that shows the screen over the network listens on every address and has no
/// option against it. The program therefore brings its own bind(), which every library of the
/// process finds before the C library's: an any-address becomes the loopback address of the same
/// family. What is bound to another address, and sockets of other families, are left alone.
namespace LoopbackBind {

/// What has become of the first TCP socket of the process that was bound to an any-address.
struct Screen
{
    enum State { NotBound, Failed, Bound, Listening };

    State state = NotBound;
    quint16 port = 0; ///< of a bound one
    int error = 0;    ///< errno of a failed one
};

Screen screen();

} // namespace LoopbackBind
