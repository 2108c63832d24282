// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostoptions.h"

class QTextStream;
class HostApplication;

/// Exit codes of kvx-host.
enum HostExit {
    HostDone = 0,
    HostUsage = 2, ///< wrong options, or a file, folder or socket that cannot be used
    HostNoPort = 4 ///< the screen's port cannot be opened
};

/// Sets what the platform reads when the application is made: where the screen is shown, unless the
/// environment says it already, and the on-screen keyboard.
void preparePlatform(const HostOptions& options);

/// Runs the host until the process is asked to end, and returns its exit code. Writes one line to
/// @p out once screen and keypad can be used.
int runHostProgram(HostApplication& application, const HostOptions& options, QTextStream& out,
                   QTextStream& err);
