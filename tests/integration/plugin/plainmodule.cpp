// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

/// A shared object that a process can load and in which no plug-in is found.
extern "C" __attribute__((visibility("default"))) int plainModuleAnswer()
{
    return 42;
}
