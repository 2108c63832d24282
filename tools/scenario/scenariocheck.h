// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenarioparser.h"

#include <QStringList>
#include <QVector>

/// The identifiers in scenarios that the English catalogues in a folder do not have, as
/// FILE:LINE: REASON; or why the catalogues cannot be read, where a scenario needs them.
QStringList unknownIdentifiers(const QVector<Scenario>& scenarios, const QString& translations);
