// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "timetable.h"

#include "picturestyle.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

QFont tableFont(double scale)
{
    return PictureStyle::fontOf(12, scale);
}

} // namespace

TimeTable::TimeTable(const QVector<PlotMark>& marks, double scale)
    : m_dbScale(scale)
{
    for (const PlotMark& mark : marks) {
        if (mark.kind == PlotMark::Pulse)
            m_entries.append({mark.number, mark.text, QString()});
        else if (mark.kind == PlotMark::Gap && !m_entries.isEmpty() &&
                 m_entries.last().number == mark.number)
            m_entries.last().gap = mark.text;
    }
    measure();
}

double TimeTable::rowHeight() const
{
    return QFontMetricsF(tableFont(m_dbScale)).height() * 1.2;
}

void TimeTable::measure()
{
    const QFontMetricsF metrics(tableFont(m_dbScale));
    double widest = metrics.horizontalAdvance(QStringLiteral("100.000 µs"));
    for (const Entry& entry : m_entries)
        widest = std::max(
            {widest, metrics.horizontalAdvance(entry.width), metrics.horizontalAdvance(entry.gap)});
    m_dbTimeWidth = widest;
    m_dbNumberWidth = metrics.horizontalAdvance(QStringLiteral("00000"));
    m_dbSpace = 12 * m_dbScale;
}

double TimeTable::blockWidth() const
{
    return m_dbNumberWidth + 2 * (m_dbSpace + m_dbTimeWidth) + m_dbSpace;
}

int TimeTable::blocksIn(double width) const
{
    return std::max(1, int(width / blockWidth()));
}

int TimeTable::rowsFor(double width) const
{
    const int blocks = blocksIn(width);
    return (m_entries.size() + blocks - 1) / blocks;
}

double TimeTable::heightFor(double width, double most) const
{
    const int headRows = 1;
    const int rows = std::min(rowsFor(width) + headRows, int(most / rowHeight()));
    return rows * rowHeight();
}

void TimeTable::drawRow(QPainter* painter, QPointF place, const QString& number,
                        const QString& width, const QString& gap) const
{
    QRectF cell(place, QSizeF(m_dbNumberWidth, rowHeight()));
    painter->drawText(cell, Qt::AlignRight | Qt::AlignVCenter, number);
    for (const QString& text : {width, gap}) {
        cell = QRectF(cell.right() + m_dbSpace, cell.top(), m_dbTimeWidth, cell.height());
        painter->drawText(cell, Qt::AlignRight | Qt::AlignVCenter, text);
    }
}

void TimeTable::drawHead(QPainter* painter, QPointF place) const
{
    painter->setPen(PictureStyle::QuietInk);
    drawRow(painter, place, QStringLiteral("No."), QStringLiteral("width"), QStringLiteral("gap"));
    painter->setPen(PictureStyle::Ink);
}

// The last place that there is counts the entries that have none.
void TimeTable::drawEntry(QPainter* painter, QPointF place, int index, int places) const
{
    const int rest = m_entries.size() - index;
    if (index == places - 1 && rest > 1) {
        drawRow(painter, place, QString(), QStringLiteral("%1 more").arg(rest), QString());
        return;
    }
    const Entry& entry = m_entries.at(index);
    drawRow(painter, place, QString::number(entry.number), entry.width, entry.gap);
}

void TimeTable::draw(QPainter* painter, const QRectF& box) const
{
    painter->setFont(tableFont(m_dbScale));
    const int rowsInBox = qRound(box.height() / rowHeight()) - 1;
    const int rows = std::min(rowsFor(box.width()), rowsInBox);
    const int places = rows * blocksIn(box.width());
    for (int i = 0; i < std::min(m_entries.size(), places); ++i) {
        const int row = i % rows;
        const int block = i / rows;
        const double left = box.left() + block * blockWidth();
        if (row == 0)
            drawHead(painter, {left, box.top()});
        drawEntry(painter, {left, box.top() + (row + 1) * rowHeight()}, i, places);
    }
}
