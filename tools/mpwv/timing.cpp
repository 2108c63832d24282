// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "timing.h"

#include "trainsamples.h"

#include <limits>

TrainTiming trainTiming(const PulseTrain& train)
{
    const std::vector<PulseStretch> stretches = pulseStretches(train);
    TrainTiming timing;
    timing.period = train.totalPeriod();
    timing.frequency = train.frequency();
    timing.points = waveformPoints(stretches);
    timing.spacing = timing.points > 0 ? timing.period / static_cast<double>(timing.points)
                                       : std::numeric_limits<double>::quiet_NaN();

    const auto quantised = [&timing](double asked, double points) {
        return QuantisedTime{asked, points, points * timing.spacing};
    };
    timing.delay = quantised(train.delay, stretches.front().delay);
    for (int i = 0; i < train.pulses.size(); ++i) {
        const PulseStretch& stretch = stretches[size_t(i)];
        timing.pulses.append({quantised(train.pulses.at(i).width, stretch.width),
                              quantised(train.pulses.at(i).gap, stretch.gap)});
    }
    return timing;
}
