// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "barbutton.h"

#include "panellook.h"

#include <QKeyEvent>
#include <QPainter>

BarButton::BarButton(const QString& name, QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(name);
    setFocusPolicy(Qt::TabFocus);
    setFont(PanelLook::font(13));
    setAttribute(Qt::WA_Hover);
}

QSize BarButton::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(text()) + 22, qMax(26, metrics.height() + 8)};
}

void BarButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isLit = isDown() || isChecked();
    QColor ground = isLit ? PanelLook::Focus.darker(150) : QColor(0x3a, 0x3d, 0x42);
    if (underMouse() && isEnabled())
        ground = ground.lighter(118);
    painter.setBrush(ground);
    painter.setPen(hasFocus() ? QPen(PanelLook::Focus.lighter(125), 2) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 5, 5);
    painter.setPen(isEnabled() ? PanelLook::Text : PanelLook::Disabled);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

// Enter does what Space does.
void BarButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}
