// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "errorqueue.h"
#include "scpicommandset.h"
#include "scpiparser.h"
#include "statusregisters.h"

#include <QByteArray>
#include <QVector>

#include <functional>

/// What makes an SCPI instrument a particular one.
struct ScpiDevice
{
    QByteArray identity;           ///< reply to *IDN?: maker, model, serial number, firmware
    std::function<void()> reset;   ///< *RST: settings to their defaults
    std::function<bool()> trigger; ///< *TRG; false when the trigger was lost, which is a -211 error
    QVector<ScpiCommand> commands; ///< everything beyond what all SCPI instruments have
    /// The OPERation bits that are the case now; empty for an instrument that has none.
    std::function<quint16()> operation = {};
};

/// An SCPI instrument without sockets: program messages in, response messages out. It has the
/// common commands of IEEE 488.2, SYSTem:ERRor, SYSTem:VERSion and the STATus registers; the rest
/// comes from its device. All clients share one, and with it settings, error queue and registers.
/// Every command is finished before the next begins, so *OPC and *WAI never wait. The OPERation
/// condition is looked at before and after each command: what begins and ends between two of them
/// leaves no event.
class ScpiInstrument
{
public:
    /// Edition of the standard whose rules and error numbers hold; reply to SYSTem:VERSion?.
    static const char Version[];

    /// Once the replies to one message are longer than this, in bytes, its further queries are
    /// -430 errors: a short message may ask for a long trace many times.
    static constexpr int MaxReplyLength = 16 * 1024 * 1024;

    explicit ScpiInstrument(const ScpiDevice& device);
    ScpiInstrument(const ScpiInstrument&) = delete;
    ScpiInstrument& operator=(const ScpiInstrument&) = delete;

    /// Works through one program message (without its line feed) and returns the replies of its
    /// queries on one line, joined by semicolons and ended by a line feed; empty when none
    /// answered. A unit that fails leaves an error in the queue and no reply, and the next is
    /// worked on.
    ///
    /// A header is taken from where the last one of the message left the tree (a leading colon:
    /// from the root); a common command leaves that place alone, as does a header that leads
    /// nowhere.
    QByteArray execute(const QByteArray& message);

    /// Puts an error into the queue and sets its bit in the event status register.
    void reportError(int number, const QByteArray& detail = QByteArray());

    ErrorQueue& errors() { return m_errors; }
    StatusRegisters& status() { return m_status; }

private:
    using Path = QVector<QByteArray>;

    void executeUnit(const ScpiUnit& unit, Path& path, QByteArray& reply);
    Path resolve(const ScpiUnit& unit, Path& path) const;
    void trigger();
    void updateOperation();
    void callCommand(const ScpiCommand& command, ScpiCall& call, QByteArray& reply);

    using Function = std::function<void(ScpiCall&)>;
    void addCommand(const char* pattern, const Function& set);
    void addQuery(const char* pattern, const Function& query);
    void addCommonCommands();
    void addEventCommands();
    void addSystemCommands();
    void addStatusCommands();

    const ScpiDevice m_device;
    ScpiCommandSet m_commands;
    ErrorQueue m_errors;
    StatusRegisters m_status;
    bool m_bReplyWaiting = false; ///< the message being worked on has answered already
};
