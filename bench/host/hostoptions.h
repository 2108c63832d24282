// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What the program's command line asks for.
struct HostOptions
{
    bool isText = false; ///< help or version only
    QString text;        ///< of that, with line end

    quint16 screenPort = 5900; ///< 0 for any free one
    QString keypadPath;
    QString pluginFolder;
    QString userData;
    quint16 instrumentPort = 30000;
    QString language;     ///< for this start; empty for the remembered one
    QString translations; ///< folder of the catalogues
};

/// Reads the command line, program name first. Returns what is wrong with it, or an empty text.
/// Needs no application. @p version is what is reported as the version.
QString readHostOptions(const QStringList& arguments, const QString& version, HostOptions& options);
