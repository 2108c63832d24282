// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "desktopkeyboard.h"

#include "frontkey.h"
#include "keyrelay.h"
#include "rfbscreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

const int DetentsOfPage = 10;

// Detents that a key turns the knob by; 0 for other keys.
int detentsOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return 1;
    case Qt::Key_Down:
        return -1;
    case Qt::Key_PageUp:
        return DetentsOfPage;
    case Qt::Key_PageDown:
        return -DetentsOfPage;
    default:
        return 0;
    }
}

// A keypad's keys and Shift, which some layouts need for a digit, are no reason to pass a key on.
bool hasCommandModifier(const QKeyEvent& event)
{
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

bool isFunctionKey(int key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F35;
}

} // namespace

DesktopKeyboard::DesktopKeyboard(KeyRelay& relay, RfbScreen& screen, QWidget* window)
    : QObject(window)
    , m_relay(relay)
    , m_screen(screen)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

void DesktopKeyboard::setArea(KeyboardArea area)
{
    if (area == m_area)
        return;
    letGo();
    m_area = area;
    Q_EMIT areaChanged(area);
}

void DesktopKeyboard::goOn(int step)
{
    const int areas = 3;
    setArea(KeyboardArea((int(m_area) + step + areas) % areas));
}

// Keys that are down when the keyboard goes elsewhere would never come up.
void DesktopKeyboard::letGo()
{
    m_relay.releaseAll(KeyRelay::Keyboard);
    for (const quint32 symbol : qAsConst(m_typed))
        m_screen.sendKey(symbol, false);
    m_typed.clear();
}

bool DesktopKeyboard::takeFrontKey(const QKeyEvent& event, bool isDown)
{
    const FrontKey* key = frontKeyOfDesktop(event.key());
    const int detents = detentsOf(event.key());
    if (detents != 0) {
        if (isDown)
            m_relay.turn(detents);
        return true;
    }
    if (key == nullptr)
        return false;
    if (event.isAutoRepeat())
        return true;
    if (isDown)
        m_relay.press(key->code, KeyRelay::Keyboard);
    else
        m_relay.release(key->code, KeyRelay::Keyboard);
    return true;
}

bool DesktopKeyboard::takeText(const QKeyEvent& event, bool isDown)
{
    if (isDown) {
        const quint32 symbol = RfbScreen::keySymbol(event.key(), event.text());
        m_screen.sendKey(symbol, true);
        m_typed.insert(event.key(), symbol);
    } else if (!event.isAutoRepeat() && m_typed.contains(event.key())) {
        m_screen.sendKey(m_typed.take(event.key()), false);
    }
    return true;
}

bool DesktopKeyboard::takeKey(QKeyEvent& event, bool isDown)
{
    if (event.key() == Qt::Key_F6) {
        if (isDown && !event.isAutoRepeat())
            goOn(event.modifiers() & Qt::ShiftModifier ? -1 : 1);
        return true;
    }
    if (isFunctionKey(event.key()))
        return false;
    // A key that went down before Ctrl did comes up here all the same.
    if (isDown && hasCommandModifier(event))
        return false;
    switch (m_area) {
    case KeyboardArea::Keys:
        return takeFrontKey(event, isDown);
    case KeyboardArea::Screen:
        return takeText(event, isDown);
    case KeyboardArea::Trace:
        break;
    }
    return false;
}

// A window gets each key before its widgets do; it is taken there, once. A shortcut's first event
// is asked for by whoever has the focus, and taken from it so that the key arrives as a key.
bool DesktopKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    const bool isInside =
        watched->isWidgetType() && static_cast<QWidget*>(watched)->window() == m_window;
    if (!isInside || QApplication::activePopupWidget() != nullptr)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return takeKey(*static_cast<QKeyEvent*>(event), true);
    case QEvent::KeyRelease:
        return takeKey(*static_cast<QKeyEvent*>(event), false);
    case QEvent::WindowDeactivate:
        if (watched == m_window)
            letGo();
        return false;
    default:
        return false;
    }
}
