// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiinstrument.h"

#include <cmath>

const char ScpiInstrument::Version[] = "1999.0";

namespace {

using Function = std::function<void(ScpiCall&)>;

bool hasNoParameters(ScpiCall& call)
{
    if (!call.parameters.isEmpty())
        call.fail(-108);
    return call.parameters.isEmpty();
}

/// A command that does @p action, if there is one, and has no parameters.
Function plain(const std::function<void()>& action)
{
    return [action](ScpiCall& call) {
        if (hasNoParameters(call) && action)
            action();
    };
}

/// A query whose reply is what @p text returns and that has no parameters.
Function answer(const std::function<QByteArray()>& text)
{
    return [text](ScpiCall& call) {
        if (hasNoParameters(call))
            call.reply = text();
    };
}

Function answerNumber(const std::function<int()>& number)
{
    return answer([number] { return QByteArray::number(number()); });
}

bool readMask(ScpiCall& call, int max, int& mask)
{
    if (call.parameters.isEmpty())
        call.fail(-109);
    else if (call.parameters.size() > 1)
        call.fail(-108);
    else if (call.parameters.first().kind != ScpiParameter::Number)
        call.fail(-104);
    else if (!call.parameters.first().unit.isEmpty())
        call.fail(-138);
    else if (std::round(call.parameters.first().number) < 0 ||
             std::round(call.parameters.first().number) > max)
        call.fail(-222, call.parameters.first().text);
    else
        mask = static_cast<int>(std::round(call.parameters.first().number));
    return call.errorNumber == 0;
}

/// A command with one whole number from 0 to @p max, which @p store gets.
Function takeMask(int max, const std::function<void(int)>& store)
{
    return [max, store](ScpiCall& call) {
        int mask = 0;
        if (readMask(call, max, mask))
            store(mask);
    };
}

Function takeEvents(StatusGroup& group)
{
    return answerNumber([&group] { return group.takeEvents(); });
}

Function askCondition(StatusGroup& group)
{
    return answerNumber([&group] { return group.condition(); });
}

Function takeEnable(StatusGroup& group)
{
    return takeMask(65535, [&group](int mask) { group.setEnable(static_cast<quint16>(mask)); });
}

Function askEnable(StatusGroup& group)
{
    return answerNumber([&group] { return group.enable(); });
}

} // namespace

void ScpiInstrument::addCommand(const char* pattern, const Function& set)
{
    m_commands.add({pattern, set, Function()});
}

void ScpiInstrument::addQuery(const char* pattern, const Function& query)
{
    m_commands.add({pattern, Function(), query});
}

void ScpiInstrument::addCommonCommands()
{
    addQuery("*IDN", answer([this] { return m_device.identity; }));
    addCommand("*RST", plain(m_device.reset));
    addCommand("*TRG", plain([this] { trigger(); }));
    addQuery("*TST", answerNumber([] { return 0; }));
    addCommand("*OPC", plain([this] { m_status.raise(StatusRegisters::OperationComplete); }));
    addQuery("*OPC", answerNumber([] { return 1; }));
    addCommand("*WAI", plain([] {}));
}

void ScpiInstrument::addEventCommands()
{
    addCommand("*CLS", plain([this] {
                   m_errors.clear();
                   m_status.clearEvents();
               }));
    addQuery("*ESR", answerNumber([this] { return m_status.takeEvents(); }));
    addCommand("*ESE", takeMask(255, [this](int mask) {
                   m_status.setEventEnable(static_cast<quint8>(mask));
               }));
    addQuery("*ESE", answerNumber([this] { return m_status.eventEnable(); }));
    addCommand("*SRE", takeMask(255, [this](int mask) {
                   m_status.setServiceEnable(static_cast<quint8>(mask));
               }));
    addQuery("*SRE", answerNumber([this] { return m_status.serviceEnable(); }));
    addQuery("*STB", answerNumber([this] {
                 return m_status.statusByte(!m_errors.isEmpty(), m_bReplyWaiting);
             }));
}

void ScpiInstrument::addSystemCommands()
{
    addQuery("SYSTem:ERRor[:NEXT]", answer([this] { return m_errors.take(); }));
    addQuery("SYSTem:ERRor:COUNt", answerNumber([this] { return m_errors.count(); }));
    addQuery("SYSTem:VERSion", answer([] { return QByteArray(Version); }));
}

void ScpiInstrument::addStatusCommands()
{
    StatusGroup& operation = m_status.operation();
    addQuery("STATus:OPERation[:EVENt]", takeEvents(operation));
    addQuery("STATus:OPERation:CONDition", askCondition(operation));
    addCommand("STATus:OPERation:ENABle", takeEnable(operation));
    addQuery("STATus:OPERation:ENABle", askEnable(operation));

    StatusGroup& questionable = m_status.questionable();
    addQuery("STATus:QUEStionable[:EVENt]", takeEvents(questionable));
    addQuery("STATus:QUEStionable:CONDition", askCondition(questionable));
    addCommand("STATus:QUEStionable:ENABle", takeEnable(questionable));
    addQuery("STATus:QUEStionable:ENABle", askEnable(questionable));

    addCommand("STATus:PRESet", plain([this] { m_status.preset(); }));
}
