// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "flagsegment.h"

#include "hostinterface/kvxsharedmemory.h"

#include <cerrno>

#include <sys/file.h>

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
    if (attach() && takeKey() && clear())
        return true;
    m_segment.detach();
    m_keyFile.close();
    return false;
}

bool FlagSegment::attach()
{
    if (m_segment.create(SegmentSize) ||
        (m_segment.error() == QSharedMemory::AlreadyExists && m_segment.attach()))
        return true;
    m_strError = m_segment.errorString();
    return false;
}

// The segment's native key is a file, which stays as long as somebody is attached. A running host
// has it locked; with a killed host its lock ends. Who is attached would tell less: plug-ins are.
bool FlagSegment::takeKey()
{
    m_keyFile.setFileName(m_segment.nativeKey());
    if (!m_keyFile.open(QIODevice::ReadOnly)) {
        m_strError = QStringLiteral("%1: %2").arg(m_keyFile.fileName(), m_keyFile.errorString());
        return false;
    }
    if (::flock(m_keyFile.handle(), LOCK_EX | LOCK_NB) == 0)
        return true;
    m_strError =
        errno == EWOULDBLOCK ? QStringLiteral("a running host has it") : qt_error_string(errno);
    return false;
}

bool FlagSegment::clear()
{
    if (m_segment.lock()) {
        static_cast<KVXSharedMemory*>(m_segment.data())->InitAll();
        if (m_segment.unlock())
            return true;
    }
    m_strError = m_segment.errorString();
    return false;
}

bool FlagSegment::discardsKeys() const
{
    return m_segment.isAttached() && flagsOf(m_segment)->GetDiscardKeys();
}

bool FlagSegment::blocksCommands() const
{
    return m_segment.isAttached() && flagsOf(m_segment)->GetBlockSCPI();
}
