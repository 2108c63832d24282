// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QMouseEvent>

namespace appPlugins {

/// For an event filter on @p button: true for a mouse event to swallow, so that a finger that
/// slides off @p area before it is lifted, or that is lifted while @p enabled is false, clicks
/// nothing. The button itself would report its release as soon as the finger leaves it.
inline bool slidesOff(QAbstractButton* button, const QRect& area, bool enabled, QEvent* event)
{
    const bool released = event->type() == QEvent::MouseButtonRelease;
    if (!released && event->type() != QEvent::MouseMove)
        return false;

    const auto* mouse = static_cast<QMouseEvent*>(event);
    const bool inside = enabled && area.contains(mouse->localPos().toPoint());
    if (released) {
        if (!inside)
            button->setDown(false);
        return !inside;
    }
    if ((mouse->buttons() & Qt::LeftButton) == 0)
        return false;
    button->setDown(inside);
    return true;
}

} // namespace appPlugins
