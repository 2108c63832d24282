// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputwaveform.h"

#include "rendering.h"

#include <QLocale>

#include <cmath>

namespace {

QByteArray shortest(double value)
{
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace

void OutputWaveform::setPeriod(double seconds)
{
    const bool usable = std::isfinite(seconds) && seconds > 0 && !volts.empty();
    step = usable ? seconds / double(volts.size()) : 0;
}

OutputWaveform outputOfFile(const appPlugins::WaveformFile& file, LoadImpedance load)
{
    const double factor = load == LoadImpedance::HighZ ? 2.0 : 1.0;
    const double half = std::fabs(file.header.ampValue) * 0.5;

    OutputWaveform output;
    output.low = factor * (file.header.offsetValue - half);
    output.high = factor * (file.header.offsetValue + half);
    output.volts.reserve(file.samples.size());
    for (const qint16 sample : file.samples)
        output.volts.push_back(factor * file.volts(sample));
    return output;
}

QString outputOfTrain(const PulseTrain& train, OutputWaveform& output)
{
    QByteArray bytes;
    appPlugins::WaveformFile file;
    QString reason = Renderer().makeBytes(train, bytes);
    if (reason.isEmpty())
        reason = appPlugins::parseWaveform(bytes, file);
    if (!reason.isEmpty())
        return reason;
    output = outputOfFile(file, train.load);
    output.setPeriod(train.totalPeriod());
    return QString();
}

QByteArray csvOf(const OutputWaveform& waveform)
{
    const int bytesPerLine = 44;
    QByteArray text(waveform.hasTime() ? "time_s,volts\n" : "point,volts\n");
    text.reserve(text.size() + int(waveform.volts.size()) * bytesPerLine);
    for (size_t i = 0; i < waveform.volts.size(); ++i) {
        text += waveform.hasTime() ? shortest(waveform.position(double(i)))
                                   : QByteArray::number(qulonglong(i));
        text += ',';
        text += shortest(waveform.volts[i]);
        text += '\n';
    }
    return text;
}
