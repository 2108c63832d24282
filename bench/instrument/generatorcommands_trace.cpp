// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandgroups.h"
#include "commandvalues.h"

namespace {

// In the order of ByteOrder.
const std::initializer_list<const char*> Orders = {"NORMal", "SWAPped"};

using ChannelText = QByteArray (*)(const Channel&);

ScpiCommand traceQuery(GeneratorModel& model, const char* pattern, ChannelText text)
{
    return channelCommand(model, pattern, {}, [text](ScpiCall& call, const Channel& channel) {
        replyPlain(call, text(channel));
    });
}

ScpiCommand dataQuery(GeneratorModel& model)
{
    return channelCommand(model, "TRACe#[:DATA]", {},
                          [&model](ScpiCall& call, const Channel& channel) {
                              if (expectNoParameter(call))
                                  call.reply = traceBlock(channel.trace(), model.byteOrder());
                          });
}

ScpiCommand byteOrderCommand(GeneratorModel& model)
{
    return {"FORMat:BORDer",
            [&model](ScpiCall& call) {
                const int choice = readMnemonic(call, Orders);
                if (choice >= 0)
                    model.setByteOrder(ByteOrder(choice));
            },
            [&model](ScpiCall& call) {
                replyPlain(call, shortForm(Orders.begin()[int(model.byteOrder())]));
            }};
}

} // namespace

QVector<ScpiCommand> traceCommands(GeneratorModel& model)
{
    return {
        byteOrderCommand(model),
        dataQuery(model),
        traceQuery(model, "TRACe#:POINts",
                   [](const Channel& c) { return QByteArray::number(c.trace().points()); }),
        traceQuery(model, "TRACe#:CYCLes",
                   [](const Channel& c) { return QByteArray::number(c.trace().shownCycles()); }),
        traceQuery(model, "TRACe#:TIMe:STEP",
                   [](const Channel& c) { return numberText(c.trace().timeStep); }),
        traceQuery(model, "TRACe#:TIMe:STARt",
                   [](const Channel& c) { return numberText(c.trace().startTime); }),
        traceQuery(model, "TRACe#:LEVel:SCALe",
                   [](const Channel& c) { return numberText(c.trace().levelScale); }),
        traceQuery(model, "TRACe#:LEVel:OFFSet",
                   [](const Channel& c) { return numberText(c.trace().levelOffset); }),
        traceQuery(model, "TRACe#:LEVel:IDLE",
                   [](const Channel& c) { return numberText(c.idleLevel()); }),
        traceQuery(model, "TRACe#:COUNt",
                   [](const Channel& c) { return QByteArray::number(c.count()); }),
        traceQuery(model, "TRACe#:SEQuence",
                   [](const Channel& c) { return QByteArray::number(c.sequence()); }),
    };
}
