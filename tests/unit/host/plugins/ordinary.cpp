// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

/// A library that is no plug-in at all.
extern "C" __attribute__((visibility("default"))) int ordinaryAnswer()
{
    return 42;
}
