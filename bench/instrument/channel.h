// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "trace.h"
#include "triggermodel.h"

#include <QString>
#include <QVector>

/// What a channel's waveform is made from.
enum class WaveShape {
    Sine,       ///< built in, 1000 points a period
    EditMemory, ///< nothing here edits it: 1000 points at the offset's level
    File        ///< the waveform file that was loaded last
};

/// All that can be set of a channel, with the values after a reset. Levels are those into 50 ohm.
struct ChannelSettings
{
    bool outputOn = false;
    double loadOhms = 50;   ///< 50 to 10000, or infinite
    bool burstOn = false;   ///< off: the waveform repeats for as long as the output is on
    double burstCycles = 1; ///< whole number from 1, or infinite
    double burstDelay = 0;  ///< seconds from the trigger to the first sample
    WaveShape shape = WaveShape::Sine;
    QString fileName;       ///< as the instrument names it; empty without a loaded file
    double frequency = 1e6; ///< hertz; one waveform cycle takes 1 / frequency
    double amplitude = 1;   ///< volts peak-to-peak between the counts -32764 and 32764
    double offset = 0;      ///< volts of the count 0
};

/// How many times the voltage into 50 ohm stands at a load of @p loadOhms: the source has 50 ohm of
/// its own. A load of 10000 ohm or more counts as open and gives exactly 2.
double loadFactor(double loadOhms);

/// The counts of one cycle of a built-in shape; empty for WaveShape::File.
QVector<qint16> builtInCycle(WaveShape shape);

/// One channel: what it is set to, and what it puts out. With the output off that is 0 V. With the
/// output on and burst mode on it rests at the first sample's level, from which every burst starts,
/// and plays one burst for each trigger that finds it at rest; with burst mode off it plays without
/// an end and triggers are lost.
///
/// A burst keeps the settings that it began with; a change is for the bursts that follow. Times are
/// nanoseconds of the caller's clock, which never goes back.
class Channel
{
public:
    const ChannelSettings& settings() const { return m_settings; }

    /// Takes over @p settings and the counts of their waveform at the time @p now. Switching the
    /// output on, or burst mode on or off, forgets what was played and waits for triggers from now
    /// on; the timer's first one is now.
    void apply(const ChannelSettings& settings, const QVector<qint16>& cycle,
               const TriggerSettings& trigger, qint64 now);

    /// Back to the settings after a reset. The sequence number goes on, so that whoever watches it
    /// never takes a new burst for an old one.
    void reset(qint64 now);

    /// Breaks a burst off and waits for triggers from @p now on.
    void rearm(const TriggerSettings& trigger, qint64 now);

    /// Catches up with the bursts that the timer began until @p now. To be called before anything
    /// is read or changed. True when there were any.
    bool advance(const TriggerSettings& trigger, qint64 now);

    /// A trigger by hand or by an edge. True when it begins a burst.
    bool trigger(qint64 now);

    /// Whether a trigger at the time @p now would begin a burst.
    bool isAtRest(qint64 now) const;

    /// Whether the waveform runs at the time @p now: in a burst, its delay included, or without an
    /// end.
    bool isPlaying(qint64 now) const { return m_settings.outputOn && !isAtRest(now); }

    /// The burst that began last since the output was switched on; it stays readable when the
    /// output goes off.
    const Trace& trace() const { return m_trace; }

    /// Bursts begun since the output was switched on.
    qint64 count() const { return m_nCount; }

    /// Bursts begun since the instrument was started.
    qint64 sequence() const { return m_nSequence; }

    /// Volts at the load between bursts; 0 with the output off.
    double idleLevel() const;

private:
    bool waitsForTriggers() const { return m_settings.outputOn && m_settings.burstOn; }
    qint64 burstDuration() const;
    void beginBursts(qint64 bursts);
    void playContinuously();

    ChannelSettings m_settings;
    QVector<qint16> m_cycle = builtInCycle(WaveShape::Sine);
    BurstSchedule m_schedule;
    Trace m_trace;
    qint64 m_nCount = 0;
    qint64 m_nSequence = 0;
};
