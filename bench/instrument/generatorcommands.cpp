// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatorcommands.h"

#include "commandgroups.h"
#include "commandvalues.h"

#include <cmath>

namespace {

const NumberRange LoadRange = {50, 10000, 50, true, "OHM"};
const NumberRange CyclesRange = {1, 1000000, 1, true};
const NumberRange DelayRange = {0, 100, 0, false, "S"};

} // namespace

void withChannel(ScpiCall& call, const std::function<void(int number)>& action)
{
    const int number = call.suffixes.value(0, 1);
    if (number >= 1 && number <= GeneratorModel::ChannelCount)
        action(number);
    else
        call.fail(HeaderSuffixOutOfRange);
}

ScpiCommand channelCommand(GeneratorModel& model, const char* pattern, const ChannelSetter& set,
                           const ChannelReader& read)
{
    ScpiCommand command = {pattern, {}, {}};
    if (set) {
        command.set = [&model, set](ScpiCall& call) {
            withChannel(call, [&](int number) {
                ChannelSettings settings = model.channel(number).settings();
                if (set(call, settings))
                    model.applyChannel(number, settings);
            });
        };
    }
    if (read) {
        command.query = [&model, read](ScpiCall& call) {
            withChannel(call, [&](int number) { read(call, model.channel(number)); });
        };
    }
    return command;
}

QVector<ScpiCommand> outputCommands(GeneratorModel& model)
{
    return {
        channelCommand(
            model, "OUTPut#[:STATe]",
            [](ScpiCall& call, ChannelSettings& settings) {
                return readSwitch(call, settings.outputOn);
            },
            [](ScpiCall& call, const Channel& channel) {
                replyPlain(call, channel.settings().outputOn ? "1" : "0");
            }),
        channelCommand(
            model, "OUTPut#:IMPedance",
            [](ScpiCall& call, ChannelSettings& settings) {
                return readNumber(call, LoadRange, settings.loadOhms);
            },
            [](ScpiCall& call, const Channel& channel) {
                replyNumber(call, LoadRange, channel.settings().loadOhms);
            }),
    };
}

QVector<ScpiCommand> burstCommands(GeneratorModel& model)
{
    return {
        channelCommand(
            model, "[SOURce#]:BURSt[:STATe]",
            [](ScpiCall& call, ChannelSettings& settings) {
                return readSwitch(call, settings.burstOn);
            },
            [](ScpiCall& call, const Channel& channel) {
                replyPlain(call, channel.settings().burstOn ? "1" : "0");
            }),
        channelCommand(
            model, "[SOURce#]:BURSt:NCYCles",
            [](ScpiCall& call, ChannelSettings& settings) {
                const bool read = readNumber(call, CyclesRange, settings.burstCycles);
                settings.burstCycles = std::round(settings.burstCycles);
                return read;
            },
            [](ScpiCall& call, const Channel& channel) {
                replyNumber(call, CyclesRange, channel.settings().burstCycles);
            }),
        channelCommand(
            model, "[SOURce#]:BURSt:TDELay",
            [](ScpiCall& call, ChannelSettings& settings) {
                return readNumber(call, DelayRange, settings.burstDelay);
            },
            [](ScpiCall& call, const Channel& channel) {
                replyNumber(call, DelayRange, channel.settings().burstDelay);
            }),
    };
}

QVector<ScpiCommand> generatorCommands(GeneratorModel& model)
{
    return outputCommands(model) + burstCommands(model) + functionCommands(model) +
           voltageCommands(model) + triggerCommands(model) + traceCommands(model);
}
