// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformdiff.h"

#include "input.h"
#include "pulsefinder.h"
#include "setuprules.h"
#include "thumbnail.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using appPlugins::ThumbnailColumns;
using appPlugins::WaveformFile;

namespace {

// Times are compared to the tenth of a picosecond: less is lost in the arithmetic.
const double SameTime = 1e-13;

void addNumber(const QString& field, double left, double right, QStringList& lines)
{
    if (left != right)
        lines.append(
            QStringLiteral("%1: %2 -> %3").arg(field, numberText(left), numberText(right)));
}

int differingColumns(const WaveformFile& left, const WaveformFile& right)
{
    int count = 0;
    for (int i = 0; i < ThumbnailColumns; ++i)
        count += std::memcmp(thumbnailColumn(left.header.thumbnail, i),
                             thumbnailColumn(right.header.thumbnail, i), 2) != 0;
    return count;
}

QString signedPoints(qint64 points)
{
    return QStringLiteral("%1%2 points")
        .arg(points < 0 ? QString() : QStringLiteral("+"), QString::number(points));
}

QString signedTime(double seconds)
{
    const QString text = engineeringText(seconds, QStringLiteral("s"));
    return seconds < 0 ? text : QLatin1Char('+') + text;
}

QString edgeLine(int edge, int left, double leftSpacing, int right, double rightSpacing)
{
    const double moved = right * rightSpacing - left * leftSpacing;
    const bool timed = leftSpacing > 0 && rightSpacing > 0;
    if (left == right && (!timed || std::fabs(moved) < SameTime))
        return QString();
    const QString points = QStringLiteral("edge %1: point %2 -> %3, %4")
                               .arg(QString::number(edge), QString::number(left),
                                    QString::number(right), signedPoints(qint64(right) - left));
    return timed ? points + QLatin1String(", ") + signedTime(moved) : points;
}

} // namespace

QStringList differingHeader(const WaveformFile& left, const WaveformFile& right)
{
    QStringList lines;
    addNumber(QStringLiteral("points"), left.header.points, right.header.points, lines);
    addNumber(QStringLiteral("hasThumbnail"), left.header.hasThumbnail, right.header.hasThumbnail,
              lines);
    addNumber(QStringLiteral("ampValue"), left.header.ampValue, right.header.ampValue, lines);
    addNumber(QStringLiteral("offsetValue"), left.header.offsetValue, right.header.offsetValue,
              lines);
    const int columns = differingColumns(left, right);
    if (columns > 0)
        lines.append(QStringLiteral("thumbnail: %1 of %2 columns differ")
                         .arg(columns)
                         .arg(ThumbnailColumns));
    return lines;
}

QStringList differingSamples(const WaveformFile& left, const WaveformFile& right)
{
    const size_t common = std::min(left.samples.size(), right.samples.size());
    size_t first = common;
    int count = 0;
    int largest = 0;
    for (size_t i = common; i-- > 0;) {
        const int difference = std::abs(right.samples[i] - left.samples[i]);
        if (difference == 0)
            continue;
        ++count;
        first = i;
        largest = std::max(largest, difference);
    }
    if (count == 0)
        return {};
    return {QStringLiteral("samples: %1 of %2 differ, the first at point %3, by %4 at most")
                .arg(count)
                .arg(common)
                .arg(first)
                .arg(largest)};
}

QStringList movedEdges(const WaveformFile& left, double leftSpacing, const WaveformFile& right,
                       double rightSpacing)
{
    const QVector<int> leftEdges = findEdges(left.samples);
    const QVector<int> rightEdges = findEdges(right.samples);
    QStringList lines;
    if (leftEdges.size() != rightEdges.size())
        lines.append(
            QStringLiteral("edges: %1 -> %2").arg(leftEdges.size()).arg(rightEdges.size()));
    for (int i = 0; i < std::min(leftEdges.size(), rightEdges.size()); ++i) {
        const QString line =
            edgeLine(i + 1, leftEdges.at(i), leftSpacing, rightEdges.at(i), rightSpacing);
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines;
}
