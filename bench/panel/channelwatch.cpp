// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channelwatch.h"

#include <QtEndian>

#include <cmath>

namespace {

const QByteArray StateQuery("TRACe1:SEQuence?;:TRACe1:POINts?;:OUTPut1?;:TRACe1:LEVel:IDLE?");
const QByteArray HeadQuery("FORMat:BORDer?;:TRACe1:POINts?;TIMe:STEP?;:TRACe1:TIMe:STARt?;"
                           ":TRACe1:LEVel:SCALe?;:TRACe1:LEVel:OFFSet?;:TRACe1:LEVel:IDLE?");

// Magnitudes from here on stand for infinity and for what is not a number.
const double LargestNumber = 9.9e37;

bool readNumber(const QByteArray& text, double& number)
{
    bool isNumber = false;
    number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number);
}

bool isUsable(const OutputTrace& trace)
{
    for (const double number : {trace.step, trace.start, trace.scale, trace.offset, trace.idle}) {
        if (std::fabs(number) >= LargestNumber)
            return false;
    }
    return trace.step > 0;
}

// "MAKER,MODEL,SERIAL,VERSION"
QString modelOf(const QByteArray& identification)
{
    return QString::fromLatin1(identification.split(',').value(1).trimmed()).left(20);
}

} // namespace

bool parseTraceHead(const QByteArray& line, OutputTrace& trace, bool& isSwapped)
{
    const QList<QByteArray> parts = line.split(';');
    OutputTrace read;
    double points = 0;
    double* const numbers[] = {&points,     &read.step,   &read.start,
                               &read.scale, &read.offset, &read.idle};
    if (parts.size() != int(std::size(numbers)) + 1)
        return false;
    for (size_t i = 0; i < std::size(numbers); ++i) {
        if (!readNumber(parts.at(int(i) + 1), *numbers[i]))
            return false;
    }
    isSwapped = parts.first().startsWith("SWAP");
    if (points > 0 && !isUsable(read))
        return false;
    trace = read;
    if (!(points > 0)) {
        trace = OutputTrace();
        trace.idle = read.idle;
    }
    return true;
}

ChannelWatch::ChannelWatch(quint16 port, QObject* parent)
    : QObject(parent)
    , m_client(port, this)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(PeriodMs);
    m_timer.setTimerType(Qt::CoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ChannelWatch::poll);
    connect(&m_client, &InstrumentClient::connected, this, &ChannelWatch::begin);
    connect(&m_client, &InstrumentClient::gone, this, &ChannelWatch::end);
}

// An instrument that comes back counts its bursts from the beginning.
void ChannelWatch::begin()
{
    m_strBurst.clear();
    m_client.ask("*IDN?", [this](const InstrumentReply& reply) {
        const QString model = modelOf(reply.data);
        if (!reply.ok || model == m_strModel)
            return;
        m_strModel = model;
        Q_EMIT modelChanged(model);
    });
    poll();
}

void ChannelWatch::end(const QString& reason)
{
    m_timer.stop();
    m_bTold = false;
    if (m_bOutputOn) {
        m_bOutputOn = false;
        Q_EMIT outputChanged(false);
    }
    Q_EMIT gone(reason);
}

void ChannelWatch::poll()
{
    m_client.ask(StateQuery, [this](const InstrumentReply& reply) {
        if (reply.ok)
            takeState(reply.data);
    });
}

void ChannelWatch::takeState(const QByteArray& line)
{
    const QList<QByteArray> parts = line.split(';');
    double idle = 0;
    if (parts.size() != 4 || !readNumber(parts.at(3), idle)) {
        lookAgain();
        return;
    }
    const bool isOn = parts.at(2).trimmed() == "1";
    // A reset takes the samples away and goes on counting.
    const QByteArray burst = parts.at(0) + ' ' + parts.at(1);
    const bool isFirst = !m_bTold;
    m_bTold = true;
    if (isFirst)
        Q_EMIT connected();
    if (isOn != m_bOutputOn) {
        m_bOutputOn = isOn;
        Q_EMIT outputChanged(isOn);
    }
    const bool isNewBurst = burst != m_strBurst;
    if (!isNewBurst && idle != m_trace.idle) {
        m_trace.idle = idle;
        Q_EMIT traceChanged();
    }
    if (isNewBurst)
        fetch(burst);
    else
        lookAgain();
}

void ChannelWatch::fetch(const QByteArray& burst)
{
    m_client.ask(HeadQuery, [this](const InstrumentReply& reply) {
        if (reply.ok && !parseTraceHead(reply.data, m_coming, m_bCountsSwapped))
            m_coming = OutputTrace();
    });
    m_client.askBlock("TRACe1:DATA?", [this, burst](const InstrumentReply& reply) {
        if (!reply.ok)
            return;
        m_strBurst = burst;
        takeSamples(reply.data);
        lookAgain();
    });
}

// Another burst may have begun between the two replies; the next look finds that out.
void ChannelWatch::takeSamples(const QByteArray& block)
{
    m_trace = m_coming;
    const auto samples = qsizetype(block.size() / int(sizeof(qint16)));
    if (m_trace.step > 0) {
        m_trace.counts.resize(size_t(samples));
        if (m_bCountsSwapped)
            qFromLittleEndian<qint16>(block.constData(), samples, m_trace.counts.data());
        else
            qFromBigEndian<qint16>(block.constData(), samples, m_trace.counts.data());
    }
    Q_EMIT traceChanged();
}

void ChannelWatch::lookAgain()
{
    if (m_client.isConnected())
        m_timer.start();
}
