// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "burstaccount.h"

#include "texttable.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Allows for the rounding of the sums that are compared, not for a part of a sample.
const double OneSample = 1.000001;

QVector<PulseSpan> shifted(QVector<PulseSpan> pulses, double seconds)
{
    for (PulseSpan& pulse : pulses)
        pulse.start += seconds;
    return pulses;
}

double differenceOf(const PulseSpan& one, const PulseSpan& other)
{
    return std::max(std::fabs(one.start - other.start), std::fabs(one.width - other.width));
}

// Where a pulse has been lost the others keep their places: each takes the nearest one played,
// which cannot be farther away than the rounding of all times before it.
std::optional<PulseSpan> nearest(const PulseSpan& asked, const QVector<PulseSpan>& played,
                                 double farthest)
{
    std::optional<PulseSpan> best;
    for (const PulseSpan& pulse : played) {
        const double distance = std::fabs(pulse.start - asked.start);
        if (distance <= farthest && (!best || distance < std::fabs(best->start - asked.start)))
            best = pulse;
    }
    return best;
}

QVector<BurstAccount::Row> pairUp(const QVector<PulseSpan>& asked, const QVector<PulseSpan>& played,
                                  double sample)
{
    const bool oneToOne = asked.size() == played.size();
    const double farthest = (4.0 * asked.size() + 1) * sample;
    QVector<BurstAccount::Row> rows;
    for (int i = 0; i < asked.size(); ++i)
        rows.append(
            {asked.at(i), oneToOne ? played.at(i) : nearest(asked.at(i), played, farthest)});
    return rows;
}

QString pulseFault(const QVector<PulseSpan>& filed, const QVector<PulseSpan>& played, double sample)
{
    if (filed.size() != played.size())
        return QStringLiteral("%1 pulses where the file has %2")
            .arg(played.size())
            .arg(filed.size());
    for (int i = 0; i < filed.size(); ++i) {
        const double difference = differenceOf(filed.at(i), played.at(i)) / sample;
        if (!(difference <= OneSample))
            return QStringLiteral("pulse %1 is %2 samples from where the file has it")
                .arg(i + 1)
                .arg(difference, 0, 'f', 1);
    }
    return QString();
}

QString voltageFault(const OutputWaveform& file, const BurstAccount& account)
{
    const auto ends = std::minmax_element(file.volts.begin(), file.volts.end());
    if (ends.first == file.volts.end())
        return QStringLiteral("a burst where the file has no points");
    // Two steps of the 16-bit samples.
    const double tolerance =
        2 * (file.high - file.low) / (2.0 * appPlugins::WaveformFullScale) + 1e-9;
    if (std::fabs(*ends.first - account.low) <= tolerance &&
        std::fabs(*ends.second - account.high) <= tolerance)
        return QString();
    return QStringLiteral("%1 V to %2 V where the file has %3 V to %4 V")
        .arg(account.low, 0, 'f', 4)
        .arg(account.high, 0, 'f', 4)
        .arg(*ends.first, 0, 'f', 4)
        .arg(*ends.second, 0, 'f', 4);
}

QString microseconds(double seconds)
{
    return QString::number(seconds * 1e6, 'f', 4);
}

// With its sign, but for what rounds to zero.
QString differenceText(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    if (text.toDouble() == 0)
        return QString::number(0.0, 'f', decimals);
    return value > 0 ? QLatin1Char('+') + text : text;
}

QStringList timeCells(double asked, double played, double sample)
{
    const double difference = played - asked;
    return {microseconds(asked), microseconds(played), differenceText(difference * 1e9, 3),
            differenceText(difference / sample, 2)};
}

QStringList rowCells(int number, const BurstAccount::Row& row, double sample)
{
    const QString nothing = QStringLiteral("-");
    QStringList cells = {QString::number(number)};
    if (!row.played)
        return cells + QStringList{microseconds(row.asked.start), nothing, nothing, nothing,
                                   microseconds(row.asked.width), nothing, nothing, nothing};
    cells += timeCells(row.asked.start, row.played->start, sample);
    cells += timeCells(row.asked.width, row.played->width, sample);
    return cells;
}

QString agreementText(const BurstAccount& account)
{
    const double largest = account.largestDifference();
    if (largest <= OneSample)
        return QStringLiteral("setup: agreeing to one sample");
    const QString difference =
        std::isinf(largest) ? QStringLiteral("%1 pulses where %2 are asked for")
                                  .arg(account.found)
                                  .arg(account.rows.size())
                            : QStringLiteral("up to %1 samples apart").arg(largest, 0, 'f', 2);
    // Without a fault it is the file that differs.
    const QString cause = account.fault.isEmpty()
                              ? QStringLiteral(": the file rounds each time down to whole points")
                              : QString();
    return QStringLiteral("setup: ") + difference + cause;
}

QString faultText(const BurstAccount& account)
{
    if (account.fault.isEmpty())
        return QStringLiteral("file: played as it is, to one sample");
    return QStringLiteral("file: not played as it is: ") + account.fault;
}

} // namespace

double BurstAccount::largestDifference() const
{
    double largest = 0;
    for (const Row& row : rows) {
        if (!row.played)
            return std::numeric_limits<double>::infinity();
        largest = std::max(largest, differenceOf(row.asked, *row.played) / sample);
    }
    return largest;
}

BurstAccount accountOf(const PulseTrain& train, const OutputWaveform& file,
                       const ChannelTrace& trace)
{
    const Polarity polarity = polarityOf(train);
    const QVector<PulseSpan> filed = spansOf(measurePulses(file, polarity), file);
    const QVector<PulseSpan> played =
        shifted(spansOf(measurePulses(trace.waveform, polarity), trace.waveform), trace.start);
    const auto ends = std::minmax_element(trace.waveform.volts.begin(), trace.waveform.volts.end());

    BurstAccount account;
    account.sample = trace.waveform.step;
    account.low = *ends.first;
    account.high = *ends.second;
    account.rows = pairUp(askedPulses(train), played, account.sample);
    account.found = played.size();
    account.fault = pulseFault(filed, played, account.sample);
    if (account.fault.isEmpty())
        account.fault = voltageFault(file, account);
    return account;
}

QString accountText(const BurstAccount& account)
{
    QVector<QStringList> lines = {
        {QStringLiteral("pulse"), QStringLiteral("start asked/us"), QStringLiteral("played/us"),
         QStringLiteral("differs/ns"), QStringLiteral("samples"), QStringLiteral("width asked/us"),
         QStringLiteral("played/us"), QStringLiteral("differs/ns"), QStringLiteral("samples")}};
    for (int i = 0; i < account.rows.size(); ++i)
        lines.append(rowCells(i + 1, account.rows.at(i), account.sample));
    return textTable(lines) + QStringLiteral("one sample: %1 ns\nvolts: %2 to %3\n%4\n%5\n")
                                  .arg(account.sample * 1e9, 0, 'f', 4)
                                  .arg(account.low, 0, 'f', 4)
                                  .arg(account.high, 0, 'f', 4)
                                  .arg(agreementText(account), faultText(account));
}
