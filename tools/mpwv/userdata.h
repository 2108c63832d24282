// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commandline.h"

/// The folder that the instrument reads waveform files from.

/// The option "--user-data".
void addUserDataOption(CommandLine& line);

/// The folder that the option names, "/mnt/user-data" without it.
QString userDataFolder(const CommandLine& line);

/// The waveform file that a run plays, in that folder: the one that the instrument knows as
/// "M:/run.mpwv".
QString runFilePath(const CommandLine& line);
