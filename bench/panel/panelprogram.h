// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QTextStream;
struct PanelOptions;

/// Exit codes.
enum PanelResult {
    PanelDone = 0,
    PanelUsage = 2, ///< the options are wrong, or there are no texts
};

/// Shows the panel until its window is closed or the process is asked to end. Needs a QApplication.
/// What it prints goes to @p out and @p err.
int runPanel(const PanelOptions& options, QTextStream& out, QTextStream& err);
