// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cfilebase.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace appPlugins {

/// A waveform file held in memory.
struct APPPLUGINS_EXPORT WaveformFile
{
    WaveformInfo header = {}; ///< as it stands in the file
    /// header.points entries; a file of the writer's has them from -32764 to 32764
    std::vector<qint16> samples;

    /// Voltage of a sample at the generator's output into its matched load: header.offsetValue plus
    /// sample / 32764 times half of header.ampValue.
    double volts(qint16 sample) const;
};

/// Most samples that a file may hold: the instrument's waveform length.
const Uint32 MaxWaveformPoints = 1048576;

/// Takes a waveform file apart. On success returns an empty text and fills @p file; otherwise
/// returns what is wrong (magic, version, size, point count or levels that are not finite numbers)
/// and leaves @p file as it was.
APPPLUGINS_EXPORT QString parseWaveform(const QByteArray& bytes, WaveformFile& file);

/// Reads the waveform file at @p path; no more is read than the largest file may hold. Returns as
/// parseWaveform() does, the system's reason for a file that cannot be read included.
APPPLUGINS_EXPORT QString readWaveform(const QString& path, WaveformFile& file);

} // namespace appPlugins
