// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"

#include <QVector>

/// Runs the tool with the arguments behind the program's name: one of @p commands, "help",
/// "--help" or "--version". Returns an ExitCode; an unknown command is answered with the one that
/// was meant, if there is one at most two letters away.
int runTool(const QVector<Command>& commands, const QStringList& arguments, Streams& streams);
