// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanelkeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <QtTest>

/// The instrument's front as a program sees it: keys arrive through the event queue at whatever has
/// the focus, a finger as mouse events of the window.
namespace FrontPanel {

/// Lets everything happen that waits in the event queue, deletions included.
inline void settle()
{
    // What is handled may post more: a key handed on, the editor closed by it, its deletion.
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

inline QObject* receiver()
{
    QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? focus : QApplication::activeWindow();
}

inline QString textOf(int key)
{
    return key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde ? QString(QChar(key)) : QString();
}

/// Puts one key event into the queue; nothing happens yet.
inline void post(QEvent::Type type, int key)
{
    if (QObject* target = receiver())
        QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier, textOf(key)));
}

/// Presses and releases a key; the release goes to what has the focus by then.
inline void press(int key)
{
    post(QEvent::KeyPress, key);
    settle();
    post(QEvent::KeyRelease, key);
    settle();
}

/// Presses and releases keys faster than the event queue turns.
inline void burst(const QVector<int>& keys)
{
    for (int key : keys) {
        post(QEvent::KeyPress, key);
        post(QEvent::KeyRelease, key);
    }
    settle();
}

inline void type(const QString& number)
{
    for (const QChar character : number)
        press(character.unicode());
}

/// Turns the knob by a number of detents, clockwise for a positive one.
inline void knob(int detents)
{
    for (int i = 0; i < qAbs(detents); ++i)
        press(detents > 0 ? Qt::Key_Up : Qt::Key_Down);
}

inline QPoint inWindow(const QWidget* widget, const QPoint& point)
{
    return widget->mapTo(widget->window(), point);
}

/// A finger on @p widget at @p point, moved to @p end before it is lifted.
inline void drag(QWidget* widget, const QPoint& point, const QPoint& end)
{
    QWindow* window = widget->window()->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, point));
    if (end != point)
        QTest::mouseMove(window, inWindow(widget, end));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(widget, end));
    settle();
}

inline void tap(QWidget* widget, const QPoint& point)
{
    drag(widget, point, point);
}

inline void tap(QWidget* widget)
{
    tap(widget, widget->rect().center());
}

inline void doubleTap(QWidget* widget, const QPoint& point)
{
    QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       inWindow(widget, point));
    settle();
}

} // namespace FrontPanel
