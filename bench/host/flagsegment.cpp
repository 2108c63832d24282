// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "flagsegment.h"

#include "hostinterface/kvxsharedmemory.h"

namespace {

// More than the two flags need: plug-ins built elsewhere may attach to a larger structure.
const int SegmentSize = 64;

const KVXSharedMemory* flagsOf(const QSharedMemory& segment)
{
    return static_cast<const KVXSharedMemory*>(segment.constData());
}

} // namespace

FlagSegment::FlagSegment()
    : m_segment(QLatin1String(KVXSharedMemory::Key))
{}

FlagSegment::~FlagSegment() = default;

bool FlagSegment::open()
{
    const bool isOpen = m_segment.create(SegmentSize) ||
                        (m_segment.error() == QSharedMemory::AlreadyExists && m_segment.attach());
    if (!isOpen || !m_segment.lock())
        return false;
    static_cast<KVXSharedMemory*>(m_segment.data())->InitAll();
    return m_segment.unlock();
}

bool FlagSegment::discardsKeys() const
{
    return m_segment.isAttached() && flagsOf(m_segment)->GetDiscardKeys();
}

bool FlagSegment::blocksCommands() const
{
    return m_segment.isAttached() && flagsOf(m_segment)->GetBlockSCPI();
}
