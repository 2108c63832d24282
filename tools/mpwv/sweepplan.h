// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// The series of widths of a double-pulse test.

/// Most setups of one series.
const int MaxSweepSetups = 10000;

/// From FROM in steps of STEP up to TO, or down to it: FROM:TO:STEP with numbers as "2u", or one
/// number alone.
struct SweepRange
{
    double from = 0;
    double to = 0;
    double step = 0; ///< against the direction of FROM to TO nothing is swept

    /// False for any other text, for a step of 0 and for one that leads away from TO.
    /// The numbers may have @p unit behind them.
    static bool parse(const QString& text, SweepRange& range, const QString& unit = QString());

    /// The values of the range, TO included where a whole number of steps leads to it; at most @p
    /// most + 1 of them.
    QVector<double> values(int most) const;
};

struct SweepStep
{
    qint64 nanoseconds = 0; ///< width of the pulse
    double current = 0;     ///< amperes; 0 in a series of widths
    QString suffix;         ///< of the file name, microseconds: "_w2.000u", "_i10_w1.250u"
};

/// Suffixes have digits enough for the names of a series to sort by their values.
struct SweepPlan
{
    QVector<SweepStep> steps;
    QString wrong; ///< why there is no plan; empty where there is one
};

/// A step for each width of @p range, in seconds, which must lie on the grid of 1 ns.
SweepPlan planWidths(const SweepRange& range);

/// A step for each current of @p range, in amperes: the width after which the inductance (henries)
/// carries it at the voltage (volts), rounded to 1 ns.
SweepPlan planCurrents(const SweepRange& range, double voltage, double inductance);

/// The width as the text of a table cell: "2.000u", "20.000n".
QString cellOfNanoseconds(qint64 nanoseconds);
