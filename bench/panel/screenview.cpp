// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "screenview.h"

#include "panellook.h"
#include "rfbscreen.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>

#include <cmath>

namespace {

const QSizeF UsualSize(800, 480);

// The protocol's bits; the screen knows no other buttons.
int buttonBits(Qt::MouseButtons buttons)
{
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::MiddleButton ? 2 : 0) |
           (buttons & Qt::RightButton ? 4 : 0);
}

// Whole pixels of the device keep the picture's edges sharp.
double toDevice(double value, double ratio)
{
    return std::round(value * ratio) / ratio;
}

bool isWhole(double factor)
{
    return std::fabs(factor - std::round(factor)) < 1e-3 && factor > 0.5;
}

} // namespace

ScreenView::ScreenView(RfbScreen& screen, QWidget* parent)
    : QWidget(parent)
    , m_screen(screen)
{
    setObjectName(QStringLiteral("screen"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&screen, &RfbScreen::changed, this, &ScreenView::showChange);
    connect(&screen, &RfbScreen::connected, this, QOverload<>::of(&QWidget::update));
}

void ScreenView::setNotice(const QString& title, const QString& detail)
{
    if (title == m_strNotice && detail == m_strDetail)
        return;
    m_strNotice = title;
    m_strDetail = detail;
    setAccessibleDescription(title);
    update();
}

void ScreenView::setTyping(bool isTyping)
{
    if (isTyping == m_bTyping)
        return;
    m_bTyping = isTyping;
    update();
}

QRectF ScreenView::pictureArea() const
{
    const QImage image = m_screen.image();
    const QSizeF source = image.isNull() ? UsualSize : QSizeF(image.size());
    const QSizeF size = source.scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
    const double ratio = devicePixelRatioF();
    return {toDevice((width() - size.width()) / 2, ratio),
            toDevice((height() - size.height()) / 2, ratio), toDevice(size.width(), ratio),
            toDevice(size.height(), ratio)};
}

// Smoothing takes neighbours in: one pixel of the picture beyond the change may look different.
void ScreenView::showChange(const QRect& part)
{
    const QSizeF source(m_screen.image().size());
    const QRectF area = pictureArea();
    if (source.isEmpty())
        return;
    const double factor = area.width() / source.width();
    const QRectF grown = QRectF(part).adjusted(-1, -1, 1, 1);
    update(QRectF(area.topLeft() + grown.topLeft() * factor, grown.size() * factor)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
}

bool ScreenView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return takeTouch(*static_cast<QTouchEvent*>(event));
    default:
        return QWidget::event(event);
    }
}

// The screen has one pointer: the first finger. Taken here, it does not come again as a mouse.
bool ScreenView::takeTouch(QTouchEvent& event)
{
    event.accept();
    if (!event.touchPoints().isEmpty())
        m_lastTouch = event.touchPoints().first().pos();
    const bool isUp = event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel ||
                      event.touchPoints().isEmpty() ||
                      event.touchPoints().first().state() == Qt::TouchPointReleased;
    sendPointer(m_lastTouch, isUp ? 0 : 1);
    return true;
}

void ScreenView::mousePressEvent(QMouseEvent* event)
{
    sendMouse(*event);
}

// A touch screen hears of a pointer only while it touches.
void ScreenView::mouseMoveEvent(QMouseEvent* event)
{
    sendMouse(*event);
}

void ScreenView::mouseReleaseEvent(QMouseEvent* event)
{
    sendMouse(*event);
}

void ScreenView::mouseDoubleClickEvent(QMouseEvent* event)
{
    sendMouse(*event);
}

void ScreenView::sendMouse(const QMouseEvent& event)
{
    sendPointer(event.localPos(), buttonBits(event.buttons()));
}

void ScreenView::sendPointer(const QPointF& place, int buttons)
{
    const QSizeF source(m_screen.image().size());
    const QRectF area = pictureArea();
    if (source.isEmpty() || area.isEmpty())
        return;
    const QPointF way = place - area.topLeft();
    m_screen.sendPointer({int(std::floor(way.x() * source.width() / area.width())),
                          int(std::floor(way.y() * source.height() / area.height()))},
                         buttons);
}

void ScreenView::paintPicture(QPainter& painter) const
{
    const QImage image = m_screen.image();
    const QRectF area = pictureArea();
    if (image.isNull())
        return;
    const double factor = area.width() * devicePixelRatioF() / image.width();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isWhole(factor));
    painter.drawImage(area, image);
}

void ScreenView::paintNotice(QPainter& painter) const
{
    if (m_strNotice.isEmpty())
        return;
    const QRectF area = pictureArea();
    painter.fillRect(rect(), QColor(0, 0, 0, 190));
    const double scale = area.height() / UsualSize.height();
    const double line = 36 * scale;
    const QRectF title(area.left(), area.center().y() - line, area.width(), line);
    painter.fillRect(title.adjusted(0, -line / 2, 0, 1.5 * line), QColor(0x1e, 0x1e, 0x1e, 240));
    painter.setPen(PanelLook::Warning);
    painter.setFont(PanelLook::font(24 * scale));
    painter.drawText(title, Qt::AlignCenter, m_strNotice);
    painter.setPen(PanelLook::DimText);
    painter.setFont(PanelLook::font(15 * scale));
    painter.drawText(title.translated(0, line), Qt::AlignCenter, m_strDetail);
}

void ScreenView::paintTyping(QPainter& painter) const
{
    if (!m_bTyping)
        return;
    const double width = 3;
    painter.setPen(QPen(PanelLook::Focus, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

void ScreenView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    paintPicture(painter);
    paintNotice(painter);
    paintTyping(painter);
    if (m_screen.isConnected())
        Q_EMIT painted();
}
