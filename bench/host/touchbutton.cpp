// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "touchbutton.h"

#include "frontpanelkeys.h"
#include "hostlook.h"
#include "translated.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

const int Padding = 18;

bool presses(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
    case Qt::Key_Space:
    case QT_KEY_KNOB:
        return true;
    default:
        return false;
    }
}

} // namespace

TouchButton::TouchButton(const char* textId, QWidget* parent)
    : QPushButton(parent)
    , m_textId(textId)
{
    setAutoDefault(false);
    setFont(HostLook::font(16));
    setMinimumHeight(HostLook::TouchSize);
    setText(appPlugins::translated(m_textId));
}

QSize TouchButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * Padding, HostLook::TouchSize};
}

void TouchButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_textId != nullptr)
        setText(appPlugins::translated(m_textId));
    QPushButton::changeEvent(event);
}

void TouchButton::keyPressEvent(QKeyEvent* event)
{
    if (presses(*event))
        setDown(true);
    else
        event->ignore();
}

void TouchButton::keyReleaseEvent(QKeyEvent* event)
{
    if (presses(*event) && isDown())
        click();
    else
        event->ignore();
}

void TouchButton::paintFace(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QColor fill =
        isDown() ? HostLook::Focus : (isChecked() ? HostLook::Focus.darker(190) : HostLook::Raised);
    painter.setBrush(fill);
    painter.setPen(hasFocus() ? QPen(HostLook::Focus, 2) : QPen(HostLook::Line, 1));
    painter.drawRoundedRect(face, HostLook::Radius, HostLook::Radius);
}

void TouchButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintFace(painter);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(rect().adjusted(6, 0, -6, 0), Qt::AlignCenter, text());
}
