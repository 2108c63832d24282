// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulseplot.h"
#include "sitext.h"
#include "timetable.h"

#include <QRectF>

#include <qwt_plot.h>

class DimensionItem;
class QPainter;

/// The picture of a plot, ready to be painted: title, axes with the trace and its dimension lines,
/// and the table where there is one.
class PulsePicture
{
public:
    /// @p size is in pixels of the layout.
    PulsePicture(const PulsePlot& plot, const QSize& size);

    /// Resolution of the layout: a device with this one is painted pixel for pixel.
    int dotsPerInch() const;

    void draw(QPainter* painter);

private:
    struct Range
    {
        double low;
        double high;
    };

    void buildAxes();
    void buildAbscissa();
    void buildGrid();
    void buildLevelLines();
    void buildTrace();
    void buildMarks();
    void buildEmptyNote();

    void layOut();
    void placeAxes(double tableHeight);
    void setOrdinate();
    void drawTitle(QPainter* painter) const;
    QFont titleFont() const;
    QFont subtitleFont() const;
    double titleHeight() const;
    double margin() const;

    PulsePlot m_plot;
    QSize m_size;
    double m_dbScale;
    double m_dbEnd; ///< end of the period, in units of the abscissa
    SiPrefix m_timePrefix;
    Range m_volts; ///< what levels and samples span together
    SiPrefix m_voltPrefix;
    TimeTable m_table;
    QwtPlot m_axes;
    DimensionItem* m_pDimensions = nullptr; ///< owned by m_axes
    QRectF m_axesBox;
    QRectF m_tableBox;
};
