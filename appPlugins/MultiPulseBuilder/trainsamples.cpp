// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "trainsamples.h"

#include "cfilebase.h"
#include "pulsesynthesis.h"
#include "saturate.h"

#include <algorithm>
#include <memory>
#include <string>

namespace {

enum GroupEntry { GroupDelay, GroupLeading, GroupWidth, GroupTrailing, GroupGap };

PulseStretch makeStretch(const PulseTrain& train, double totalPeriod, double delay, Pulse pulse,
                         qint64 start)
{
    std::vector<double> times = {delay, train.leadingEdge, pulse.width, train.trailingEdge,
                                 pulse.gap};
    long points = 0;
    // Without a period there is nothing to share the points by.
    if (!timeUnitConvertToPointsUnit(totalPeriod, times, points))
        return {start, 0, 0, 0, 0, 0, 0};
    return {start,
            points,
            times[GroupDelay],
            times[GroupLeading],
            times[GroupWidth],
            times[GroupTrailing],
            times[GroupGap]};
}

// The gap is not passed on: it is the base level that fills the stretch behind the trailing edge.
INFO_PULSE pulseInfo(const PulseTrain& train, const PulseStretch& stretch)
{
    INFO_PULSE info = {};
    info.dblCycle = 1;
    info.l50Width = stretch.width;
    info.lRiseTime = stretch.leadingEdge;
    info.lFallTime = stretch.trailingEdge;
    info.lDelay = toCount(stretch.delay);
    // The slope of the trigger doubles as the polarity of the pulses.
    info.lDirect = train.triggerSlope;
    return info;
}

// Every stretch is added, the first one to zeros: negative gaps make stretches overlap.
void addStretch(const PulseTrain& train, const PulseStretch& stretch, double* buffer)
{
    INFO_WFM info = {};
    info.lAction = 2;
    info.dblAmp = train.fileAmplitude();
    info.dblOffset = train.fileOffset();
    info.lStart = toCount(stretch.start);
    info.lStop = toCount(stretch.start + stretch.points - 1);
    info.lSize = toCount(stretch.points);
    makePulseInWindow(info, pulseInfo(train, stretch), buffer, {0, PointBudget});
}

} // namespace

std::vector<PulseStretch> pulseStretches(const PulseTrain& train)
{
    const double period = train.totalPeriod();
    std::vector<PulseStretch> stretches;
    stretches.push_back(makeStretch(train, period, train.delay, train.pulses.value(0), 0));
    for (int i = 1; i < train.pulses.size(); ++i) {
        const PulseStretch& last = stretches.back();
        stretches.push_back(
            makeStretch(train, period, 0, train.pulses.at(i), last.start + last.points));
    }
    return stretches;
}

Uint32 waveformPoints(const std::vector<PulseStretch>& stretches)
{
    const qint64 end = stretches.back().start + stretches.back().points;
    return static_cast<Uint32>(std::min(std::max(end, qint64(0)), qint64(PointBudget)));
}

Uint32 synthesise(const PulseTrain& train, double* buffer)
{
    std::fill_n(buffer, PointBudget, 0.0);
    const std::vector<PulseStretch> stretches = pulseStretches(train);
    for (const PulseStretch& stretch : stretches)
        addStretch(train, stretch, buffer);
    return waveformPoints(stretches);
}

bool writeTrainWaveform(const char* filePath, const PulseTrain& train, double* buffer,
                        Uint32& points)
{
    points = synthesise(train, buffer);
    // The writer's signature takes a modifiable path and does not modify it.
    std::string path(filePath);
    appPlugins::CWaveformFileWriter writer;
    return writer.write(&path[0], points, train.fileAmplitude(), train.fileOffset(), buffer);
}

bool writeTrainWaveform(const char* filePath, const PulseTrain& train, double* buffer)
{
    Uint32 points = 0;
    return writeTrainWaveform(filePath, train, buffer, points);
}

bool writeTrainWaveform(const char* filePath, const PulseTrain& train, Uint32& points)
{
    // Left uninitialised: synthesise() zeroes what it fills.
    const std::unique_ptr<double[]> buffer(new double[PointBudget]);
    return writeTrainWaveform(filePath, train, buffer.get(), points);
}

bool writeTrainWaveform(const char* filePath, const PulseTrain& train)
{
    Uint32 points = 0;
    return writeTrainWaveform(filePath, train, points);
}
