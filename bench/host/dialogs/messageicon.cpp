// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "messageicon.h"

#include "dialoglook.h"

#include <QPainter>
#include <QPainterPath>

namespace HostDialogs {

namespace {

// All pictures are drawn on a field of 64 by 64.
const qreal Field = 64;
const QColor Red(235, 87, 87);
const QColor Amber(242, 185, 75);

void drawDisc(QPainter& painter, const QColor& colour)
{
    painter.setBrush(colour);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(4, 4, 56, 56));
}

void drawTriangle(QPainter& painter)
{
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{32, 8}, {59, 55}, {5, 55}}));
    triangle.closeSubpath();
    painter.setBrush(Amber);
    painter.setPen(QPen(Amber, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(triangle);
}

void drawStroke(QPainter& painter, const QColor& colour, const QPointF& from, const QPointF& to)
{
    painter.setPen(QPen(colour, 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(from, to);
}

void drawDot(QPainter& painter, const QColor& colour, qreal y)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(32, y), 3.8, 3.8);
}

void drawQuestionMark(QPainter& painter)
{
    QPainterPath hook(QPointF(23, 25));
    hook.cubicTo(23, 12, 42, 12, 42, 24);
    hook.cubicTo(42, 32, 32, 31, 32, 39);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(DialogLook::Text, 5.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(hook);
    drawDot(painter, DialogLook::Text, 48);
}

void drawKind(QPainter& painter, MessageKind kind)
{
    switch (kind) {
    case MessageKind::Critical:
        drawDisc(painter, Red);
        drawStroke(painter, DialogLook::Text, {23, 23}, {41, 41});
        return drawStroke(painter, DialogLook::Text, {41, 23}, {23, 41});
    case MessageKind::Warning:
        drawTriangle(painter);
        drawStroke(painter, DialogLook::Background, {32, 24}, {32, 38});
        return drawDot(painter, DialogLook::Background, 48);
    case MessageKind::Question:
        drawDisc(painter, DialogLook::Focus);
        return drawQuestionMark(painter);
    case MessageKind::Information:
        drawDisc(painter, DialogLook::Focus);
        drawDot(painter, DialogLook::Text, 19);
        return drawStroke(painter, DialogLook::Text, {32, 30}, {32, 46});
    }
}

} // namespace

MessageIcon::MessageIcon(MessageKind kind, QWidget* parent)
    : QWidget(parent)
    , m_kind(kind)
{
    setFixedSize(56, 56);
}

void MessageIcon::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / Field, height() / Field);
    drawKind(painter, m_kind);
}

} // namespace HostDialogs
