// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

struct OutputTrace;
class TracePlot;

/// Files of what is seen in the trace area. Each returns an empty text, or the reason why there is
/// no file; one that was there before is then left as it was.

/// The plot as it is on the desktop, into a .png or .svg file.
QString savePicture(TracePlot& plot, const QString& path);

/// All samples; see csvOf().
QString saveCsv(const OutputTrace& trace, const QString& path);
