// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsefinder.h"

#include <algorithm>

namespace {

// Twice the height, so that it stays a whole number.
int doubledHalfHeight(const std::vector<qint16>& samples)
{
    const auto bounds = std::minmax_element(samples.cbegin(), samples.cend());
    return *bounds.first + *bounds.second;
}

qint16 farthest(const std::vector<qint16>& samples, FoundPulse pulse, bool downwards)
{
    const auto first = samples.cbegin() + pulse.start;
    const auto last = first + pulse.width;
    return downwards ? *std::min_element(first, last) : *std::max_element(first, last);
}

} // namespace

QVector<int> findEdges(const std::vector<qint16>& samples)
{
    QVector<int> edges;
    if (samples.empty())
        return edges;

    const int height = doubledHalfHeight(samples);
    const auto isHigh = [height](qint16 sample) { return 2 * sample > height; };
    bool high = isHigh(samples.front());
    for (size_t i = 1; i < samples.size(); ++i) {
        if (isHigh(samples[i]) != high) {
            high = !high;
            edges.append(static_cast<int>(i));
        }
    }
    return edges;
}

FoundPulses findPulses(const std::vector<qint16>& samples)
{
    QVector<int> borders = findEdges(samples);
    FoundPulses found;
    if (borders.isEmpty())
        return found;

    found.downwards = 2 * samples.back() > doubledHalfHeight(samples);
    // Pulses and gaps take turns, and the last stretch is a gap.
    if (borders.size() % 2 != 0)
        borders.prepend(0);
    borders.append(static_cast<int>(samples.size()));
    for (int i = 0; i + 2 < borders.size(); i += 2) {
        const int start = borders.at(i);
        const int end = borders.at(i + 1);
        FoundPulse pulse = {start, end - start, borders.at(i + 2) - end, 0};
        pulse.level = farthest(samples, pulse, found.downwards);
        found.pulses.append(pulse);
    }
    return found;
}
