// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "finding.h"

#include <QByteArray>

/// What is wrong with the bytes of a waveform file: what the reader refuses, and beyond it reserved
/// bytes that are not zero, a thumbnail that does not show the samples, samples that the writer
/// cannot have made, and levels outside the limits of every model.
QVector<Finding> checkWaveform(const QByteArray& bytes);
