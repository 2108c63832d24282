// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceplot.h"

#include "panellook.h"
#include "sitext.h"

#include <QRubberBand>

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_textlabel.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

/// A scale whose numbers are multiples of a power of 1000, the same in every locale.
class SiScaleDraw : public QwtScaleDraw
{
public:
    void setFactor(double factor)
    {
        if (factor == m_dbFactor)
            return;
        m_dbFactor = factor;
        invalidateCache();
    }

    QwtText label(double value) const override { return trimmedNumber(value / m_dbFactor, 6); }

private:
    double m_dbFactor = 1;
};

namespace {

const int SmallText = 12;

QwtPlotCurve* makeCurve(const QColor& colour, QwtPlot* plot)
{
    auto* const curve = new QwtPlotCurve;
    curve->setPen(colour, 1.6);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setPaintAttribute(QwtPlotCurve::ClipPolygons);
    curve->attach(plot);
    return curve;
}

QwtPlotMarker* makeUpright(const QColor& colour, Qt::PenStyle style, QwtPlot* plot)
{
    auto* const marker = new QwtPlotMarker;
    marker->setLineStyle(QwtPlotMarker::VLine);
    marker->setLinePen(colour, 1, style);
    marker->setLabelAlignment(Qt::AlignTop | Qt::AlignRight);
    marker->attach(plot);
    return marker;
}

QwtText smallText(const QString& text, const QColor& colour, int size = SmallText)
{
    QwtText label(text);
    label.setFont(PanelLook::font(size));
    label.setColor(colour);
    return label;
}

} // namespace

TracePlot::TracePlot(QWidget* parent)
    : QwtPlot(parent)
    , m_timeScale(new SiScaleDraw)
    , m_voltsScale(new SiScaleDraw)
    , m_frame(new QRubberBand(QRubberBand::Rectangle, canvas()))
{
    setObjectName(QStringLiteral("tracePlot"));
    setFocusPolicy(Qt::StrongFocus);
    setAutoReplot(false);
    auto* const ground = static_cast<QwtPlotCanvas*>(canvas());
    ground->setFrameStyle(QFrame::NoFrame);
    ground->setPalette(PanelLook::Glass);
    ground->setFocusPolicy(Qt::NoFocus);
    ground->installEventFilter(this);
    dressAxes();
    makeItems();
    m_whole = m_view = TraceView::all(m_trace);
    placeCursors();
    retranslate();
}

TracePlot::~TracePlot() = default;

void TracePlot::dressAxes()
{
    setAxisScaleDraw(xBottom, m_timeScale);
    setAxisScaleDraw(yLeft, m_voltsScale);
    for (const int axis : {int(xBottom), int(yLeft)}) {
        QwtScaleWidget* const scale = axisWidget(axis);
        scale->setMargin(0);
        scale->setSpacing(2);
        setAxisFont(axis, PanelLook::font(SmallText));
        QPalette palette = scale->palette();
        palette.setColor(QPalette::WindowText, PanelLook::DimText);
        palette.setColor(QPalette::Text, PanelLook::DimText);
        scale->setPalette(palette);
        axisScaleDraw(axis)->enableComponent(QwtAbstractScaleDraw::Backbone, false);
    }
    // As wide for every number, so that the plot does not jump while it is zoomed.
    m_voltsScale->setMinimumExtent(44);
    plotLayout()->setCanvasMargin(0);
}

void TracePlot::makeItems()
{
    auto* const grid = new QwtPlotGrid;
    grid->setMajorPen(PanelLook::Grid, 0, Qt::SolidLine);
    grid->setMinorPen(PanelLook::Grid.darker(150), 0, Qt::DotLine);
    grid->enableXMin(true);
    grid->attach(this);
    m_trigger = makeUpright(PanelLook::DimText, Qt::DashLine, this);
    m_trigger->setLabel(smallText(QStringLiteral("T"), PanelLook::DimText));
    m_past = makeCurve(QColor(0x78, 0x7c, 0x84), this);
    m_now = makeCurve(PanelLook::Channel1, this);
    for (QwtPlotMarker*& marker : m_markers)
        marker = makeUpright(PanelLook::Text, Qt::SolidLine, this);
    m_noticeLabel = new QwtPlotTextLabel;
    m_noticeLabel->attach(this);
}

void TracePlot::setTrace(const OutputTrace& trace)
{
    m_trace = trace;
    m_whole = TraceView::all(trace);
    if (m_bAll)
        m_view = m_whole;
    if (!m_bCursorsPlaced)
        placeCursors();
    applyView();
    Q_EMIT cursorsChanged();
}

