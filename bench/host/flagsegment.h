// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

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
    /// then. False with errorString() set if neither is possible.
    bool open();

    QString errorString() const { return m_segment.errorString(); }

    /// Whether keys are to be swallowed. False without a segment.
    bool discardsKeys() const;

    /// Whether the host's own commands are to be held back. False without a segment. May be asked
    /// from any thread while the segment is open.
    bool blocksCommands() const;

private:
    QSharedMemory m_segment;
};
