// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "runsequence.h"

#include <QString>

namespace {

// The manual source drives the external trigger input too: there is no third command.
QVector<QByteArray> triggerCommands(const PulseTrain& train)
{
    if (train.triggerSource == TriggerTimer) {
        const QByteArray period = QString::number(train.triggerTimer, 'g', 6).toUtf8();
        return {"TRIGger:SOURce TIMER\n", "TRIGger:TIMER " + period + "\n"};
    }
    return {"TRIGger:SOURce EXTERNAL \n",
            train.triggerSlope == 0 ? "TRIGger:SLOPE POSitive \n" : "TRIGger:SLOPE NEGative \n"};
}

} // namespace

QByteArray RunSequence::impedanceCommand(LoadImpedance load)
{
    return "OUTput1:IMPedance " + QByteArray::number(loadOhms(load)) + "\n";
}

QVector<QByteArray> RunSequence::runCommands(const PulseTrain& train)
{
    const QByteArray frequency = QString::number(train.frequency(), 'g', 20).toUtf8();
    QVector<QByteArray> commands = {
        "OUTP1 OFF \n",
        "OUTP2 OFF \n",
        "*CLS \n",
        "*RST \n",
        "source1:BURSt  ON \n",
        "source1:function emem \n",
        "function:EFile \"M:/run.mpwv\"\n",
        "function:Shape EFILe \n",
        "source1:burst:ncycles 1 \n",
        // The trigger delay is part of the waveform's period; the instrument adds none of its own.
        "source1:burst:TDELay 0\n",
        impedanceCommand(train.load),
        "SOURce1:FREQuency:FIXed " + frequency + "\n",
    };
    commands += triggerCommands(train);
    commands += "OUTP1 ON \n";
    return commands;
}

QVector<QByteArray> RunSequence::stopCommandsBeforeDelete()
{
    return {"OUTP1 OFF \n"};
}

QVector<QByteArray> RunSequence::stopCommandsAfterDelete()
{
    return {"*RST \n"};
}
