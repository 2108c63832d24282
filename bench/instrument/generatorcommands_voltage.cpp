// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandgroups.h"
#include "commandvalues.h"

// Voltages in commands are those at the load that the channel is set for; the settings hold those
// into 50 ohm.

namespace {

struct Levels
{
    double high;
    double low;
};

Levels levelsAtLoad(const ChannelSettings& settings)
{
    const double factor = loadFactor(settings.loadOhms);
    return {factor * (settings.offset + settings.amplitude / 2),
            factor * (settings.offset - settings.amplitude / 2)};
}

NumberRange amplitudeRange(const GeneratorLimits& limits, const ChannelSettings& settings)
{
    const double factor = loadFactor(settings.loadOhms);
    return {factor * limits.minAmplitude, factor * limits.maxAmplitude,
            factor * ChannelSettings().amplitude, false, "VPP"};
}

NumberRange levelRange(const GeneratorLimits& limits, const ChannelSettings& settings,
                       double defaultVolts)
{
    const double factor = loadFactor(settings.loadOhms);
    return {factor * limits.levelMinus, factor * limits.levelPlus, factor * defaultVolts, false,
            "V"};
}

bool levelsFit(ScpiCall& call, const GeneratorLimits& limits, const ChannelSettings& settings)
{
    const bool fit = limits.canPlay(settings.amplitude, settings.offset);
    if (!fit)
        call.fail(SettingsConflict, "the levels leave the model's bounds");
    return fit;
}

bool setAmplitude(ScpiCall& call, const GeneratorLimits& limits, ChannelSettings& settings)
{
    double volts = 0;
    if (!readNumber(call, amplitudeRange(limits, settings), volts))
        return false;
    settings.amplitude = volts / loadFactor(settings.loadOhms);
    return levelsFit(call, limits, settings);
}

bool setOffset(ScpiCall& call, const GeneratorLimits& limits, ChannelSettings& settings)
{
    double volts = 0;
    if (!readNumber(call, levelRange(limits, settings, ChannelSettings().offset), volts))
        return false;
    settings.offset = volts / loadFactor(settings.loadOhms);
    return levelsFit(call, limits, settings);
}

// The smallest amplitude is met within the rounding of the subtraction.
bool setLevels(ScpiCall& call, const GeneratorLimits& limits, const Levels& levels,
               ChannelSettings& settings)
{
    const double factor = loadFactor(settings.loadOhms);
    settings.amplitude = (levels.high - levels.low) / factor;
    settings.offset = (levels.high + levels.low) / 2 / factor;
    if (settings.amplitude >= limits.minAmplitude * (1 - 1e-9))
        return levelsFit(call, limits, settings);

    call.fail(SettingsConflict, "the levels are too close to each other");
    return false;
}

bool setHigh(ScpiCall& call, const GeneratorLimits& limits, ChannelSettings& settings)
{
    Levels levels = levelsAtLoad(settings);
    return readNumber(call, levelRange(limits, settings, 0.5), levels.high) &&
           setLevels(call, limits, levels, settings);
}

bool setLow(ScpiCall& call, const GeneratorLimits& limits, ChannelSettings& settings)
{
    Levels levels = levelsAtLoad(settings);
    return readNumber(call, levelRange(limits, settings, -0.5), levels.low) &&
           setLevels(call, limits, levels, settings);
}

void readAmplitude(ScpiCall& call, const GeneratorLimits& limits, const ChannelSettings& settings)
{
    replyNumber(call, amplitudeRange(limits, settings),
                loadFactor(settings.loadOhms) * settings.amplitude);
}

void readOffset(ScpiCall& call, const GeneratorLimits& limits, const ChannelSettings& settings)
{
    replyNumber(call, levelRange(limits, settings, ChannelSettings().offset),
                loadFactor(settings.loadOhms) * settings.offset);
}

void readHigh(ScpiCall& call, const GeneratorLimits& limits, const ChannelSettings& settings)
{
    replyNumber(call, levelRange(limits, settings, 0.5), levelsAtLoad(settings).high);
}

void readLow(ScpiCall& call, const GeneratorLimits& limits, const ChannelSettings& settings)
{
    replyNumber(call, levelRange(limits, settings, -0.5), levelsAtLoad(settings).low);
}

using LimitedSetter = bool (*)(ScpiCall&, const GeneratorLimits&, ChannelSettings&);
using LimitedReader = void (*)(ScpiCall&, const GeneratorLimits&, const ChannelSettings&);

ScpiCommand levelCommand(GeneratorModel& model, const char* pattern, LimitedSetter set,
                         LimitedReader read)
{
    return channelCommand(
        model, pattern,
        [&model, set](ScpiCall& call, ChannelSettings& settings) {
            return set(call, model.limits(), settings);
        },
        [&model, read](ScpiCall& call, const Channel& channel) {
            read(call, model.limits(), channel.settings());
        });
}

} // namespace

QVector<ScpiCommand> voltageCommands(GeneratorModel& model)
{
    return {
        levelCommand(model, "[SOURce#]:VOLTage[:LEVel][:IMMediate][:AMPLitude]", setAmplitude,
                     readAmplitude),
        levelCommand(model, "[SOURce#]:VOLTage[:LEVel][:IMMediate]:OFFSet", setOffset, readOffset),
        levelCommand(model, "[SOURce#]:VOLTage[:LEVel][:IMMediate]:HIGH", setHigh, readHigh),
        levelCommand(model, "[SOURce#]:VOLTage[:LEVel][:IMMediate]:LOW", setLow, readLow),
    };
}
