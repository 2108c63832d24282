// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputwaveform.h"

#include <QVector>

#include <QPointF>

/// The line that draws a waveform with few corners: what a picture of @p columns columns can show,
/// never more than 4 x @p columns corners and some. Abscissas are those of
/// OutputWaveform::position(), the last one the end of the period, ordinates volts; steps are
/// upright.
QVector<QPointF> outlineOf(const OutputWaveform& waveform, int columns);
