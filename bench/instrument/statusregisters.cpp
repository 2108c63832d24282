// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statusregisters.h"

#include <utility>

void StatusGroup::setCondition(quint16 bits)
{
    m_nEvent |= bits & ~m_nCondition & Mask;
    m_nCondition = bits & Mask;
}

quint16 StatusGroup::takeEvents()
{
    return std::exchange(m_nEvent, quint16(0));
}

quint8 StatusRegisters::eventBit(int errorNumber)
{
    if (errorNumber > 0)
        return DeviceError;
    switch (-errorNumber / 100) {
    case 1:
        return CommandError;
    case 2:
        return ExecutionError;
    case 3:
        return DeviceError;
    case 4:
        return QueryError;
    default:
        return 0;
    }
}

quint8 StatusRegisters::takeEvents()
{
    return std::exchange(m_nEvents, quint8(0));
}

quint8 StatusRegisters::statusByte(bool errorAvailable, bool messageAvailable) const
{
    int bits = 0;
    bits |= errorAvailable ? ErrorAvailable : 0;
    bits |= m_questionable.summary() ? QuestionableSummary : 0;
    bits |= messageAvailable ? MessageAvailable : 0;
    bits |= (m_nEvents & m_nEventEnable) != 0 ? EventSummary : 0;
    bits |= m_operation.summary() ? OperationSummary : 0;
    bits |= (bits & m_nServiceEnable) != 0 ? MasterSummary : 0;
    return static_cast<quint8>(bits);
}

void StatusRegisters::clearEvents()
{
    takeEvents();
    m_operation.takeEvents();
    m_questionable.takeEvents();
}

void StatusRegisters::preset()
{
    m_operation.setEnable(0);
    m_questionable.setEnable(0);
}
