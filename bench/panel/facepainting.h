// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QPainter;

/// Draws all of the face that never moves, in units of the face: the plate, the glass round the
/// screen, the connectors and what is printed beside them.
void paintFace(QPainter& painter, const QString& model);
