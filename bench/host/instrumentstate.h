// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <array>

/// What one channel of the instrument is set to.
struct ChannelState
{
    enum Shape { Sine, EditMemory, File };

    bool on = false;
    double load = 50; ///< ohm; infinite for an open output
    Shape shape = Sine;
    double frequency = 0; ///< hertz
    double amplitude = 0; ///< volts, peak to peak
    double offset = 0;    ///< volts
    double high = 0;      ///< volts
    double low = 0;       ///< volts
    bool burst = false;
    double cycles = 1; ///< of a burst; infinite for one without an end
    QString file;      ///< "M:/NAME" as loaded, or empty

    bool operator==(const ChannelState& other) const;
};

/// What starts bursts.
struct TriggerState
{
    enum Source { Manual, External, Timer };

    Source source = Timer;
    bool falling = false; ///< edge of the external source
    double timer = 0;     ///< seconds

    bool operator==(const TriggerState& other) const;
};

/// The instrument as the host last heard of it.
struct InstrumentState
{
    enum Link { Connecting, Answering, Silent };

    Link link = Connecting;
    QString reason; ///< of a silent one
    QString model;  ///< "KVX70102", from its identification
    std::array<ChannelState, 2> channels;
    TriggerState trigger;

    bool operator==(const InstrumentState& other) const;
};

Q_DECLARE_METATYPE(InstrumentState)

/// The queries whose answers the functions below read: a message each, one line as the answer.
namespace InstrumentQuery {

extern const QByteArray Identification;
extern const QByteArray Trigger;

/// @p channel is 1 or 2.
QByteArray channel(int channel);

/// Each reads an answer. False, with nothing changed, for an answer that makes no sense.
bool readIdentification(const QByteArray& answer, QString& model);
bool readChannel(const QByteArray& answer, ChannelState& state);
bool readTrigger(const QByteArray& answer, TriggerState& state);

} // namespace InstrumentQuery
