// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "faultplan.h"

#include <QString>
#include <QStringList>

/// What the program's command line asks for.
struct ServerOptions
{
    enum Mode { Serve, Replay, Compare, ShowText };

    Mode mode = Serve;
    QString text; ///< of ShowText: the help or the version, with line end

    quint16 port = 30000; ///< 0 for any free one
    QString userData;     ///< folder
    QString model;        ///< as given: the name of a family or of one of its models
    FaultPlan faults;
    quint32 seed = 1;
    QString transcriptPath; ///< empty for none
    QString replayPath;
    QString firstPath;  ///< of Compare
    QString secondPath; ///< of Compare
};

/// Reads the command line, program name first. Returns what is wrong with it, or an empty text.
/// Needs a QCoreApplication, whose version it reports.
QString readServerOptions(const QStringList& arguments, ServerOptions& options);
