// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceoutline.h"

#include <algorithm>

namespace {

QVector<QPointF> stepCorners(const OutputWaveform& waveform, int limit)
{
    const std::vector<double>& volts = waveform.volts;
    QVector<QPointF> corners = {{0, volts.front()}};
    for (size_t i = 1; i < volts.size() && corners.size() <= limit; ++i) {
        if (volts[i] == volts[i - 1])
            continue;
        const double x = waveform.position(double(i));
        corners.append({x, volts[i - 1]});
        corners.append({x, volts[i]});
    }
    return corners;
}

// First, lowest, highest and last point of one column, in their order.
void appendColumn(QVector<QPointF>& corners, const OutputWaveform& waveform, size_t begin,
                  size_t end)
{
    const auto first = waveform.volts.begin();
    const auto extremes = std::minmax_element(first + long(begin), first + long(end));
    size_t picked[] = {begin, size_t(extremes.first - first), size_t(extremes.second - first),
                       end - 1};
    std::sort(std::begin(picked), std::end(picked));
    for (const size_t index : picked)
        corners.append({waveform.position(double(index)), waveform.volts[index]});
}

QVector<QPointF> columnCorners(const OutputWaveform& waveform, int columns)
{
    const size_t points = waveform.volts.size();
    QVector<QPointF> corners;
    for (size_t column = 0; column < size_t(columns); ++column) {
        const size_t begin = points * column / size_t(columns);
        const size_t end = points * (column + 1) / size_t(columns);
        if (begin < end)
            appendColumn(corners, waveform, begin, end);
    }
    return corners;
}

} // namespace

QVector<QPointF> outlineOf(const OutputWaveform& waveform, int columns)
{
    if (waveform.volts.empty())
        return {};
    const int limit = 4 * columns;
    QVector<QPointF> corners = stepCorners(waveform, limit);
    if (corners.size() > limit)
        corners = columnCorners(waveform, columns);
    corners.append({waveform.position(double(waveform.volts.size())), waveform.volts.back()});
    return corners;
}
