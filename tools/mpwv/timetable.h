// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulseplot.h"

#include <QRectF>

class QPainter;

/// The table below a picture whose pulses are numbered: number, width and gap of each pulse, in
/// columns from left to right.
class TimeTable
{
public:
    TimeTable(const QVector<PlotMark>& marks, double scale);

    /// Height that the table takes at the given width, @p most pixels at the most: entries that do
    /// not fit are counted in the last place.
    double heightFor(double width, double most) const;

    /// Draws the table into @p box, whose height is that of heightFor().
    void draw(QPainter* painter, const QRectF& box) const;

private:
    struct Entry
    {
        int number;
        QString width;
        QString gap;
    };

    void measure();
    int blocksIn(double width) const;
    int rowsFor(double width) const;
    double blockWidth() const;
    double rowHeight() const;
    void drawRow(QPainter* painter, QPointF place, const QString& number, const QString& width,
                 const QString& gap) const;
    void drawHead(QPainter* painter, QPointF place) const;
    void drawEntry(QPainter* painter, QPointF place, int index, int places) const;

    QVector<Entry> m_entries;
    double m_dbScale;
    double m_dbNumberWidth = 0; ///< of the columns, in pixels
    double m_dbTimeWidth = 0;
    double m_dbSpace = 0;
};
