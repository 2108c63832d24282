// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keybutton.h"

#include "panellook.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

QPainterPath arrow(double degrees)
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{-0.24, 0.34}, {0.36, 0}, {-0.24, -0.34}}));
    path.closeSubpath();
    return QTransform().rotate(degrees).map(path);
}

QPainterPath backspace()
{
    QPainterPath path;
    path.addPolygon(
        QPolygonF({{-0.62, 0}, {-0.22, -0.36}, {0.56, -0.36}, {0.56, 0.36}, {-0.22, 0.36}}));
    path.closeSubpath();
    QPainterPath cross;
    cross.addRect(-0.27, -0.045, 0.54, 0.09);
    const QPainterPath crossed =
        QTransform().rotate(45).map(cross) + QTransform().rotate(-45).map(cross);
    return path.subtracted(crossed.translated(0.14, 0));
}

} // namespace

QPainterPath keySign(const QString& keyName)
{
    if (keyName == QLatin1String("right"))
        return arrow(0);
    if (keyName == QLatin1String("down"))
        return arrow(90);
    if (keyName == QLatin1String("left"))
        return arrow(180);
    if (keyName == QLatin1String("up"))
        return arrow(-90);
    if (keyName == QLatin1String("backspace"))
        return backspace();
    return QPainterPath();
}

KeyButton::KeyButton(const FrontKey& key, Kind kind, QWidget* parent)
    : QAbstractButton(parent)
    , m_key(key)
    , m_kind(kind)
{
    setObjectName(QStringLiteral("key_") + key.name);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

void KeyButton::setFaceScale(double scale)
{
    m_dbScale = scale;
    update();
}

void KeyButton::showPressed(bool isPressed)
{
    if (isPressed == m_bPressed)
        return;
    m_bPressed = isPressed;
    update();
}

void KeyButton::setLit(bool isLit)
{
    if (isLit == m_bLit)
        return;
    m_bLit = isLit;
    update();
}

void KeyButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_bHeld)
        return;
    m_bHeld = true;
    Q_EMIT pressed();
}

// A key stays down while the pointer leaves it.
void KeyButton::mouseMoveEvent(QMouseEvent*) {}

void KeyButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        letGo();
}

void KeyButton::hideEvent(QHideEvent* event)
{
    letGo();
    QAbstractButton::hideEvent(event);
}

// The desktop's keyboard reaches the keys by another way.
void KeyButton::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void KeyButton::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore();
}

void KeyButton::letGo()
{
    if (!m_bHeld)
        return;
    m_bHeld = false;
    Q_EMIT released();
}

QColor KeyButton::colour() const
{
    switch (m_kind) {
    case Number:
        return QColor(0x56, 0x5a, 0x61);
    case Unit:
        return QColor(0x3f, 0x4f, 0x68);
    case Confirm:
        return QColor(0x2c, 0x5c, 0xb8);
    case Function:
    case Arrow:
    case Output:
        break;
    }
    return QColor(0x3b, 0x3e, 0x44);
}

void KeyButton::paintBody(QPainter& painter, const QRectF& body) const
{
    const double radius = 6 * m_dbScale;
    QColor base = colour();
    if (m_bPressed)
        base = base.darker(140);
    else if (underMouse())
        base = base.lighter(115);
    QLinearGradient shade(body.topLeft(), body.bottomLeft());
    shade.setColorAt(0, m_bPressed ? base.darker(112) : base.lighter(118));
    shade.setColorAt(0.12, base);
    shade.setColorAt(1, m_bPressed ? base : base.darker(118));

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 110));
    painter.drawRoundedRect(body.adjusted(-1, -0.5, 1, 2) /* its shadow on the face */, radius + 1,
                            radius + 1);
    painter.setBrush(shade);
    painter.setPen(QPen(QColor(0, 0, 0, 160), qMax(1.0, m_dbScale)));
    painter.drawRoundedRect(body, radius, radius);
}

void KeyButton::paintLabel(QPainter& painter, const QRectF& body) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(PanelLook::Text);
    const QPainterPath sign = keySign(m_key.name);
    if (!sign.isEmpty()) {
        const double size = 20 * m_dbScale;
        QTransform place;
        place.translate(body.center().x(), body.center().y()).scale(size, size);
        painter.drawPath(place.map(sign));
        return;
    }
    const bool isLong = m_key.label.size() > 3;
    painter.setPen(PanelLook::Text);
    painter.setFont(PanelLook::font((isLong ? 14 : 18) * m_dbScale, m_kind == Number));
    painter.drawText(body, Qt::AlignCenter, m_key.label);
}

void KeyButton::paintLamp(QPainter& painter, const QRectF& body) const
{
    const double width = body.width() * 0.5;
    const QRectF lamp(body.center().x() - width / 2, body.top() + 6 * m_dbScale, width,
                      5 * m_dbScale);
    if (m_bLit) {
        QColor glow = PanelLook::Channel1;
        for (const int grow : {6, 4, 2}) {
            glow.setAlpha(26);
            painter.setBrush(glow);
            const double edge = grow * m_dbScale;
            painter.drawRoundedRect(lamp.adjusted(-edge, -edge, edge, edge), edge, edge);
        }
    }
    painter.setBrush(m_bLit ? PanelLook::Channel1 : PanelLook::LampOff);
    painter.drawRoundedRect(lamp, 2.5 * m_dbScale, 2.5 * m_dbScale);
}

void KeyButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF body = QRectF(rect()).adjusted(2, 2, -2, -3);
    if (m_bPressed)
        body.translate(0, 1);
    paintBody(painter, body);
    painter.setPen(Qt::NoPen);
    if (m_kind == Output) {
        paintLamp(painter, body);
        body.setTop(body.top() + 9 * m_dbScale);
    }
    paintLabel(painter, body);
}
