// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

/// Moves the mouse to @p place while its left button is down; Qt Test's own way leaves the button
/// out.
inline void moveMouse(QWidget* widget, const QPoint& place)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}
