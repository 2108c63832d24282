// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostflags.h"

#include "hostinterface/kvxsharedmemory.h"

#include <QSharedMemory>

namespace {

QString segmentKey()
{
    return QLatin1String(KVXSharedMemory::Key);
}

KVXSharedMemory* flags(QSharedMemory& segment)
{
    return static_cast<KVXSharedMemory*>(segment.data());
}

} // namespace

bool HostFlags::setBoth(bool value)
{
    QSharedMemory segment(segmentKey());
    if (!segment.attach(QSharedMemory::ReadWrite))
        return false;

    segment.lock();
    if (value) {
        flags(segment)->SetDiscardKeys(true);
        flags(segment)->SetBlockSCPI(true);
    } else {
        flags(segment)->SetBlockSCPI(false);
        flags(segment)->SetDiscardKeys(false);
    }
    segment.unlock();
    segment.detach();
    return true;
}

bool HostFlags::readDiscardKeys(bool& discard)
{
    QSharedMemory segment(segmentKey());
    if (!segment.attach(QSharedMemory::ReadWrite))
        return false;

    discard = flags(segment)->GetDiscardKeys();
    segment.detach();
    return true;
}
