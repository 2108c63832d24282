// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QStylePainter>
#include <QWidget>

namespace appPlugins {

/// For a paint event: what @p draw paints into the QStylePainter that it gets, as one picture that
/// the background shines through. A faint painter would let its parts shine through one another.
template<typename Draw>
void drawFaint(QWidget* widget, Draw draw)
{
    const qreal opacity = 0.5;
    QPixmap picture(widget->size() * widget->devicePixelRatioF());
    picture.setDevicePixelRatio(widget->devicePixelRatioF());
    picture.fill(Qt::transparent);
    {
        QStylePainter painter(&picture, widget);
        painter.setFont(widget->font());
        draw(painter);
    }
    QPainter painter(widget);
    painter.setOpacity(opacity);
    painter.drawPixmap(0, 0, picture);
}

} // namespace appPlugins
