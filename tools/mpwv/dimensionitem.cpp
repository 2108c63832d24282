// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dimensionitem.h"

#include "picturestyle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <qwt_scale_map.h>

#include <algorithm>

namespace {

const int MostTextRows = 3;
const int MostNumberRows = 2;

QColor colourOf(const PlotMark& mark)
{
    return mark.kind == PlotMark::Pulse ? PictureStyle::Trace : PictureStyle::QuietInk;
}

void drawArrow(QPainter* painter, QPointF tip, double length)
{
    const double half = length * 0.3 * (length < 0 ? -1 : 1);
    const QPointF back(tip.x() + length, tip.y());
    painter->drawPolygon(QPolygonF({tip, back + QPointF(0, half), back - QPointF(0, half)}));
}

} // namespace

DimensionItem::DimensionItem(const QVector<PlotMark>& marks, double top, double scale)
    : m_marks(marks)
    , m_dbTop(top)
    , m_dbScale(scale)
    , m_font(PictureStyle::fontOf(13, scale))
{
    setRenderHint(QwtPlotItem::RenderAntialiased);
    // Above the grid, which would run through the texts.
    setZ(30);
}

double DimensionItem::rowHeight() const
{
    return QFontMetricsF(m_font).height() * 1.15;
}

QVector<PlotMark> DimensionItem::labelledMarks() const
{
    if (!m_bNumbered)
        return m_marks;
    QVector<PlotMark> pulses;
    std::copy_if(m_marks.begin(), m_marks.end(), std::back_inserter(pulses),
                 [](const PlotMark& mark) { return mark.kind == PlotMark::Pulse; });
    return pulses;
}

QString DimensionItem::labelText(const PlotMark& mark) const
{
    return m_bNumbered ? QString::number(mark.number) : mark.text;
}

QVector<LabelPlace> DimensionItem::placesOn(const QwtScaleMap& xMap, int rows) const
{
    const QFontMetricsF metrics(m_font);
    QVector<LabelRequest> requests;
    for (const PlotMark& mark : labelledMarks())
        requests.append({xMap.transform(mark.from), xMap.transform(mark.to),
                         metrics.horizontalAdvance(labelText(mark))});
    const double margin = m_bNumbered ? 2.5 : 9;
    return placeLabels(requests, {xMap.p1(), xMap.p2(), rows, margin * m_dbScale, !m_bNumbered});
}

void DimensionItem::arrange(const QwtScaleMap& xMap)
{
    m_bNumbered = false;
    QVector<LabelPlace> places = placesOn(xMap, MostTextRows);
    if (!allPlaced(places)) {
        m_bNumbered = true;
        places = placesOn(xMap, MostNumberRows);
    }
    m_nRows = rowsUsed(places);
}

double DimensionItem::bandHeight() const
{
    const int rows = m_nRows + (m_bNumbered || m_marks.isEmpty() ? 0 : 1);
    return rows * rowHeight();
}

// The middle of the rows of labels; row 0 is that of the dimension lines.
double DimensionItem::rowMiddle(const QRectF& canvasRect, int row) const
{
    const int rowsBelowLine = m_bNumbered ? 1 : 0;
    return canvasRect.top() + bandHeight() - (row - rowsBelowLine + 0.5) * rowHeight();
}

QRectF DimensionItem::labelBox(const QRectF& canvasRect, const LabelPlace& place,
                               const QString& text) const
{
    const QFontMetricsF metrics(m_font);
    const double middle = rowMiddle(canvasRect, place.row);
    return {place.left, middle - metrics.height() * 0.5, metrics.horizontalAdvance(text),
            metrics.height()};
}

// From the ends of a dimension line, or from a number, down to the trace.
void DimensionItem::drawExtensions(QPainter* painter, Stretch stretch, double line,
                                   double trace) const
{
    if (m_bNumbered)
        return;
    for (const double x : {stretch.from, stretch.to})
        painter->drawLine(QPointF(x, line - rowHeight() * 0.3), QPointF(x, trace));
}

void DimensionItem::drawLine(QPainter* painter, Stretch stretch, double line) const
{
    const double arrow = 7 * m_dbScale;
    painter->drawLine(QPointF(stretch.from, line), QPointF(stretch.to, line));
    if (stretch.to - stretch.from < 2.5 * arrow)
        return;
    drawArrow(painter, {stretch.from, line}, arrow);
    drawArrow(painter, {stretch.to, line}, -arrow);
}

// The text stands on white, so that it interrupts the line it belongs to.
void DimensionItem::drawLabel(QPainter* painter, const QString& text, const QRectF& box) const
{
    painter->fillRect(box.adjusted(-3 * m_dbScale, 0, 3 * m_dbScale, 0), Qt::white);
    painter->drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
}

void DimensionItem::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                         const QRectF& canvasRect) const
{
    const QVector<PlotMark> marks = labelledMarks();
    const QVector<LabelPlace> places = placesOn(xMap, m_nRows);
    const double line = rowMiddle(canvasRect, 0);
    const double trace = yMap.transform(m_dbTop);

    painter->setPen(QPen(PictureStyle::ExtensionLine, m_dbScale));
    for (int i = 0; i < marks.size(); ++i) {
        const Stretch stretch = {xMap.transform(marks.at(i).from), xMap.transform(marks.at(i).to)};
        drawExtensions(painter, stretch, line, trace);
        const double middle = (stretch.from + stretch.to) * 0.5;
        if (places.at(i).row > 0)
            painter->drawLine(QPointF(middle, rowMiddle(canvasRect, places.at(i).row)),
                              QPointF(middle, m_bNumbered ? trace : line));
    }
    painter->setFont(m_font);
    for (int i = 0; i < marks.size(); ++i) {
        painter->setPen(QPen(colourOf(marks.at(i)), m_dbScale));
        painter->setBrush(colourOf(marks.at(i)));
        if (!m_bNumbered)
            drawLine(painter, {xMap.transform(marks.at(i).from), xMap.transform(marks.at(i).to)},
                     line);
        const QString text = labelText(marks.at(i));
        if (places.at(i).row >= 0)
            drawLabel(painter, text, labelBox(canvasRect, places.at(i), text));
    }
}
