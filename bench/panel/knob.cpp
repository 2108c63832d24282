// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "knob.h"

#include "panellook.h"

#include <QConicalGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

const double Pi = 3.14159265358979323846;
const double MiddleShare = 0.5; // of the radius: a click there presses, outside it turns
const int WheelDetent = 120;

} // namespace

int WheelDetents::take(int angle)
{
    // What was left of the other direction is no head start.
    if ((angle > 0) != (m_nAngle > 0))
        m_nAngle = 0;
    m_nAngle += angle;
    const int detents = m_nAngle / WheelDetent;
    m_nAngle -= detents * WheelDetent;
    return detents;
}

Knob::Knob(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("knob"));
    setFocusPolicy(Qt::NoFocus);
}

void Knob::showTurn(int detents)
{
    m_nPosition += detents;
    update();
}

void Knob::showPressed(bool isPressed)
{
    if (isPressed == m_bPressed)
        return;
    m_bPressed = isPressed;
    update();
}

double Knob::radius() const
{
    return qMin(width(), height()) / 2.0;
}

// Degrees, clockwise from the top.
double Knob::angleAt(const QPointF& point) const
{
    const QPointF way = point - QRectF(rect()).center();
    return std::atan2(way.x(), -way.y()) * 180.0 / Pi;
}

bool Knob::isMiddle(const QPointF& point) const
{
    const QPointF way = point - QRectF(rect()).center();
    return std::hypot(way.x(), way.y()) < radius() * MiddleShare;
}

void Knob::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_grip != None)
        return;
    m_grip = isMiddle(event->localPos()) ? Press : Drag;
    m_dbLastAngle = angleAt(event->localPos());
    m_dbDragAngle = 0;
    if (m_grip == Press)
        Q_EMIT pressed();
}

void Knob::mouseMoveEvent(QMouseEvent* event)
{
    if (m_grip == Drag)
        dragTo(event->localPos());
}

void Knob::dragTo(const QPointF& point)
{
    const double angle = angleAt(point);
    m_dbDragAngle += std::remainder(angle - m_dbLastAngle, 360.0);
    m_dbLastAngle = angle;
    const int detents = int(m_dbDragAngle / StepDegrees);
    if (detents == 0)
        return;
    m_dbDragAngle -= detents * StepDegrees;
    Q_EMIT turned(detents);
}

void Knob::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        letGo();
}

void Knob::hideEvent(QHideEvent* event)
{
    letGo();
    QWidget::hideEvent(event);
}

void Knob::letGo()
{
    const Grip grip = m_grip;
    m_grip = None;
    if (grip == Press)
        Q_EMIT released();
}

// The face takes the wheel, wherever on it the pointer is.
void Knob::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void Knob::enterEvent(QEvent*)
{
    m_bHover = true;
    update();
}

void Knob::leaveEvent(QEvent*)
{
    m_bHover = false;
    update();
}

void Knob::paintScale(QPainter& painter) const
{
    const double outer = radius() - 1;
    painter.setPen(QPen(QColor(0x60, 0x65, 0x6d), qMax(1.0, radius() * 0.012)));
    for (int degrees = 0; degrees < 360; degrees += StepDegrees) {
        const double angle = degrees * Pi / 180;
        const double inner = outer * (degrees % 45 == 0 ? 0.935 : 0.955);
        painter.drawLine(QPointF(std::sin(angle), -std::cos(angle)) * inner,
                         QPointF(std::sin(angle), -std::cos(angle)) * outer);
    }
}

// The grip: a ring of ridges that turns.
void Knob::paintSkirt(QPainter& painter) const
{
    const double size = radius() * 0.86;
    painter.setPen(Qt::NoPen);
    for (const double grow : {0.05, 0.03, 0.015}) {
        painter.setBrush(QColor(0, 0, 0, 60));
        painter.drawEllipse(QPointF(0, size * 0.03), size * (1 + grow), size * (1 + grow));
    }
    QLinearGradient shade(0, -size, 0, size);
    shade.setColorAt(0, QColor(m_bHover ? 0x62 : 0x58, 0x5c, 0x62));
    shade.setColorAt(1, QColor(0x1d, 0x1f, 0x22));
    painter.setBrush(shade);
    painter.drawEllipse(QPointF(0, 0), size, size);

    const int ridges = 72;
    painter.setPen(QPen(QColor(0, 0, 0, 120), size * 0.018));
    for (int ridge = 0; ridge < ridges; ++ridge) {
        const double angle = (ridge * 360.0 / ridges + m_nPosition * StepDegrees) * Pi / 180;
        const QPointF direction(std::sin(angle), -std::cos(angle));
        painter.drawLine(direction * size * 0.88, direction * size * 0.985);
    }
}

void Knob::paintCap(QPainter& painter) const
{
    const double size = radius() * (m_bPressed ? 0.715 : 0.73);
    QConicalGradient metal(0, 0, 35);
    const QColor dark = m_bPressed ? QColor(0x30, 0x33, 0x37) : QColor(0x3a, 0x3d, 0x42);
    const QColor light = m_bPressed ? QColor(0x44, 0x48, 0x4e) : QColor(0x56, 0x5b, 0x62);
    for (int part = 0; part <= 4; ++part)
        metal.setColorAt(part / 4.0, part % 2 == 0 ? dark : light);
    painter.setPen(QPen(QColor(0, 0, 0, 150), size * 0.02));
    painter.setBrush(metal);
    painter.drawEllipse(QPointF(0, 0), size, size);

    painter.save();
    painter.rotate(m_nPosition * StepDegrees);
    QRadialGradient hollow(0, -size * 0.66, size * 0.19);
    hollow.setColorAt(0, QColor(0x17, 0x18, 0x1a));
    hollow.setColorAt(0.8, QColor(0x2a, 0x2c, 0x30));
    hollow.setColorAt(1, QColor(0x66, 0x6b, 0x73));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hollow);
    painter.drawEllipse(QPointF(0, -size * 0.66), size * 0.19, size * 0.19);
    painter.restore();
}

void Knob::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    paintScale(painter);
    paintSkirt(painter);
    paintCap(painter);
}
