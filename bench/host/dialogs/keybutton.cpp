// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keybutton.h"

#include "dialoglook.h"

#include <QPainter>

namespace HostDialogs {

namespace {

const QColor SpecialKey(0x3c, 0x3c, 0x3c);
const QColor OrdinaryKey(0x4c, 0x4c, 0x4c);
const int RepeatDelay = 400;
const int RepeatInterval = 80;
const qreal GlyphSize = 24;

} // namespace

KeyButton::KeyButton(const KeySpec& key, QWidget* parent)
    : QAbstractButton(parent)
    , m_key(key)
{
    setFocusPolicy(Qt::NoFocus);
    setFont(DialogLook::textFont(20));
    setText(key.glyph == Glyph::None ? key.text : QString());
    setAutoRepeat(key.repeats);
    setAutoRepeatDelay(RepeatDelay);
    setAutoRepeatInterval(RepeatInterval);
    retranslate();
}

void KeyButton::setGlyph(Glyph glyph)
{
    m_key.glyph = glyph;
    update();
}

void KeyButton::retranslate()
{
    if (m_key.nameId != nullptr)
        setAccessibleName(qtTrId(m_key.nameId));
}

QColor KeyButton::background() const
{
    if (isDown() || m_key.strong)
        return isDown() && m_key.strong ? DialogLook::Focus.lighter(130) : DialogLook::Focus;
    return m_key.action == KeySpec::Character ? OrdinaryKey : SpecialKey;
}

void KeyButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background());
    painter.drawRoundedRect(rect(), 4, 4);
    painter.setPen(DialogLook::Text);
    if (m_key.glyph == Glyph::None)
        painter.drawText(rect(), Qt::AlignCenter, text());
    else
        drawGlyph(painter, QRectF(0, (height() - GlyphSize) / 2, width(), GlyphSize), m_key.glyph,
                  DialogLook::Text);
}

} // namespace HostDialogs
