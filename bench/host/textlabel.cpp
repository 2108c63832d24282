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

void TextLabel::setFewestPixels(int pixels)
{
    m_nFewestPixels = pixels;
    update();
}

QFont TextLabel::shownFont() const
{
    QFont face = font();
    const auto isTooWide = [&] { return QFontMetrics(face).horizontalAdvance(text()) > width(); };
    while (m_nFewestPixels > 0 && face.pixelSize() > m_nFewestPixels && isTooWide())
        face.setPixelSize(face.pixelSize() - 1);
    return face;
}

void TextLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(shownFont());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
