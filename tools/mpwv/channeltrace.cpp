// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channeltrace.h"

#include "scpiquery.h"

#include <QtEndian>

#include <cmath>

namespace {

struct Scales
{
    double step = 0;
    double start = 0;
    double volts = 0;
    double offset = 0;
};

QString askScales(InstrumentLink& link, Scales& scales)
{
    const struct
    {
        const char* query;
        double* number;
    } questions[] = {{"TRACe1:TIMe:STEP?\n", &scales.step},
                     {"TRACe1:TIMe:STARt?\n", &scales.start},
                     {"TRACe1:LEVel:SCALe?\n", &scales.volts},
                     {"TRACe1:LEVel:OFFSet?\n", &scales.offset}};
    for (const auto& question : questions) {
        QString reason = askNumber(link, question.query, *question.number);
        if (!reason.isEmpty())
            return reason;
    }
    return QString();
}

QString askSamples(InstrumentLink& link, std::vector<qint16>& samples)
{
    QByteArray order;
    QString reason = askLine(link, "FORMat:BORDer?\n", order);
    QByteArray data;
    if (reason.isEmpty())
        reason = askBlock(link, "TRACe1:DATA?\n", data);
    if (!reason.isEmpty())
        return reason;
    if (data.size() % 2 != 0)
        return QStringLiteral("the trace ends within a sample: %1 bytes").arg(data.size());
    samples.resize(size_t(data.size()) / 2);
    if (order.startsWith("SWAP"))
        qFromLittleEndian<qint16>(data.constData(), qsizetype(samples.size()), samples.data());
    else
        qFromBigEndian<qint16>(data.constData(), qsizetype(samples.size()), samples.data());
    return QString();
}

ChannelTrace traceOf(const std::vector<qint16>& samples, const Scales& scales)
{
    const double half = std::fabs(scales.volts) * appPlugins::WaveformFullScale;
    ChannelTrace trace;
    trace.start = scales.start;
    trace.waveform.low = scales.offset - half;
    trace.waveform.high = scales.offset + half;
    trace.waveform.step = scales.step;
    trace.waveform.volts.reserve(samples.size());
    for (const qint16 sample : samples)
        trace.waveform.volts.push_back(scales.offset + sample * scales.volts);
    return trace;
}

} // namespace

QString fetchTrace(InstrumentLink& link, ChannelTrace& trace)
{
    double points = 0;
    QString reason = askNumber(link, "TRACe1:POINts?\n", points);
    if (!reason.isEmpty())
        return reason;
    if (!(points > 0))
        return QStringLiteral("channel 1 has played no burst");

    Scales scales;
    std::vector<qint16> samples;
    reason = askScales(link, scales);
    if (reason.isEmpty())
        reason = askSamples(link, samples);
    if (!reason.isEmpty())
        return reason;
    if (double(samples.size()) != points)
        return QStringLiteral("the trace has %1 samples instead of %2")
            .arg(samples.size())
            .arg(points);

    trace = traceOf(samples, scales);
    return QString();
}
