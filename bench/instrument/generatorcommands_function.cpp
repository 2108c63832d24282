// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandgroups.h"
#include "commandvalues.h"
#include "scpitext.h"

#include <QString>

namespace {

// In the order of WaveShape.
const std::initializer_list<const char*> Shapes = {"SINusoid", "EMEMory", "EFILe"};

NumberRange frequencyRange(const GeneratorModel& model)
{
    return {1e-6, model.limits().maxFrequency(), ChannelSettings().frequency, false, "HZ"};
}

bool setShape(ScpiCall& call, ChannelSettings& settings)
{
    const int choice = readMnemonic(call, Shapes);
    if (choice < 0)
        return false;

    const WaveShape shape = WaveShape(choice);
    if (shape == WaveShape::File && settings.fileName.isEmpty()) {
        call.fail(SettingsConflict, "no waveform file is loaded");
        return false;
    }
    settings.shape = shape;
    return true;
}

void loadFile(GeneratorModel& model, ScpiCall& call)
{
    QByteArray name;
    if (!readText(call, name))
        return;

    withChannel(call, [&](int number) {
        // With its size, since a name ends where it ends and not at a zero byte.
        const QString path = QString::fromUtf8(name.constData(), name.size());
        const StoreError error = model.loadWaveform(number, path);
        if (error.number != 0)
            call.fail(error.number, error.detail);
    });
}

ScpiCommand fileCommand(GeneratorModel& model)
{
    ScpiCommand command = channelCommand(model, "[SOURce#]:FUNCtion:EFILe", {},
                                         [](ScpiCall& call, const Channel& channel) {
                                             const QString& name = channel.settings().fileName;
                                             replyPlain(call, ScpiText::quoted(name.toUtf8()));
                                         });
    command.set = [&model](ScpiCall& call) { loadFile(model, call); };
    return command;
}

} // namespace

QVector<ScpiCommand> functionCommands(GeneratorModel& model)
{
    return {
        channelCommand(model, "[SOURce#]:FUNCtion[:SHAPe]", setShape,
                       [](ScpiCall& call, const Channel& channel) {
                           const char* const shape = Shapes.begin()[int(channel.settings().shape)];
                           replyPlain(call, shortForm(shape));
                       }),
        fileCommand(model),
        channelCommand(
            model, "[SOURce#]:FREQuency[:FIXed]",
            [&model](ScpiCall& call, ChannelSettings& settings) {
                return readNumber(call, frequencyRange(model), settings.frequency);
            },
            [&model](ScpiCall& call, const Channel& channel) {
                replyNumber(call, frequencyRange(model), channel.settings().frequency);
            }),
    };
}
