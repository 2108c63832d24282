// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiblock.h"

namespace {

const int HeadBytes = 2;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

// The number of digits that the length has, once it is known.
BlockState readHead(const QByteArray& bytes, int& digits)
{
    if (!bytes.isEmpty() && bytes.at(0) != '#')
        return BlockState::Malformed;
    if (bytes.size() < HeadBytes)
        return BlockState::Incomplete;
    digits = bytes.at(1) - '0';
    return digits < 1 || digits > 9 ? BlockState::Malformed : BlockState::Complete;
}

BlockState readLength(const QByteArray& bytes, int digits, qint64& length)
{
    const QByteArray text = bytes.mid(HeadBytes, digits);
    for (const char digit : text) {
        if (!isDigit(digit))
            return BlockState::Malformed;
    }
    if (text.size() < digits)
        return BlockState::Incomplete;
    length = text.toLongLong();
    return length > MaxBlockBytes ? BlockState::Malformed : BlockState::Complete;
}

} // namespace

BlockState parseBlock(const QByteArray& bytes, QByteArray& data, int& size)
{
    int digits = 0;
    qint64 length = 0;
    BlockState state = readHead(bytes, digits);
    if (state == BlockState::Complete)
        state = readLength(bytes, digits, length);
    if (state != BlockState::Complete)
        return state;
    const int start = HeadBytes + digits;
    if (bytes.size() - start < length)
        return BlockState::Incomplete;
    data = bytes.mid(start, int(length));
    size = start + int(length);
    return BlockState::Complete;
}

BlockState parseBlock(const QByteArray& bytes, QByteArray& data)
{
    int size = 0;
    return parseBlock(bytes, data, size);
}
