// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// A 16-bit status group: what is the case now, what has happened since it was last read, and what
/// of it counts for the summary bit. Bit 15 is always 0.
class StatusGroup
{
public:
    static constexpr quint16 Mask = 0x7fff;

    quint16 condition() const { return m_nCondition; }
    quint16 enable() const { return m_nEnable; }
    bool summary() const { return (m_nEvent & m_nEnable) != 0; }

    /// Sets what is the case; each bit that rises is remembered as an event.
    void setCondition(quint16 bits);
    void setEnable(quint16 bits) { m_nEnable = bits & Mask; }
    /// The events since the last call, which are forgotten.
    quint16 takeEvents();

private:
    quint16 m_nCondition = 0;
    quint16 m_nEvent = 0;
    quint16 m_nEnable = 0;
};

/// The status registers that every SCPI instrument has: event status with its enable mask, service
/// request mask, and the groups OPERation and QUEStionable. Shared by all clients.
class StatusRegisters
{
public:
    /// Bits of the event status register.
    enum EventBit {
        OperationComplete = 1,
        QueryError = 4,
        DeviceError = 8,
        ExecutionError = 16,
        CommandError = 32,
        UserRequest = 64,
        PowerOn = 128,
    };

    /// Bits of the status byte.
    enum StatusBit {
        ErrorAvailable = 4,
        QuestionableSummary = 8,
        MessageAvailable = 16,
        EventSummary = 32,
        MasterSummary = 64,
        OperationSummary = 128,
    };

    /// As after switching on: the power-on event is set, all masks are 0.
    StatusRegisters() = default;

    /// The event bit of an error number's class; 0 for numbers that are no errors.
    static quint8 eventBit(int errorNumber);

    void raise(quint8 eventBits) { m_nEvents |= eventBits; }
    /// The event status register, which is cleared.
    quint8 takeEvents();

    quint8 eventEnable() const { return m_nEventEnable; }
    void setEventEnable(quint8 bits) { m_nEventEnable = bits; }
    quint8 serviceEnable() const { return m_nServiceEnable; }
    /// The master summary cannot request service for itself: its bit is dropped.
    void setServiceEnable(quint8 bits) { m_nServiceEnable = bits & ~MasterSummary & 0xff; }

    StatusGroup& operation() { return m_operation; }
    StatusGroup& questionable() { return m_questionable; }

    /// The status byte, given whether the error queue holds something and whether the message being
    /// worked on has a reply waiting.
    quint8 statusByte(bool errorAvailable, bool messageAvailable) const;

    /// Forgets all events; masks and conditions stay.
    void clearEvents();
    /// Sets the masks of both groups to 0; events and the other masks stay.
    void preset();

private:
    quint8 m_nEvents = PowerOn;
    quint8 m_nEventEnable = 0;
    quint8 m_nServiceEnable = 0;
    StatusGroup m_operation;
    StatusGroup m_questionable;
};
