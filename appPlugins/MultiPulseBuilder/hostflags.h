// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// The host's two flags, reached through its shared-memory segment. The segment is attached for
/// each access alone, and its lock is held only while the bytes are written.
namespace HostFlags {

/// Sets or clears both flags: keys are discarded and the host's own commands held back while they
/// are set. False, with nothing written, where the host has no segment.
bool setBoth(bool value);

/// Reads the discard flag into @p discard. False, with nothing read, where the host has no segment.
bool readDiscardKeys(bool& discard);

} // namespace HostFlags
