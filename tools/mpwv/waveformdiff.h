// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "waveformreader.h"

#include <QStringList>

/// Lines that tell in which fields of their headers two waveform files differ.
QStringList differingHeader(const appPlugins::WaveformFile& left,
                            const appPlugins::WaveformFile& right);

/// At most one line: how many samples differ, where the first of them stands and by how much they
/// do at most.
QStringList differingSamples(const appPlugins::WaveformFile& left,
                             const appPlugins::WaveformFile& right);

/// Lines that tell which edges moved, paired in order, and whether one waveform has more of them.
/// The spacings are seconds between two points; 0 where the time is not known, and then only points
/// are compared.
QStringList movedEdges(const appPlugins::WaveformFile& left, double leftSpacing,
                       const appPlugins::WaveformFile& right, double rightSpacing);
