// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsepicture.h"

#include "dimensionitem.h"
#include "picturescales.h"
#include "picturestyle.h"
#include "traceoutline.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>

namespace {

double endOf(const OutputWaveform& waveform)
{
    return waveform.position(double(waveform.volts.size()));
}

QwtText styledText(const QString& text, double pixels, double scale)
{
    QwtText styled(text);
    styled.setFont(PictureStyle::fontOf(pixels, scale));
    styled.setColor(PictureStyle::Ink);
    return styled;
}

QVector<PlotMark> scaledMarks(QVector<PlotMark> marks, double factor)
{
    for (PlotMark& mark : marks) {
        mark.from /= factor;
        mark.to /= factor;
    }
    return marks;
}

void styleAxis(QwtPlot& axes, int axis, const QwtText& title, double scale)
{
    axes.enableAxis(axis);
    axes.setAxisFont(axis, PictureStyle::fontOf(13, scale));
    axes.setAxisTitle(axis, title);
    axes.axisWidget(axis)->setMargin(0);
    axes.axisWidget(axis)->setSpacing(qRound(6 * scale));
}

} // namespace

PulsePicture::PulsePicture(const PulsePlot& plot, const QSize& size)
    : m_plot(plot)
    , m_size(size)
    , m_dbScale(PictureStyle::scaleOf(size.width(), size.height()))
    , m_dbEnd(endOf(plot.waveform))
    , m_timePrefix(siPrefix(plot.waveform.hasTime() ? m_dbEnd : 0))
    , m_volts{plot.waveform.low, plot.waveform.high}
    , m_table(plot.marks, m_dbScale)
{
    for (const double volts : plot.waveform.volts)
        m_volts = {std::min(m_volts.low, volts), std::max(m_volts.high, volts)};
    m_voltPrefix = siPrefix(std::max(std::fabs(m_volts.low), std::fabs(m_volts.high)));
    buildAxes();
    buildAbscissa();
    buildGrid();
    buildLevelLines();
    if (plot.waveform.volts.empty())
        buildEmptyNote();
    else
        buildTrace();
    buildMarks();
    layOut();
}

int PulsePicture::dotsPerInch() const
{
    return m_axes.logicalDpiX();
}

void PulsePicture::buildAxes()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::WindowText, PictureStyle::QuietInk);
    palette.setColor(QPalette::Text, PictureStyle::Ink);
    m_axes.setPalette(palette);
    m_axes.setCanvasBackground(Qt::white);
    static_cast<QwtPlotCanvas*>(m_axes.canvas())->setFrameStyle(QFrame::NoFrame);

    const QString volts = m_voltPrefix.letter + QLatin1Char('V');
    styleAxis(m_axes, QwtPlot::yLeft,
              styledText(QStringLiteral("Voltage (%1)").arg(volts), 14, m_dbScale), m_dbScale);
    styleAxis(m_axes, QwtPlot::yRight, QwtText(), m_dbScale);
    m_axes.setAxisScaleDraw(QwtPlot::yLeft, new PlainScaleDraw);
    m_axes.setAxisScaleDraw(QwtPlot::yRight, new LevelScaleDraw(volts));
    m_axes.setAxisMaxMajor(QwtPlot::yLeft, 6);
}

void PulsePicture::buildAbscissa()
{
    const bool hasTime = m_plot.waveform.hasTime();
    const QString title =
        hasTime ? QStringLiteral("Time (%1s)").arg(m_timePrefix.letter) : QStringLiteral("Point");
    styleAxis(m_axes, QwtPlot::xBottom, styledText(title, 14, m_dbScale), m_dbScale);
    m_axes.setAxisScaleDraw(QwtPlot::xBottom, new PlainScaleDraw);
    m_axes.setAxisMaxMajor(QwtPlot::xBottom, 12);
    const double end = m_dbEnd > 0 ? m_dbEnd / m_timePrefix.factor : 1;
    m_axes.setAxisScale(QwtPlot::xBottom, -0.01 * end, 1.01 * end);
}

void PulsePicture::buildGrid()
{
    auto* grid = new QwtPlotGrid;
    grid->setMajorPen(PictureStyle::GridLine, m_dbScale);
    grid->attach(&m_axes);
}

void PulsePicture::buildLevelLines()
{
    for (const double level : {m_plot.waveform.low, m_plot.waveform.high}) {
        auto* marker = new QwtPlotMarker;
        marker->setLineStyle(QwtPlotMarker::HLine);
        marker->setLinePen(PictureStyle::QuietInk, m_dbScale, Qt::DotLine);
        marker->setYValue(level / m_voltPrefix.factor);
        // Below the trace, which runs along the levels.
        marker->setZ(15);
        marker->attach(&m_axes);
    }
}

void PulsePicture::buildTrace()
{
    QVector<QPointF> corners = outlineOf(m_plot.waveform, 2 * m_size.width());
    for (QPointF& corner : corners)
        corner = {corner.x() / m_timePrefix.factor, corner.y() / m_voltPrefix.factor};

    const bool rises = m_plot.polarity == Polarity::Positive;
    auto* curve = new QwtPlotCurve;
    curve->setSamples(corners);
    QPen pen(PictureStyle::Trace, 2 * m_dbScale);
    // A pointed join would lift the tip of a narrow pulse above its level.
    pen.setJoinStyle(Qt::RoundJoin);
    curve->setPen(pen);
    if (!m_plot.marks.isEmpty())
        curve->setBrush(PictureStyle::TraceFill);
    curve->setBaseline((rises ? m_volts.low : m_volts.high) / m_voltPrefix.factor);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(&m_axes);
}

void PulsePicture::buildMarks()
{
    m_pDimensions = new DimensionItem(scaledMarks(m_plot.marks, m_timePrefix.factor),
                                      m_volts.high / m_voltPrefix.factor, m_dbScale);
    m_pDimensions->attach(&m_axes);
}

void PulsePicture::buildEmptyNote()
{
    auto* note = new QwtPlotMarker;
    note->setLabel(styledText(QStringLiteral("no points: nothing is played"), 18, m_dbScale));
    note->setValue(0.5, (m_volts.low + m_volts.high) * 0.5 / m_voltPrefix.factor);
    note->attach(&m_axes);
    m_axes.enableAxis(QwtPlot::xBottom, false);
}
