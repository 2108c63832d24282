// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Asks the instrument on a port of this machine what channel 1 put out in its last burst, and
/// draws volts against seconds into the .svg file @p path. Returns an empty text, or why there is
/// no plot: no instrument, no burst yet, a file that cannot be written. Needs a QApplication.
QString plotOutput(quint16 instrumentPort, const QString& path);
