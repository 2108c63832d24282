// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commandline.h"
#include "outputwaveform.h"

#include <optional>

/// What the user names for plot and csv: a setup, or a waveform file with a time base or without.
struct WaveformSource
{
    bool isSetup = false;
    PulseTrain train; ///< of a setup
    OutputWaveform waveform;
    QString title; ///< name of the file without folder and ending
};

/// The argument and the options that readSource() reads: "--load", "--period" and "--frequency".
void addSourceOptions(CommandLine& line);

/// Reads what the command line's first argument names. Complains and returns the exit code, or
/// nothing when @p source is filled.
std::optional<int> readSource(const CommandLine& line, Streams& streams, WaveformSource& source);

/// Name of a file without folder and ending, as a title; "standard input" for "-".
QString titleOf(const QString& path);
