// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"

#include <QString>

/// What is known of a statement that failed.
struct ScenarioFailure
{
    QString place;     ///< FILE:LINE
    QString statement; ///< as it is written
    QString step;      ///< the step that it belongs to; empty for none
    QString reason;    ///< what was expected and was not so
    bool hasScreen = false;
    Keypad::ScreenDescription screen; ///< what could be read at that moment
    QString picture;                  ///< file with what could be seen; empty for none
};

/// The report, several lines.
QString failureText(const ScenarioFailure& failure);
