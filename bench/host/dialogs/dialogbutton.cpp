// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogbutton.h"

#include "dialoglook.h"

#include <QKeyEvent>
#include <QPainter>

namespace HostDialogs {

namespace {

const int Finger = 44;
const int Margin = 14;
const int GlyphSize = 24;
const int Gap = 8;

} // namespace

DialogButton::DialogButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFont(DialogLook::textFont());
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(Finger);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void DialogButton::setGlyph(Glyph glyph)
{
    m_glyph = glyph;
    updateGeometry();
    update();
}

void DialogButton::setFlat(bool flat)
{
    m_bFlat = flat;
    update();
}

QSize DialogButton::sizeHint() const
{
    int width = 2 * (m_bFlat ? Gap : Margin) + fontMetrics().horizontalAdvance(text()) + 1;
    if (m_glyph != Glyph::None)
        width += GlyphSize + (text().isEmpty() ? 0 : Gap);
    return {qMax(width, Finger), qMax(Finger, minimumHeight())};
}

QSize DialogButton::minimumSizeHint() const
{
    return {Finger, Finger};
}

void DialogButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(painter);
    paintContent(painter);
}

void DialogButton::paintFrame(QPainter& painter) const
{
    const bool filled = isDown() || isChecked();
    if (m_bFlat && !filled && !hasFocus())
        return;

    const QColor line = hasFocus()    ? DialogLook::Focus
                        : isEnabled() ? DialogLook::Text
                                      : DialogLook::Line;
    painter.setPen(QPen(filled ? DialogLook::Focus : line, 2));
    painter.setBrush(filled ? DialogLook::Focus : DialogLook::Background);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

void DialogButton::paintContent(QPainter& painter) const
{
    const QColor colour = isEnabled() ? DialogLook::Text : DialogLook::Faint;
    const int glyph = m_glyph == Glyph::None ? 0 : GlyphSize;
    const int gap = glyph == 0 || text().isEmpty() ? 0 : Gap;
    const int room = width() - 2 * Gap - glyph - gap;
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room);
    const int used = glyph + gap + fontMetrics().horizontalAdvance(shown);
    const int left = (width() - used) / 2;
    if (glyph > 0)
        drawGlyph(painter, QRectF(left, 0, glyph, height()), m_glyph, colour);
    painter.setPen(colour);
    painter.drawText(QRect(left + glyph + gap, 0, width(), height()),
                     Qt::AlignLeft | Qt::AlignVCenter, shown);
}

void DialogButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        QAbstractButton::keyPressEvent(event);
    else
        event->ignore();
}

void DialogButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        QAbstractButton::keyReleaseEvent(event);
    else
        event->ignore();
}

} // namespace HostDialogs