void TracePlot::setSource(Source source)
{
    if (source == m_source)
        return;
    m_source = source;
    applyView();
}

void TracePlot::setNotice(const QString& text)
{
    if (text == m_strNotice)
        return;
    m_strNotice = text;
    QwtText label = smallText(text, PanelLook::Warning, 16);
    label.setRenderFlags(Qt::AlignCenter);
    if (!text.isEmpty()) {
        label.setBackgroundBrush(PanelLook::Window);
        label.setBorderPen(QPen(PanelLook::Window, 12));
    }
    m_noticeLabel->setText(label);
    replot();
}

void TracePlot::setView(const TraceView& view)
{
    m_bAll = false;
    m_view = view;
    applyView();
    Q_EMIT viewChanged();
}

void TracePlot::showAll()
{
    m_bAll = true;
    m_view = m_whole;
    applyView();
    Q_EMIT viewChanged();
}

void TracePlot::zoom(double factor)
{
    const double active = m_dbCursors[m_nActive];
    const bool isSeen = m_bCursors && active > m_view.from && active < m_view.to;
    TraceView view = m_view;
    view.zoomTime(factor, isSeen ? active : (view.from + view.to) / 2, m_whole);
    setView(view);
}

void TracePlot::nameAxis(int axis, SiScaleDraw* scale, double from, double to, const char* title,
                         const QString& unit)
{
    const SiPrefix prefix = siPrefix(qMax(qAbs(from), qAbs(to)));
    scale->setFactor(prefix.factor);
    setAxisScale(axis, from, to);
    setAxisTitle(axis,
                 smallText(QStringLiteral("%1 [%2%3]").arg(qtTrId(title), prefix.letter, unit),
                           PanelLook::DimText));
}

void TracePlot::applyView()
{
    nameAxis(xBottom, m_timeScale, m_view.from, m_view.to, "PANELID_AXIS_TIME",
             QStringLiteral("s"));
    nameAxis(yLeft, m_voltsScale, m_view.low, m_view.high, "PANELID_AXIS_VOLTS",
             QStringLiteral("V"));
    m_trigger->setXValue(0);
    m_trigger->setVisible(!m_trace.isEmpty());
    refreshCurves();
    showCursors();
    replot();
}

void TracePlot::refreshCurves()
{
    const int columns = qMax(1, qRound(canvas()->width() * devicePixelRatioF()));
    const QVector<QPointF> line = outlineOf(m_trace, m_view.from, m_view.to, columns);
    const QVector<QPointF> idle = {{m_view.from, m_trace.idle}, {m_view.to, m_trace.idle}};
    m_past->setVisible(m_source != Live && !m_trace.isEmpty());
    m_past->setSamples(m_source == Live ? QVector<QPointF>() : line);
    m_now->setVisible(m_source != Gone);
    m_now->setSamples(m_source == Live ? line : idle);
}

void TracePlot::showCursors()
{
    for (int i = 0; i < 2; ++i) {
        const bool isActive = i == m_nActive && hasFocus();
        const QColor colour = isActive ? PanelLook::Focus.lighter(130) : PanelLook::Text;
        m_markers[i]->setVisible(m_bCursors);
        m_markers[i]->setXValue(m_dbCursors[i]);
        m_markers[i]->setLinePen(colour, isActive ? 2 : 1);
        m_markers[i]->setLabel(smallText(QString::number(i + 1), colour));
    }
}

void TracePlot::placeCursors()
{
    for (int i = 0; i < 2; ++i)
        m_dbCursors[i] = m_view.from + m_view.seconds() * (i + 1) / 3;
}

void TracePlot::setCursorsShown(bool areShown)
{
    if (areShown == m_bCursors)
        return;
    m_bCursors = areShown;
    showCursors();
    replot();
    Q_EMIT cursorsChanged();
}

void TracePlot::setCursor(int index, double seconds)
{
    m_bCursorsPlaced = true;
    m_dbCursors[index] = seconds;
    showCursors();
    replot();
    Q_EMIT cursorsChanged();
}

void TracePlot::setActiveCursor(int index)
{
    m_nActive = index;
    showCursors();
    replot();
}

void TracePlot::retranslate()
{
    setAccessibleName(qtTrId("PANELID_TRACE_TITLE"));
    applyView();
}

void TracePlot::resizeEvent(QResizeEvent* event)
{
    QwtPlot::resizeEvent(event);
    // As many numbers as have room.
    setAxisMaxMajor(xBottom, qBound(2, canvas()->width() / 90, 12));
    setAxisMaxMajor(yLeft, qBound(2, canvas()->height() / 26, 10));
    refreshCurves();
    replot();
}
