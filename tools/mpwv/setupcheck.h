// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "finding.h"

#include <QJsonObject>

/// Most findings that are listed of one document; a last one tells that there are more.
const int MaxFindings = 1000;

/// What is odd about a setup document: members unknown, missing or of the wrong type, values
/// outside the editor's limits or off their grid, cells that read as 0, a table that does not fit
/// the pulse count, and pulses or gaps that get none of the waveform's points. Every such document
/// can be opened and played all the same.
///
/// The levels are held against the limits of the model families with the largest ones, doubled into
/// high impedance.
QVector<Finding> checkSetup(const QJsonObject& document);
