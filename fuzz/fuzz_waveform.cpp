// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformreader.h"

#include <cmath>
#include <cstddef>
#include <cstdlib>

// A waveform file as a stranger made it: either it is refused with a reason, or every sample that
// its header promises is there and has a voltage.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    appPlugins::WaveformFile file;
    const QString reason = appPlugins::parseWaveform(bytes, file);
    if (!reason.isEmpty())
        return file.samples.empty() ? 0 : (std::abort(), 0);

    if (file.samples.size() != file.header.points)
        std::abort();
    double sum = 0;
    for (const qint16 sample : file.samples)
        sum += file.volts(sample);
    return std::isnan(sum) && std::fabs(file.header.ampValue) < 1e300 ? (std::abort(), 0) : 0;
}
