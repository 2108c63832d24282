// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "statement.h"

#include <QStringList>
#include <QVector>

/// A scenario: what a person does at the desk and what he then sees, a statement a line.
struct Scenario
{
    QString fileName; ///< as errors name it
    QVector<Statement> statements;
};

/// Reads a scenario's text (UTF-8). Returns every mistake as FILE:LINE: REASON; with a mistake the
/// scenario is not to be played.
QStringList parseScenario(const QByteArray& text, Scenario& scenario);
