// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "generatorlimits.h"
#include "segment.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

/// An entry for the error queue; number 0 for success.
struct StoreError
{
    int number = 0;    ///< standard number, see WaveformStore::load()
    QByteArray detail; ///< one line without double quotes
};

/// Levels of a waveform file, into 50 ohm.
struct WaveformLevels
{
    double amplitude = 0; ///< volts peak-to-peak between the counts -32764 and 32764
    double offset = 0;    ///< volts of the count 0
};

/// Samples that the waveform memory holds: a waveform of full length for each of two channels, and
/// room for a third that is loaded before the one that it replaces goes.
const Uint32 DefaultWaveformMemory = 3 * 1048576;

/// The generator's waveform memory, and the way from files into it.
///
/// Files are named as the instrument names them: "M:/" is the user-data folder, "/" parts folders.
/// The memory is one stretch of doubles; each slot holds one waveform in one segment of it. Slots
/// are any numbers of the caller's, such as those of its channels; at most 16 are filled at a time.
class WaveformStore
{
public:
    /// @p userDataFolder is the folder that "M:/" stands for; it may appear later.
    WaveformStore(const QString& userDataFolder, const GeneratorLimits& limits,
                  Uint32 memorySamples = DefaultWaveformMemory);

    /// Loads the waveform file @p name into a slot, in place of what the slot holds, and tells its
    /// levels. On an error nothing changes:
    /// -222 its levels are more than this model can put out; -225 no waveform memory is left; -250
    /// it cannot be read or is no sound waveform file of 1 to 1048576 points; -256 there is no such
    /// file; -257 the name does not name a plain file inside "M:/".
    StoreError load(int slot, const QString& name, WaveformLevels& levels);

    bool holds(int slot) const { return m_segments.contains(slot); }

    /// The slot's counts as they stood in the file; empty for an empty slot.
    QVector<qint16> counts(int slot) const;

    /// Empties a slot and frees its memory.
    void remove(int slot);

    /// Empties all slots.
    void clear();

    /// Samples that are free, in one stretch or in several.
    Uint32 freeSamples() const { return m_manager.getFreeSpace(); }

private:
    StoreError resolve(const QString& name, QString& path) const;
    appPlugins::SEGID allocate(Uint32 samples);
    StoreError keep(int slot, const std::vector<qint16>& samples);

    QString m_strFolder;
    GeneratorLimits m_limits;
    appPlugins::SegmentManager m_manager;
    std::unique_ptr<double[]> m_pMemory;
    QHash<int, appPlugins::SEGID> m_segments;
};
