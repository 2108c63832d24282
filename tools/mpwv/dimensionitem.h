// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "labellayout.h"
#include "pulseplot.h"

#include <qwt_plot_item.h>

#include <QFont>

/// The band of dimension lines above the trace: for each mark a line between its ends with its
/// text, or, where the texts would collide, the numbers of the pulses.
class DimensionItem : public QwtPlotItem
{
public:
    /// @p marks stand in the units of the abscissa. @p top is the ordinate down to which the lines
    /// reach.
    DimensionItem(const QVector<PlotMark>& marks, double top, double scale);

    /// Chooses texts or numbers, and the number of rows, for a canvas that is drawn with @p xMap.
    void arrange(const QwtScaleMap& xMap);

    /// Height in pixels that the band takes at the top of the canvas, after arrange().
    double bandHeight() const;

    /// Whether the marks are numbered instead of named, after arrange().
    bool isNumbered() const { return m_bNumbered; }

    int rtti() const override { return QwtPlotItem::Rtti_PlotUserItem; }

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvasRect) const override;

private:
    struct Stretch
    {
        double from;
        double to;
    };

    QVector<PlotMark> labelledMarks() const;
    QString labelText(const PlotMark& mark) const;
    QVector<LabelPlace> placesOn(const QwtScaleMap& xMap, int rows) const;
    double rowHeight() const;
    double rowMiddle(const QRectF& canvasRect, int row) const;
    QRectF labelBox(const QRectF& canvasRect, const LabelPlace& place, const QString& text) const;
    void drawExtensions(QPainter* painter, Stretch stretch, double line, double trace) const;
    void drawLine(QPainter* painter, Stretch stretch, double line) const;
    void drawLabel(QPainter* painter, const QString& text, const QRectF& box) const;

    QVector<PlotMark> m_marks;
    double m_dbTop;
    double m_dbScale;
    QFont m_font;
    int m_nRows = 0;
    bool m_bNumbered = false;
};
