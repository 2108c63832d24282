// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatorlimits.h"

#include "devicetable.h"

namespace {

const double LevelTolerance = 1e-4;

// In the order of the device table.
const char* const ModelTexts[] = {"KVX70501", "KVX70402", "KVX70302", "KVX70202", "KVX70102"};

} // namespace

bool GeneratorLimits::canPlay(double amplitude, double offset) const
{
    // Written so that a NaN anywhere makes a comparison false.
    return amplitude >= 0 && amplitude <= maxAmplitude + LevelTolerance &&
           offset + amplitude / 2 <= levelPlus + LevelTolerance &&
           offset - amplitude / 2 >= levelMinus - LevelTolerance;
}

GeneratorLimits generatorLimits(const QString& modelFamily)
{
    const int row = deviceRowIndex(modelFamily.toLatin1());
    const QStringList cells = deviceFamilies().at(row);

    GeneratorLimits limits;
    limits.modelText = ModelTexts[row];
    limits.maxAmplitude = cells.at(DeviceMaxAmplitude).toDouble();
    limits.minAmplitude = cells.at(DeviceMinAmplitude).toDouble();
    limits.levelPlus = cells.at(DeviceOffsetPlus).toDouble();
    limits.levelMinus = cells.at(DeviceOffsetMinus).toDouble();
    limits.samplingRate = cells.at(DeviceSamplingRate).toDouble();
    limits.waveformLength = cells.at(DeviceWaveformLength).toUInt();
    return limits;
}
