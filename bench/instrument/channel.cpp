// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channel.h"

#include "cfilebase.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double SourceOhms = 50;
const double OpenLoadOhms = 10000;
const int BuiltInPoints = 1000;

QVector<qint16> sineCycle()
{
    const double turn = 6.283185307179586;
    QVector<qint16> cycle(BuiltInPoints);
    for (int i = 0; i < BuiltInPoints; ++i)
        cycle[i] =
            qint16(std::lround(appPlugins::WaveformFullScale * std::sin(turn * i / BuiltInPoints)));
    return cycle;
}

Trace traceOf(const ChannelSettings& settings, const QVector<qint16>& cycle, double cycles)
{
    const double factor = loadFactor(settings.loadOhms);
    Trace trace;
    trace.cycle = cycle;
    trace.cycles = cycles;
    trace.timeStep = 1 / (settings.frequency * cycle.size());
    trace.startTime = settings.burstDelay;
    trace.levelScale = settings.amplitude * 0.5 / appPlugins::WaveformFullScale * factor;
    trace.levelOffset = settings.offset * factor;
    return trace;
}

} // namespace

double loadFactor(double loadOhms)
{
    if (loadOhms >= OpenLoadOhms)
        return 2;
    return 2 * loadOhms / (loadOhms + SourceOhms);
}

QVector<qint16> builtInCycle(WaveShape shape)
{
    switch (shape) {
    case WaveShape::Sine:
        return sineCycle();
    case WaveShape::EditMemory:
        return QVector<qint16>(BuiltInPoints, 0);
    case WaveShape::File:
        break;
    }
    return {};
}

void Channel::apply(const ChannelSettings& settings, const QVector<qint16>& cycle,
                    const TriggerSettings& trigger, qint64 now)
{
    advance(trigger, now);
    const bool starts =
        (settings.outputOn && !m_settings.outputOn) || settings.burstOn != m_settings.burstOn;
    m_settings = settings;
    m_cycle = cycle;

    if (starts) {
        m_trace = Trace();
        m_nCount = 0;
        m_schedule.arm(now);
    }
    if (m_settings.outputOn && !m_settings.burstOn)
        playContinuously();
    advance(trigger, now);
}

void Channel::reset(qint64 now)
{
    const qint64 sequence = m_nSequence;
    *this = Channel();
    m_nSequence = sequence;
    m_schedule.arm(now);
}

void Channel::rearm(const TriggerSettings& trigger, qint64 now)
{
    m_schedule.arm(now);
    advance(trigger, now);
}

bool Channel::advance(const TriggerSettings& trigger, qint64 now)
{
    if (!waitsForTriggers() || trigger.source != BurstTrigger::Timer)
        return false;

    const qint64 interval = std::max<qint64>(1, coveringNanoseconds(trigger.timerInterval));
    const qint64 bursts = m_schedule.timerBursts(interval, burstDuration(), now);
    if (bursts > 0)
        beginBursts(bursts);
    return bursts > 0;
}

bool Channel::trigger(qint64 now)
{
    if (!waitsForTriggers() || !m_schedule.trigger(now, burstDuration()))
        return false;

    beginBursts(1);
    return true;
}

bool Channel::isAtRest(qint64 now) const
{
    BurstSchedule tried = m_schedule;
    return waitsForTriggers() && tried.trigger(now, 0);
}

double Channel::idleLevel() const
{
    if (!m_settings.outputOn)
        return 0;
    return traceOf(m_settings, m_cycle, 1).volts(0);
}

qint64 Channel::burstDuration() const
{
    return coveringNanoseconds(m_settings.burstDelay +
                               m_settings.burstCycles / m_settings.frequency);
}

void Channel::beginBursts(qint64 bursts)
{
    m_nCount += bursts;
    m_nSequence += bursts;
    m_trace = traceOf(m_settings, m_cycle, m_settings.burstCycles);
}

// Without bursts a change of the settings is heard at once: it starts the one endless burst anew.
void Channel::playContinuously()
{
    m_nCount = 1;
    ++m_nSequence;
    m_trace = traceOf(m_settings, m_cycle, std::numeric_limits<double>::infinity());
    m_trace.startTime = 0;
}
