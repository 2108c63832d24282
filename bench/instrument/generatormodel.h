// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "channel.h"
#include "generatorlimits.h"
#include "scpicall.h"
#include "trace.h"
#include "triggermodel.h"
#include "waveformstore.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVector>

#include <array>
#include <functional>

/// The simulated generator without its command server: two channels, one trigger system, one
/// waveform memory. It does not play in the sense of making samples at a rate: what a channel put
/// out by now is computed when somebody asks, and no timer runs.
class GeneratorModel : public QObject
{
    Q_OBJECT

public:
    /// Nanoseconds from any fixed moment; never goes back.
    using Clock = std::function<qint64()>;

    static const int ChannelCount = 2;

    /// @p userDataFolder is what "M:/" stands for. @p modelFamily is one of the families of the
    /// device table ("KVX7030X") or one of their models; any other text is taken for the smallest
    /// family. Without a @p clock the time since construction is used.
    explicit GeneratorModel(const QString& userDataFolder, const QString& modelFamily,
                            const Clock& clock = Clock());

    /// Every command that the generator understands beyond the common ones and those of the server
    /// itself. They hold a pointer to this model.
    QVector<ScpiCommand> commands();

    /// Everything to its settings after a reset, outputs off; frees the waveform memory.
    void reset();

    /// The model as the identification reply names it, such as "KVX70302".
    QByteArray modelText() const { return m_limits.modelText; }

    /// A trigger by hand, whatever the trigger source. True when it began a burst on any channel,
    /// false when it was lost: no output on in burst mode, or a burst still playing.
    bool trigger();

    /// An edge at the trigger input. True when it began a burst; an edge of the other slope or with
    /// another trigger source does nothing.
    bool externalEdge(EdgeSlope edge);

    /// Bits of the OPERation status register.
    enum OperationBit {
        WaitingForTrigger = 32, ///< a channel is on, in burst mode and at rest
        Playing = 256           ///< a channel plays a burst, or without an end
    };

    /// The OperationBits that are the case now on channel 1 or 2.
    quint16 operationCondition();

    const GeneratorLimits& limits() const { return m_limits; }

    /// Channel 1 or 2 as it is now.
    const Channel& channel(int number);

    /// Takes over settings that are within the limits; the file name and the levels of a loaded
    /// file included.
    void applyChannel(int number, const ChannelSettings& settings);

    const TriggerSettings& triggerSettings() const { return m_trigger; }

    /// Another source or timer interval breaks the bursts off that are playing.
    void applyTrigger(const TriggerSettings& settings);

    /// Loads a waveform file for a channel, which takes its levels over. Errors as in
    /// WaveformStore::load(); nothing changes then.
    StoreError loadWaveform(int number, const QString& name);

    const WaveformStore& waveforms() const { return m_store; }

    ByteOrder byteOrder() const { return m_byteOrder; }
    void setByteOrder(ByteOrder order) { m_byteOrder = order; }

signals:
    /// A setting changed or a burst began. Bursts of the timer are reported when they are computed:
    /// a display that wants to see each of them asks for the channel again and again.
    void stateChanged();

private:
    Channel& at(int number) { return m_channels.at(std::size_t(number - 1)); }
    bool triggerChannels(qint64 now);
    void advance(qint64 now);

    GeneratorLimits m_limits;
    WaveformStore m_store;
    Clock m_clock;
    std::array<Channel, ChannelCount> m_channels;
    TriggerSettings m_trigger;
    ByteOrder m_byteOrder = ByteOrder::Normal;
};
