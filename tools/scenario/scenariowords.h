// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenariotext.h"

#include <QString>
#include <QVector>

/// A word of a scenario's line: a bare one, or a text in quotation marks or braces.
struct ScenarioWord
{
    bool isText = false;
    QString bare;      ///< of a bare word
    ScenarioText text; ///< of a text
};

/// Parts a line into words; a # outside a text begins a comment. Returns what is wrong, or nothing.
QString splitScenarioLine(const QString& line, QVector<ScenarioWord>& words);
