// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandgroups.h"
#include "commandvalues.h"

namespace {

// In the order of BurstTrigger; "BUS" is the usual other name of a trigger by command.
const std::initializer_list<const char*> Sources = {"MANual", "EXTernal", "TIMer", "BUS"};
const int BusSource = 3;

// In the order of EdgeSlope.
const std::initializer_list<const char*> Slopes = {"POSitive", "NEGative"};

const NumberRange TimerRange = {2e-6, 500, TriggerSettings().timerInterval, false, "S"};

using TriggerSetter = bool (*)(ScpiCall&, TriggerSettings&);
using TriggerReader = void (*)(ScpiCall&, const TriggerSettings&);

ScpiCommand triggerCommand(GeneratorModel& model, const char* pattern, TriggerSetter set,
                           TriggerReader read)
{
    return {pattern,
            [&model, set](ScpiCall& call) {
                TriggerSettings settings = model.triggerSettings();
                if (set(call, settings))
                    model.applyTrigger(settings);
            },
            [&model, read](ScpiCall& call) { read(call, model.triggerSettings()); }};
}

bool setSource(ScpiCall& call, TriggerSettings& settings)
{
    const int choice = readMnemonic(call, Sources);
    if (choice >= 0)
        settings.source = choice == BusSource ? BurstTrigger::Manual : BurstTrigger(choice);
    return choice >= 0;
}

void readSource(ScpiCall& call, const TriggerSettings& settings)
{
    replyPlain(call, shortForm(Sources.begin()[int(settings.source)]));
}

bool setSlope(ScpiCall& call, TriggerSettings& settings)
{
    const int choice = readMnemonic(call, Slopes);
    if (choice >= 0)
        settings.slope = EdgeSlope(choice);
    return choice >= 0;
}

void readSlope(ScpiCall& call, const TriggerSettings& settings)
{
    replyPlain(call, shortForm(Slopes.begin()[int(settings.slope)]));
}

bool setTimer(ScpiCall& call, TriggerSettings& settings)
{
    return readNumber(call, TimerRange, settings.timerInterval);
}

void readTimer(ScpiCall& call, const TriggerSettings& settings)
{
    replyNumber(call, TimerRange, settings.timerInterval);
}

// The edge reaches the generator whether or not it waits for one, so a lost one is no error.
void simulateEdge(GeneratorModel& model, ScpiCall& call)
{
    const int choice = readMnemonic(call, Slopes);
    if (choice >= 0)
        model.externalEdge(EdgeSlope(choice));
}

void triggerNow(GeneratorModel& model, ScpiCall& call)
{
    if (expectNoParameter(call) && !model.trigger())
        call.fail(TriggerIgnored);
}

} // namespace

QVector<ScpiCommand> triggerCommands(GeneratorModel& model)
{
    return {
        triggerCommand(model, "TRIGger[:SEQuence]:SOURce", setSource, readSource),
        triggerCommand(model, "TRIGger[:SEQuence]:SLOPe", setSlope, readSlope),
        triggerCommand(model, "TRIGger[:SEQuence]:TIMer", setTimer, readTimer),
        {"TRIGger[:SEQuence][:IMMediate]",
         [&model](ScpiCall& call) { triggerNow(model, call); },
         {}},
        {"SIMulate:TRIGger:EXTernal", [&model](ScpiCall& call) { simulateEdge(model, call); }, {}},
    };
}
