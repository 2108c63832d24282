// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatormodel.h"

#include "generatorcommands.h"

#include <QElapsedTimer>

namespace {

GeneratorModel::Clock steadyClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer]() { return timer.nsecsElapsed(); };
}

} // namespace

GeneratorModel::GeneratorModel(const QString& userDataFolder, const QString& modelFamily,
                               const Clock& clock)
    : m_limits(generatorLimits(modelFamily))
    , m_store(userDataFolder, m_limits)
    , m_clock(clock ? clock : steadyClock())
{}

QVector<ScpiCommand> GeneratorModel::commands()
{
    return generatorCommands(*this);
}

void GeneratorModel::reset()
{
    const qint64 now = m_clock();
    m_trigger = TriggerSettings();
    m_byteOrder = ByteOrder::Normal;
    m_store.clear();
    for (Channel& channel : m_channels)
        channel.reset(now);
    emit stateChanged();
}

bool GeneratorModel::trigger()
{
    const qint64 now = m_clock();
    advance(now);
    return triggerChannels(now);
}

bool GeneratorModel::externalEdge(EdgeSlope edge)
{
    return m_trigger.acceptsEdge(edge) && triggerChannels(m_clock());
}

bool GeneratorModel::triggerChannels(qint64 now)
{
    bool triggered = false;
    for (Channel& channel : m_channels)
        triggered = channel.trigger(now) || triggered;
    if (triggered)
        emit stateChanged();
    return triggered;
}

quint16 GeneratorModel::operationCondition()
{
    const qint64 now = m_clock();
    advance(now);
    int bits = 0;
    for (const Channel& channel : m_channels) {
        bits |= channel.isAtRest(now) ? WaitingForTrigger : 0;
        bits |= channel.isPlaying(now) ? Playing : 0;
    }
    return quint16(bits);
}

const Channel& GeneratorModel::channel(int number)
{
    advance(m_clock());
    return at(number);
}

void GeneratorModel::advance(qint64 now)
{
    bool advanced = false;
    for (Channel& channel : m_channels)
        advanced = channel.advance(m_trigger, now) || advanced;
    if (advanced)
        emit stateChanged();
}

void GeneratorModel::applyChannel(int number, const ChannelSettings& settings)
{
    const QVector<qint16> cycle =
        settings.shape == WaveShape::File ? m_store.counts(number) : builtInCycle(settings.shape);
    at(number).apply(settings, cycle, m_trigger, m_clock());
    emit stateChanged();
}

void GeneratorModel::applyTrigger(const TriggerSettings& settings)
{
    const qint64 now = m_clock();
    advance(now);
    const bool rearms =
        settings.source != m_trigger.source ||
        coveringNanoseconds(settings.timerInterval) != coveringNanoseconds(m_trigger.timerInterval);
    m_trigger = settings;
    for (Channel& channel : m_channels) {
        if (rearms)
            channel.rearm(m_trigger, now);
    }
    emit stateChanged();
}

StoreError GeneratorModel::loadWaveform(int number, const QString& name)
{
    WaveformLevels levels;
    StoreError error = m_store.load(number, name, levels);
    if (error.number != 0)
        return error;

    ChannelSettings settings = at(number).settings();
    settings.fileName = name;
    settings.amplitude = levels.amplitude;
    settings.offset = levels.offset;
    applyChannel(number, settings);
    return error;
}
