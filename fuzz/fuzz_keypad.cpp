// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keypadprotocol.h"

#include <QList>

#include <cstddef>
#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

// What was understood is written as a line that is understood in the same way.
void tryCommand(const QByteArray& line)
{
    Keypad::Command command;
    if (!Keypad::parseCommand(line, command).isEmpty())
        return;
    const QByteArray written = Keypad::commandLine(command);
    Keypad::Command again;
    check(written.endsWith('\n') && written.size() <= Keypad::MaxCommandBytes + 1);
    check(Keypad::parseCommand(written, again).isEmpty());
    check(again.kind == command.kind && again.value == command.value);
}

void tryReply(const QByteArray& line)
{
    Keypad::Reply reply;
    if (!Keypad::parseReply(line, reply).isEmpty() || reply.kind != Keypad::Reply::Screen)
        return;
    const QByteArray written = Keypad::screenLine(reply.screen);
    check(written.count('\n') == 1);
    Keypad::Reply again;
    check(Keypad::parseReply(written, again).isEmpty());
    check(again.screen.items.size() == reply.screen.items.size());
}

} // namespace

// Bytes of the keypad's socket, in two pieces, read by either side.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Keypad::LineBuffer lines(Keypad::MaxCommandBytes);
    QByteArray line;
    for (const QByteArray& piece : {bytes.left(bytes.size() / 2), bytes.mid(bytes.size() / 2)}) {
        lines.append(piece);
        while (!lines.isOverlong() && lines.takeLine(line)) {
            check(!line.contains('\n') && line.size() <= Keypad::MaxCommandBytes);
            tryCommand(line);
        }
    }
    for (const QByteArray& reply : bytes.split('\n'))
        tryReply(reply);
    return 0;
}
