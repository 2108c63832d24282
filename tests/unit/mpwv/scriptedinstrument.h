// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputwaveform.h"
#include "ranwith.h"
#include "runsequence.h"
#include "scriptedserver.h"

#include <QTemporaryDir>
#include <QtEndian>

// What a scripted instrument answers to the commands of the shell tool.

using Script = QVector<ScriptedServer::Turn>;

const char Identity[] = "Maker,KVX70302,SN1,1.0\n";
const char NoError[] = "0,\"No error\"\n";

inline Script silence(int lines)
{
    return Script(lines);
}

inline ScriptedServer::Turn reply(const QByteArray& bytes)
{
    return {{bytes}, false};
}

inline ScriptedServer::Turn closing()
{
    return {{}, true};
}

inline QByteArray joined(const QVector<QByteArray>& commands)
{
    QByteArray bytes;
    for (const QByteArray& command : commands)
        bytes += command;
    return bytes;
}

inline QByteArray runBytes(const TestSetup& setup)
{
    return joined(RunSequence::runCommands(setup.train())) + "*IDN? \n";
}

// Answers of an instrument that has taken the run's commands and has no error.
inline Script runScript(const TestSetup& setup)
{
    Script script = silence(RunSequence::runCommands(setup.train()).size());
    script << reply(Identity) << reply(NoError);
    return script;
}

// The queue after the trigger, and the trace of what the setup's file holds, with a hole where
// samples are put at the base.
inline Script traceScript(const TestSetup& setup, int holeBegin = 0, int holeEnd = 0)
{
    OutputWaveform waveform;
    const QString reason = outputOfTrain(setup.train(), waveform);
    if (!reason.isEmpty())
        qFatal("%s", qPrintable(reason));
    const int count = int(waveform.volts.size());
    QByteArray data(2 * count, Qt::Uninitialized);
    for (int i = 0; i < count; ++i) {
        const double volts = i >= holeBegin && i < holeEnd ? -1 : waveform.volts[size_t(i)];
        qToBigEndian<qint16>(qint16(volts * 10000), data.data() + 2 * i);
    }
    const QByteArray length = QByteArray::number(data.size());
    return silence(1) << reply(NoError) << reply(QByteArray::number(count) + '\n')
                      << reply(QByteArray::number(waveform.step, 'g', 17) + '\n') << reply("0\n")
                      << reply("1E-4\n") << reply("0\n") << reply("NORM\n")
                      << reply('#' + QByteArray::number(length.size()) + length + data + '\n');
}

struct Folder
{
    QTemporaryDir directory;
    QString runFile = directory.filePath(QStringLiteral("run.mpwv"));
    QStringList option = {QStringLiteral("--user-data"), directory.path()};
};
