// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsetrain.h"

#include <QByteArray>
#include <QVector>

/// The commands that Run and Stop send to the instrument, as exact bytes in order. Blanks, two
/// blanks included, and line feeds belong to them; each is sent in a write of its own.
namespace RunSequence {

/// The waveform file that a run plays, as this program names it.
const char WaveformPath[] = "/mnt/user-data/run.mpwv";

/// Resets the instrument each time the editor is run. Not the spelling that Run and Stop use.
const char Reset[] = "*RST\n";

/// Ends every Run and Stop: its reply tells that the instrument has worked through the sequence.
const char ClosingQuery[] = "*IDN? \n";

/// Deletes the waveform file: a command for the shell.
const char DeleteWaveform[] = "rm /mnt/user-data/run.mpwv";

/// Tells the instrument what stands at its output.
QByteArray impedanceCommand(LoadImpedance load);

/// Everything that Run sends for a train, without the closing query.
QVector<QByteArray> runCommands(const PulseTrain& train);

/// Everything that Stop sends before the waveform file is deleted.
QVector<QByteArray> stopCommandsBeforeDelete();

/// Everything that Stop sends once the waveform file is gone, without the closing query.
QVector<QByteArray> stopCommandsAfterDelete();

} // namespace RunSequence
