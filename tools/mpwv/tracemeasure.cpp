// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracemeasure.h"

#include <algorithm>

namespace {

struct Extremes
{
    double low = 0;
    double high = 0;
    double middle() const { return (low + high) * 0.5; }
};

Extremes extremesOf(const std::vector<double>& volts)
{
    if (volts.empty())
        return {};
    const auto ends = std::minmax_element(volts.begin(), volts.end());
    return {*ends.first, *ends.second};
}

// Height above the middle, seen from the base.
double heightOf(double volts, double middle, Polarity polarity)
{
    return polarity == Polarity::Positive ? volts - middle : middle - volts;
}

void closePulse(QVector<MeasuredPulse>& pulses, qint64 end)
{
    pulses.last().width = end - pulses.last().start;
}

} // namespace

QVector<MeasuredPulse> measurePulses(const OutputWaveform& waveform, Polarity polarity)
{
    const Extremes extremes = extremesOf(waveform.volts);
    if (extremes.low == extremes.high)
        return {};

    QVector<MeasuredPulse> pulses;
    bool inside = false;
    // What precedes the first point is the base, which the train returns to between its bursts.
    double previous = -1;
    for (size_t i = 0; i < waveform.volts.size(); ++i) {
        const double height = heightOf(waveform.volts[i], extremes.middle(), polarity);
        // The direction decides for a point at exactly half height, so that an edge through it is
        // found once, whichever way it goes.
        if (!inside && height >= 0 && height > previous) {
            pulses.append({qint64(i), 0});
            inside = true;
        } else if (inside && height <= 0 && height < previous) {
            closePulse(pulses, qint64(i));
            inside = false;
        }
        previous = height;
    }
    if (inside)
        closePulse(pulses, qint64(waveform.volts.size()));
    return pulses;
}

Polarity guessPolarity(const OutputWaveform& waveform)
{
    if (waveform.volts.empty())
        return Polarity::Positive;
    const double middle = extremesOf(waveform.volts).middle();
    return waveform.volts.back() > middle ? Polarity::Negative : Polarity::Positive;
}

Polarity polarityOf(const PulseTrain& train)
{
    // A negative amplitude changes nothing: it stands in the file's samples and in its header, and
    // the two cancel out.
    return train.triggerSlope != 0 ? Polarity::Negative : Polarity::Positive;
}

QVector<PulseSpan> askedPulses(const PulseTrain& train)
{
    // The edge times are those from 10 % to 90 %; the whole ramp is a quarter longer.
    const double rampFactor = 1.25;
    QVector<PulseSpan> spans;
    double stretchStart = train.delay;
    for (const Pulse& pulse : train.pulses) {
        spans.append({stretchStart + train.leadingEdge * rampFactor * 0.5, pulse.width});
        stretchStart += train.leadingEdge + pulse.width + train.trailingEdge + pulse.gap;
    }
    return spans;
}

QVector<PulseSpan> spansOf(const QVector<MeasuredPulse>& pulses, const OutputWaveform& waveform)
{
    QVector<PulseSpan> spans;
    for (const MeasuredPulse& pulse : pulses)
        spans.append({double(pulse.start) * waveform.step, double(pulse.width) * waveform.step});
    return spans;
}
