// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cfilebase.h"
#include "generatormodel.h"

#include <QFile>
#include <QTemporaryDir>
#include <QVector>

#include <cstring>

/// A waveform file as bytes, made by hand so that each of its fields can be wrong.
inline QByteArray waveformBytes(const QVector<qint16>& samples, double amplitude, double offset)
{
    appPlugins::WaveformFileHeader header;
    std::memset(&header, 0, sizeof header);
    std::memcpy(header.info.magic, "QRNKVX60K", 9);
    header.info.version = 20050114;
    header.info.points = quint32(samples.size());
    header.info.hasThumbnail = 1;
    header.info.ampValue = amplitude;
    header.info.offsetValue = offset;

    QByteArray bytes(reinterpret_cast<const char*>(header.byte), sizeof header.byte);
    for (const qint16 sample : samples) {
        bytes.append(char(quint16(sample) & 0xFF));
        bytes.append(char(quint16(sample) >> 8));
    }
    return bytes;
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

inline QVector<qint16> ramp(int points, int first = 0)
{
    QVector<qint16> samples(points);
    for (int i = 0; i < points; ++i)
        samples[i] = qint16(first + i);
    return samples;
}

/// A generator with a user-data folder of its own and a clock that stands still unless it is told.
class GeneratorFixture
{
public:
    explicit GeneratorFixture(const QString& family = QStringLiteral("KVX7010X"))
        : model(folder.path(), family, [this]() { return now; })
    {}

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    /// Makes channel 1 play the file in bursts, as a run does up to the switching on.
    void load(const QVector<qint16>& samples, double amplitude, double offset, double frequency)
    {
        writeBytes(path("run.mpwv"), waveformBytes(samples, amplitude, offset));
        if (model.loadWaveform(1, QStringLiteral("M:/run.mpwv")).number != 0)
            qFatal("the waveform file does not load");
        change(1, [frequency](ChannelSettings& settings) {
            settings.burstOn = true;
            settings.shape = WaveShape::File;
            settings.frequency = frequency;
        });
    }

    template<typename Change>
    void change(int channel, const Change& apply)
    {
        ChannelSettings settings = model.channel(channel).settings();
        apply(settings);
        model.applyChannel(channel, settings);
    }

    void setOutput(int channel, bool on)
    {
        change(channel, [on](ChannelSettings& settings) { settings.outputOn = on; });
    }

    void setSource(BurstTrigger source)
    {
        TriggerSettings settings = model.triggerSettings();
        settings.source = source;
        model.applyTrigger(settings);
    }

    QTemporaryDir folder;
    qint64 now = 1000;
    GeneratorModel model;
};
