// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputtrace.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

// Samples [first, last) of one column of the picture.
struct Stretch
{
    qint64 first;
    qint64 last;
};

qint64 indexAt(const OutputTrace& trace, double seconds)
{
    const double index = std::floor((seconds - trace.start) / trace.step);
    return qint64(qBound(0.0, index, double(trace.counts.size())));
}

double timeOf(const OutputTrace& trace, qint64 index)
{
    return trace.start + double(index) * trace.step;
}

// A corner at which the level changes: two points above each other.
void appendStep(QVector<QPointF>& corners, double seconds, double volts)
{
    if (corners.last().y() == volts)
        return;
    corners.append({seconds, corners.last().y()});
    corners.append({seconds, volts});
}

bool appendSteps(QVector<QPointF>& corners, const OutputTrace& trace, Stretch seen, int limit)
{
    for (qint64 i = seen.first; i < seen.last; ++i) {
        appendStep(corners, timeOf(trace, i), trace.voltsOf(trace.counts[size_t(i)]));
        if (corners.size() > limit)
            return false;
    }
    return true;
}

// Lowest and highest sample in their order, then the last one.
void appendColumn(QVector<QPointF>& corners, const OutputTrace& trace, Stretch stretch)
{
    const auto begin = trace.counts.begin();
    const auto extremes =
        std::minmax_element(begin + long(stretch.first), begin + long(stretch.last));
    qint64 picked[] = {extremes.first - begin, extremes.second - begin, stretch.last - 1};
    std::sort(std::begin(picked), std::end(picked));
    for (const qint64 index : picked)
        appendStep(corners, timeOf(trace, index), trace.voltsOf(trace.counts[size_t(index)]));
}

void appendColumns(QVector<QPointF>& corners, const OutputTrace& trace, Stretch seen, int columns)
{
    const qint64 samples = seen.last - seen.first;
    for (int column = 0; column < columns; ++column) {
        const Stretch stretch{seen.first + samples * column / columns,
                              seen.first + samples * (column + 1) / columns};
        if (stretch.first < stretch.last)
            appendColumn(corners, trace, stretch);
    }
}

QByteArray shortest(double value)
{
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

} // namespace

double OutputTrace::voltsAt(double seconds) const
{
    if (isEmpty() || !(seconds >= start) || seconds >= end())
        return idle;
    const auto index = size_t((seconds - start) / step);
    return voltsOf(counts[std::min(index, counts.size() - 1)]);
}

void OutputTrace::levels(double& lowest, double& highest) const
{
    lowest = highest = idle;
    if (isEmpty())
        return;
    const auto extremes = std::minmax_element(counts.begin(), counts.end());
    for (const double volts : {voltsOf(*extremes.first), voltsOf(*extremes.second)}) {
        lowest = std::min(lowest, volts);
        highest = std::max(highest, volts);
    }
}

QVector<QPointF> outlineOf(const OutputTrace& trace, double from, double to, int columns)
{
    QVector<QPointF> corners = {{from, trace.voltsAt(from)}};
    if (!trace.isEmpty() && to > trace.start && from < trace.end()) {
        const Stretch seen{indexAt(trace, from),
                           std::min(indexAt(trace, to) + 1, qint64(trace.counts.size()))};
        const QVector<QPointF> beginning = corners;
        if (!appendSteps(corners, trace, seen, 2 * columns)) {
            corners = beginning;
            appendColumns(corners, trace, seen, columns);
        }
        if (to > trace.end())
            appendStep(corners, trace.end(), trace.idle);
    }
    corners.append({to, corners.last().y()});
    return corners;
}

QByteArray csvOf(const OutputTrace& trace)
{
    const int bytesPerLine = 44;
    QByteArray text("time_s,volts\n");
    text.reserve(text.size() + int(trace.counts.size()) * bytesPerLine);
    for (size_t i = 0; i < trace.counts.size(); ++i) {
        text += shortest(timeOf(trace, qint64(i)));
        text += ',';
        text += shortest(trace.voltsOf(trace.counts[i]));
        text += '\n';
    }
    return text;
}
