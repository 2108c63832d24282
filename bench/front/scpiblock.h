// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// The form in which the instrument sends data.

/// Most bytes of data that a block may announce: those of the longest waveform, and some.
const qint64 MaxBlockBytes = 4194304;

enum class BlockState {
    Incomplete, ///< more bytes are needed
    Complete,
    Malformed, ///< no definite-length block, or one that is too long
};

/// Takes an IEEE 488.2 definite-length block ("#", the number of digits of the length, the length,
/// the data) from the beginning of @p bytes; what follows it is ignored. @p data is filled when the
/// block is complete.
BlockState parseBlock(const QByteArray& bytes, QByteArray& data);

/// As above; @p size becomes the number of bytes that the whole block takes in @p bytes.
BlockState parseBlock(const QByteArray& bytes, QByteArray& data, int& size);
