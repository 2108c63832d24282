// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "textlabel.h"

#include "hostlook.h"

#include <QPainter>

TextLabel::TextLabel(int pixels, const QColor& color, QWidget* parent)
    : QLabel(parent)
{
    setFont(HostLook::font(pixels));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setColor(color);
}

void TextLabel::setBold(bool bold)
{
    QFont face = font();
    face.setBold(bold);
    setFont(face);
}

void TextLabel::setColor(const QColor& color)
{
    QPalette colors = palette();
    if (colors.color(QPalette::WindowText) == color)
        return;
    colors.setColor(QPalette::WindowText, color);
    setPalette(colors);
}

void TextLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
