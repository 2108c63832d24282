// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QSharedMemory>

/// The flags that the host shares with its plug-ins: made by the host, which clears them, and gone
/// with it.
class FlagSegment
{
public:
    FlagSegment();
    ~FlagSegment();
    FlagSegment(const FlagSegment&) = delete;
    FlagSegment& operator=(const FlagSegment&) = delete;

    /// Makes the segment, or takes over the one that a killed host has left; both flags are clear
    /// then. False with errorString() set if neither is possible, because a running host has it
    /// say.
    bool open();

    QString errorString() const { return m_strError; }

    /// Whether keys are to be swallowed. False without a segment.
    bool discardsKeys() const;

    /// Whether the host's own commands are to be held back. False without a segment. May be asked
    /// from any thread while the segment is open.
    bool blocksCommands() const;

private:
    bool attach();
    bool takeKey();
    bool clear();

    // Let go after the segment is gone.
    QFile m_keyFile;
    QSharedMemory m_segment;
    QString m_strError;
};
