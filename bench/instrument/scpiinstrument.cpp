// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiinstrument.h"

namespace {

QByteArray headerText(const QVector<QByteArray>& header, bool isQuery)
{
    QByteArray text;
    for (const QByteArray& mnemonic : header)
        text += (text.isEmpty() ? "" : ":") + mnemonic;
    return isQuery ? text + '?' : text;
}

} // namespace

ScpiInstrument::ScpiInstrument(const ScpiDevice& device)
    : m_device(device)
{
    addCommonCommands();
    addEventCommands();
    addSystemCommands();
    addStatusCommands();
    m_commands.add(m_device.commands);
}

QByteArray ScpiInstrument::execute(const QByteArray& message)
{
    QByteArray reply;
    Path path;
    m_bReplyWaiting = false;
    for (const ScpiUnit& unit : parseScpiMessage(message))
        executeUnit(unit, path, reply);
    if (m_bReplyWaiting)
        reply.append('\n');
    return reply;
}

void ScpiInstrument::reportError(int number, const QByteArray& detail)
{
    const bool isOverflow = m_errors.count() == ErrorQueue::Capacity;
    m_errors.push(number, detail);
    m_status.raise(StatusRegisters::eventBit(number));
    if (isOverflow)
        m_status.raise(StatusRegisters::eventBit(ErrorQueue::QueueOverflow));
}

void ScpiInstrument::executeUnit(const ScpiUnit& unit, Path& path, QByteArray& reply)
{
    if (unit.errorNumber != 0) {
        reportError(unit.errorNumber);
        return;
    }
    const Path header = resolve(unit, path);
    const ScpiCommandSet::Match match = m_commands.find(header, unit.isQuery);
    if (match.command == nullptr) {
        reportError(match.errorNumber, headerText(header, unit.isQuery));
        return;
    }
    if (unit.isQuery && reply.size() > MaxReplyLength) {
        reportError(-430);
        return;
    }
    ScpiCall call;
    call.suffixes = match.suffixes;
    call.parameters = unit.parameters;
    call.isQuery = unit.isQuery;
    callCommand(*match.command, call, reply);
}

/// The unit's header from the root; @p path moves to the place that the header names.
ScpiInstrument::Path ScpiInstrument::resolve(const ScpiUnit& unit, Path& path) const
{
    if (unit.isCommon())
        return unit.nodes;
    const Path header = unit.isRooted ? unit.nodes : path + unit.nodes;
    const Path place = header.mid(0, header.size() - 1);
    if (m_commands.hasPath(place))
        path = place;
    return header;
}

void ScpiInstrument::callCommand(const ScpiCommand& command, ScpiCall& call, QByteArray& reply)
{
    updateOperation();
    (call.isQuery ? command.query : command.set)(call);
    updateOperation();
    if (call.errorNumber != 0) {
        reportError(call.errorNumber, call.errorDetail);
        return;
    }
    if (!call.isQuery)
        return;
    if (m_bReplyWaiting)
        reply.append(';');
    reply.append(call.reply);
    m_bReplyWaiting = true;
}

void ScpiInstrument::updateOperation()
{
    if (m_device.operation)
        m_status.operation().setCondition(m_device.operation());
}

void ScpiInstrument::trigger()
{
    if (!m_device.trigger || !m_device.trigger())
        reportError(-211);
}
