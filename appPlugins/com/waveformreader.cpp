// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformreader.h"

#include <QFile>
#include <QtEndian>

#include <cmath>
#include <cstring>

namespace appPlugins {

namespace {

const qint64 MaxFileBytes = qint64(sizeof(WaveformFileHeader)) + 2 * qint64(MaxWaveformPoints);

QString checkHeader(const WaveformInfo& header, qint64 fileBytes)
{
    char magic[WaveformMagicSize] = {};
    std::memcpy(magic, WaveformMagic, sizeof WaveformMagic - 1);
    if (std::memcmp(header.magic, magic, sizeof magic) != 0)
        return QStringLiteral("magic: not a waveform file");
    if (header.version != WaveformVersion)
        return QStringLiteral("version: %1 instead of %2").arg(header.version).arg(WaveformVersion);
    if (header.points > MaxWaveformPoints)
        return QStringLiteral("points: %1 are more than the %2 that a waveform may have")
            .arg(header.points)
            .arg(MaxWaveformPoints);

    const qint64 expected = qint64(sizeof(WaveformFileHeader)) + 2 * qint64(header.points);
    if (fileBytes != expected)
        return QStringLiteral("size: %1 bytes instead of %2 for %3 points")
            .arg(fileBytes)
            .arg(expected)
            .arg(header.points);
    if (!std::isfinite(header.ampValue))
        return QStringLiteral("ampValue: not a finite number");
    if (!std::isfinite(header.offsetValue))
        return QStringLiteral("offsetValue: not a finite number");
    return QString();
}

} // namespace

double WaveformFile::volts(qint16 sample) const
{
    return header.offsetValue + sample * header.ampValue * 0.5 / WaveformFullScale;
}

QString parseWaveform(const QByteArray& bytes, WaveformFile& file)
{
    WaveformFileHeader header;
    if (bytes.size() < int(sizeof header))
        return QStringLiteral("size: %1 bytes are less than the header's %2")
            .arg(bytes.size())
            .arg(sizeof header);

    std::memcpy(&header, bytes.constData(), sizeof header);
    const QString reason = checkHeader(header.info, bytes.size());
    if (!reason.isEmpty())
        return reason;

    file.header = header.info;
    file.samples.resize(header.info.points);
    if (file.samples.empty())
        return QString();
    qFromLittleEndian<qint16>(bytes.constData() + sizeof header, header.info.points,
                              file.samples.data());
    return QString();
}

QString readWaveform(const QString& path, WaveformFile& file)
{
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly))
        return source.errorString();

    // One byte more than the largest file, so that a larger one is told from it.
    const QByteArray bytes = source.read(MaxFileBytes + 1);
    if (source.error() != QFileDevice::NoError)
        return source.errorString();
    if (bytes.size() > MaxFileBytes)
        return QStringLiteral("size: more than the %1 bytes of the largest waveform file")
            .arg(MaxFileBytes);
    return parseWaveform(bytes, file);
}

} // namespace appPlugins
