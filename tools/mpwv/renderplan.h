// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// Which waveform file each setup becomes.

struct RenderJob
{
    QString input;
    QString output; ///< "-" for the standard output
};

struct RenderPlan
{
    QVector<RenderJob> jobs;
    QString folder; ///< to be made before the first output; empty where none is missing
    QString wrong;  ///< why there is no plan; empty where there is one
};

/// "setup.json" becomes "setup.mpwv" beside it; any other name gets ".mpwv" behind it.
QString waveformName(const QString& setup);

/// @p target is the value of "-o", empty where it is not given: a folder for any number of setups,
/// a file or "-" for one. Two setups must not become one file, and no setup may be overwritten.
RenderPlan planRender(const QStringList& setups, const QString& target);
