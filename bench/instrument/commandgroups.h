// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "channel.h"
#include "generatormodel.h"
#include "scpicall.h"

#include <QVector>

#include <functional>

/// The groups that generatorCommands() is put together from, and what they share.

enum GeneratorError {
    HeaderSuffixOutOfRange = -114,
    TriggerIgnored = -211,
    SettingsConflict = -221,
};

/// Reads the call's parameter into the settings; false with the call failed.
using ChannelSetter = std::function<bool(ScpiCall& call, ChannelSettings& settings)>;
/// Replies from a channel as it is now.
using ChannelReader = std::function<void(ScpiCall& call, const Channel& channel)>;

/// A command for the channel that its first suffix names. Either function may be empty.
ScpiCommand channelCommand(GeneratorModel& model, const char* pattern, const ChannelSetter& set,
                           const ChannelReader& read);

/// Runs @p action with the channel number that the call names, or fails the call (-114).
void withChannel(ScpiCall& call, const std::function<void(int number)>& action);

QVector<ScpiCommand> outputCommands(GeneratorModel& model);
QVector<ScpiCommand> burstCommands(GeneratorModel& model);
QVector<ScpiCommand> functionCommands(GeneratorModel& model);
QVector<ScpiCommand> voltageCommands(GeneratorModel& model);
QVector<ScpiCommand> triggerCommands(GeneratorModel& model);
QVector<ScpiCommand> traceCommands(GeneratorModel& model);
