// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulseplot.h"

#include "sitext.h"
#include "trainsamples.h"

#include <QStringList>

namespace {

QString countText(int pulses)
{
    return pulses == 1 ? QStringLiteral("1 pulse") : QStringLiteral("%1 pulses").arg(pulses);
}

QString secondsText(double seconds)
{
    return siText(seconds, QStringLiteral("s"));
}

QString pointsText(double points)
{
    return points == 1 ? QStringLiteral("1 point")
                       : trimmedNumber(points, 0) + QStringLiteral(" points");
}

QString joined(const QStringList& parts)
{
    return parts.join(QStringLiteral("  ·  "));
}

QString trainSubtitle(const PulseTrain& train, double points)
{
    const bool isOpen = train.load == LoadImpedance::HighZ;
    return joined({countText(train.pulses.size()),
                   QStringLiteral("period ") + secondsText(train.totalPeriod()),
                   siText(train.frequency(), QStringLiteral("Hz")), pointsText(points),
                   isOpen ? QStringLiteral("into high impedance") : QStringLiteral("into 50 Ω")});
}

QString waveformSubtitle(const OutputWaveform& waveform, int pulses)
{
    const double points = double(waveform.volts.size());
    QStringList parts = {countText(pulses), pointsText(points)};
    if (waveform.hasTime())
        parts.append(QStringLiteral("period ") + secondsText(waveform.position(points)));
    return joined(parts);
}

// Collects marks; lengths that are nothing but the rounding of a sum are none.
class MarkList
{
public:
    explicit MarkList(double period)
        : m_dbShortest(period * 1e-12)
    {}

    void append(PlotMark::Kind kind, int number, double from, double to, const QString& text)
    {
        const QString prefix = kind == PlotMark::Delay ? QStringLiteral("delay ") : QString();
        if (to - from > m_dbShortest)
            m_marks.append({kind, number, from, to, prefix + text});
    }

    QVector<PlotMark> marks() const { return m_marks; }

private:
    double m_dbShortest;
    QVector<PlotMark> m_marks;
};

// What lies before a pulse.
PlotMark::Kind kindBefore(int index)
{
    return index == 0 ? PlotMark::Delay : PlotMark::Gap;
}

bool hasPoints(const PulseStretch& stretch)
{
    return stretch.leadingEdge + stretch.width + stretch.trailingEdge >= 1;
}

QVector<PlotMark> marksOfTrain(const PulseTrain& train)
{
    const QVector<PulseSpan> timings = askedPulses(train);
    const std::vector<PulseStretch> stretches = pulseStretches(train);
    MarkList list(train.totalPeriod());
    double place = 0;
    for (int i = 0; i < timings.size(); ++i) {
        const PulseSpan timing = timings.at(i);
        const QString before = secondsText(timing.start - place);
        list.append(kindBefore(i), i, place, timing.start, before);
        place = timing.start + timing.width;
        const QString lost =
            hasPoints(stretches[size_t(i)]) ? QString() : QStringLiteral(" (no point)");
        list.append(PlotMark::Pulse, i + 1, timing.start, place, secondsText(timing.width) + lost);
    }
    if (!timings.isEmpty())
        list.append(PlotMark::Gap, timings.size(), place, train.totalPeriod(),
                    secondsText(train.totalPeriod() - place));
    return list.marks();
}

QVector<PlotMark> marksOfPulses(const QVector<MeasuredPulse>& pulses,
                                const OutputWaveform& waveform)
{
    const qint64 end = qint64(waveform.volts.size());
    MarkList list(waveform.position(double(end)));
    const auto append = [&](PlotMark::Kind kind, int number, qint64 from, qint64 to) {
        const double length = waveform.position(double(to - from));
        list.append(kind, number, waveform.position(double(from)), waveform.position(double(to)),
                    waveform.hasTime() ? secondsText(length) : trimmedNumber(length, 0));
    };
    qint64 place = 0;
    for (int i = 0; i < pulses.size(); ++i) {
        append(kindBefore(i), i, place, pulses.at(i).start);
        place = pulses.at(i).start + pulses.at(i).width;
        append(PlotMark::Pulse, i + 1, pulses.at(i).start, place);
    }
    if (!pulses.isEmpty())
        append(PlotMark::Gap, pulses.size(), place, end);
    return list.marks();
}

} // namespace

PulsePlot plotOfTrain(const PulseTrain& train, const OutputWaveform& waveform, const QString& title)
{
    PulsePlot plot;
    plot.title = title;
    plot.waveform = waveform;
    plot.subtitle = trainSubtitle(train, double(waveform.volts.size()));
    plot.polarity = polarityOf(train);
    // Without a time base the times of the train have no place on the axis.
    if (waveform.hasTime())
        plot.marks = marksOfTrain(train);
    return plot;
}

PulsePlot plotOfWaveform(const OutputWaveform& waveform, const QString& title)
{
    return plotOfWaveform(waveform, guessPolarity(waveform), title);
}

PulsePlot plotOfWaveform(const OutputWaveform& waveform, Polarity polarity, const QString& title)
{
    const QVector<MeasuredPulse> pulses = measurePulses(waveform, polarity);
    PulsePlot plot;
    plot.title = title;
    plot.subtitle = waveformSubtitle(waveform, pulses.size());
    plot.waveform = waveform;
    plot.polarity = polarity;
    plot.marks = marksOfPulses(pulses, waveform);
    return plot;
}
