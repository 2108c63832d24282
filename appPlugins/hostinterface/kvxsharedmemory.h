// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <type_traits>

/// The beginning of the shared-memory segment that the host creates and plug-ins attach to, one
/// byte a flag. They are written under the segment's lock. The host may keep more behind it.
class KVXSharedMemory
{
public:
    /// Key of the segment.
    static constexpr const char* Key = "KVX70K Shared Memory";

    /// Both flags cleared: what the host does once it has created the segment.
    void InitAll()
    {
        m_bDiscardKeys = false;
        m_bBlockSCPI = false;
    }

    /// While set, key events that reach the plug-in's window are swallowed.
    void SetDiscardKeys(bool discard) { m_bDiscardKeys = discard; }
    /// Whether key events to the plug-in's window are swallowed.
    bool GetDiscardKeys() const { return m_bDiscardKeys; }

    /// While set, the plug-in talks to the instrument and the host holds its own commands back.
    void SetBlockSCPI(bool block) { m_bBlockSCPI = block; }
    /// Whether the host holds its own commands back.
    bool GetBlockSCPI() const { return m_bBlockSCPI; }

private:
    bool m_bDiscardKeys;
    bool m_bBlockSCPI;
};

static_assert(sizeof(bool) == 1 && sizeof(KVXSharedMemory) == 2, "one byte a flag, in this order");
static_assert(std::is_trivially_copyable<KVXSharedMemory>::value, "plain memory");
static_assert(std::is_standard_layout<KVXSharedMemory>::value, "plain memory");
