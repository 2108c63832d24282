// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "screenkeyboard.h"

#include "dialoglook.h"
#include "keybutton.h"

#include <QEvent>
#include <QPainter>

namespace HostDialogs {

namespace {

const int TextHeight = 242;
const int PadKeyWidth = 62;
const int PadKeyHeight = 60;
const int Border = 6;
const int Gap = 4;

QLocale::Language userLanguage()
{
    return QLocale(qtTrId("HOSTID_DLG_LOCALE")).language();
}

// The edge of a column or row in pixels.
int edge(int index, int count, int length)
{
    return Border + (length - 2 * Border) * index / count;
}

} // namespace

ScreenKeyboard::ScreenKeyboard()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::WindowStaysOnTopHint)
{
    setObjectName(QStringLiteral("on-screen keyboard"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    rebuild();
}

void ScreenKeyboard::setKind(Kind kind)
{
    m_kind = kind;
    showPage(false);
}

void ScreenKeyboard::showPage(bool symbols)
{
    m_bSymbols = symbols;
    m_shift = Small;
    rebuild();
}

// The key that was tapped is among those that go.
void ScreenKeyboard::rebuild()
{
    for (KeyButton* button : m_buttons) {
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    if (m_kind == Text)
        m_layout = m_bSymbols ? symbolLayout() : letterLayout(userLanguage());
    else
        m_layout = numberLayout(m_kind == NumberWithUnit);
    for (const KeySpec& key : m_layout.keys) {
        auto* button = new KeyButton(key, this);
        connect(button, &KeyButton::clicked, this, [this, key] { keyClicked(key); });
        m_buttons.append(button);
        button->show();
    }
    placeKeys();
}

QRect ScreenKeyboard::placeFor(const QRect& screen, const QRect& field) const
{
    if (m_kind == Text) {
        QRect place(screen.left(), screen.bottom() + 1 - TextHeight, screen.width(), TextHeight);
        if (place.intersects(field))
            place.moveTop(screen.top());
        return place;
    }
    QRect place(0, 0, m_layout.columns * PadKeyWidth / 2 + 2 * Border,
                m_layout.rows * PadKeyHeight + 2 * Border);
    place.moveBottomRight(screen.bottomRight());
    if (field.center().x() > screen.center().x())
        place.moveLeft(screen.left());
    if (place.intersects(field))
        place.moveTop(screen.top());
    return place;
}

void ScreenKeyboard::placeKeys()
{
    for (KeyButton* button : m_buttons) {
        const KeySpec& key = button->key();
        const int left = edge(key.column, m_layout.columns, width());
        const int right = edge(key.column + key.columns, m_layout.columns, width());
        const int top = edge(key.row, m_layout.rows, height());
        const int bottom = edge(key.row + 1, m_layout.rows, height());
        button->setGeometry(left + Gap / 2, top + Gap / 2, right - left - Gap, bottom - top - Gap);
    }
}

void ScreenKeyboard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), DialogLook::Background);
    painter.setPen(DialogLook::Faint);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ScreenKeyboard::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeKeys();
}

void ScreenKeyboard::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        rebuild();
}

void ScreenKeyboard::keyClicked(const KeySpec& key)
{
    switch (key.action) {
    case KeySpec::Character:
        return characterClicked(key);
    case KeySpec::Code:
        return Q_EMIT keyTyped(key.code, QString());
    case KeySpec::Shift:
        return setShift(m_shift == Small ? OneCapital : m_shift == OneCapital ? Capitals : Small);
    case KeySpec::Page:
        return showPage(!m_bSymbols);
    case KeySpec::Cancel:
        Q_EMIT keyTyped(key.code, QString());
        return Q_EMIT closeRequested();
    case KeySpec::Close:
        return Q_EMIT closeRequested();
    }
}

void ScreenKeyboard::characterClicked(const KeySpec& key)
{
    const QString text = cased(key.text);
    if (m_shift == OneCapital)
        setShift(Small);
    Q_EMIT keyTyped(key.code, text);
}

void ScreenKeyboard::setShift(ShiftState shift)
{
    m_shift = shift;
    for (KeyButton* button : m_buttons) {
        if (button->key().action == KeySpec::Shift)
            button->setGlyph(shift == Small ? Glyph::Shift : Glyph::ShiftLocked);
        else if (button->key().action == KeySpec::Character)
            button->setText(button->key().glyph == Glyph::None ? cased(button->key().text)
                                                               : QString());
    }
}

// Only letters that stay one letter: the capital of "ß" would be two.
QString ScreenKeyboard::cased(const QString& text) const
{
    const QString capital = text.toUpper();
    return m_shift != Small && capital.size() == text.size() ? capital : text;
}

} // namespace HostDialogs
