// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformcheck.h"

#include "setuprules.h"
#include "thumbnail.h"
#include "waveformreader.h"

#include "devicetable.h"

#include <algorithm>
#include <cstring>

using appPlugins::ThumbnailColumns;
using appPlugins::WaveformFile;
using appPlugins::WaveformFullScale;

namespace {

void checkReserved(const QByteArray& bytes, QVector<Finding>& findings)
{
    const int headerBytes = sizeof(appPlugins::WaveformFileHeader);
    for (int i = sizeof(appPlugins::WaveformInfo); i < headerBytes; ++i) {
        if (bytes.at(i) != 0) {
            findings.append({QStringLiteral("reserved"),
                             QStringLiteral("byte %1 of the file is not zero").arg(i)});
            return;
        }
    }
}

void checkThumbnail(const WaveformFile& file, QVector<Finding>& findings)
{
    if (file.header.hasThumbnail != 1)
        findings.append({QStringLiteral("hasThumbnail"),
                         QStringLiteral("%1 instead of 1").arg(file.header.hasThumbnail)});

    const Thumbnail expected = thumbnailOf(file.samples);
    int differing = 0;
    for (int column = 0; column < ThumbnailColumns; ++column)
        differing += std::memcmp(thumbnailColumn(expected.data(), column),
                                 thumbnailColumn(file.header.thumbnail, column), 2) != 0;
    if (differing > 0)
        findings.append(
            {QStringLiteral("thumbnail"), QStringLiteral("%1 of %2 columns do not show the samples")
                                              .arg(differing)
                                              .arg(ThumbnailColumns)});
}

void checkRange(const WaveformFile& file, QVector<Finding>& findings)
{
    const auto outside = [](qint16 sample) { return std::abs(int(sample)) > WaveformFullScale; };
    const auto first = std::find_if(file.samples.cbegin(), file.samples.cend(), outside);
    if (first == file.samples.cend())
        return;
    findings.append({QStringLiteral("samples"),
                     QStringLiteral("%1 outside -%2 to %2, the first is %3 at point %4")
                         .arg(std::count_if(first, file.samples.cend(), outside))
                         .arg(WaveformFullScale)
                         .arg(*first)
                         .arg(first - file.samples.cbegin())});
}

// The writer stretches every waveform over the whole range, and makes a constant one zero.
void checkNormalised(const WaveformFile& file, QVector<Finding>& findings)
{
    const auto bounds = std::minmax_element(file.samples.cbegin(), file.samples.cend());
    const int low = *bounds.first;
    const int high = *bounds.second;
    const bool constant = low == 0 && high == 0;
    if (constant || (low <= -WaveformFullScale && high >= WaveformFullScale))
        return;
    findings.append(
        {QStringLiteral("samples"), QStringLiteral("%1 to %2 do not fill the range of -%3 to %3")
                                        .arg(low)
                                        .arg(high)
                                        .arg(WaveformFullScale)});
}

void checkLevels(const WaveformFile& file, QVector<Finding>& findings)
{
    double largest = 0;
    for (const QStringList& family : deviceFamilies())
        largest = std::max(largest, family.at(DeviceOffsetPlus).toDouble());

    const double amplitude = file.header.ampValue;
    const double reach = std::abs(file.header.offsetValue) + std::abs(amplitude) * 0.5;
    if (amplitude <= 0)
        findings.append({QStringLiteral("ampValue"),
                         QStringLiteral("%1 V is not above 0").arg(numberText(amplitude))});
    if (reach > largest * (1 + 1e-9))
        findings.append({QStringLiteral("ampValue"),
                         QStringLiteral("with the offset the levels reach %1 V, above %2 V, the "
                                        "limit of the largest models")
                             .arg(numberText(reach), numberText(largest))});
}

Finding refused(const QString& reason)
{
    const int colon = reason.indexOf(QLatin1String(": "));
    return {reason.left(colon), reason.mid(colon + 2)};
}

} // namespace

QVector<Finding> checkWaveform(const QByteArray& bytes)
{
    WaveformFile file;
    const QString reason = appPlugins::parseWaveform(bytes, file);
    if (!reason.isEmpty())
        return {refused(reason)};

    QVector<Finding> findings;
    checkReserved(bytes, findings);
    checkThumbnail(file, findings);
    checkLevels(file, findings);
    if (file.samples.empty()) {
        findings.append({QStringLiteral("points"), QStringLiteral("0, nothing can be played")});
    } else {
        checkRange(file, findings);
        checkNormalised(file, findings);
    }
    return findings;
}
