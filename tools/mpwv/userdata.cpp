// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "userdata.h"

#include "runsequence.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QLatin1String UserData("user-data");

QFileInfo defaultRunFile()
{
    return QFileInfo(QString::fromUtf8(RunSequence::WaveformPath));
}

} // namespace

void addUserDataOption(CommandLine& line)
{
    line.addOption({UserData},
                   QStringLiteral("The folder that the instrument reads waveform files from; "
                                  "/mnt/user-data by default."),
                   QStringLiteral("FOLDER"));
}

QString userDataFolder(const CommandLine& line)
{
    return line.isSet(UserData) ? line.value(UserData) : defaultRunFile().path();
}

QString runFilePath(const CommandLine& line)
{
    return QDir(userDataFolder(line)).filePath(defaultRunFile().fileName());
}
