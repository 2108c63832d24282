// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dragscroll.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScrollBar>

namespace HostDialogs {

namespace {

// Pixels that a finger may tremble.
const int Resting = 8;

} // namespace

DragScroll::DragScroll(QAbstractScrollArea* area)
    : QObject(area)
    , m_pArea(area)
{
    area->viewport()->installEventFilter(this);
}

bool DragScroll::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_bDown = true;
        m_bDragging = false;
        m_nStart = static_cast<QMouseEvent*>(event)->globalPos().y();
        m_nStartValue = m_pArea->verticalScrollBar()->value();
        break;
    case QEvent::MouseMove:
        if (m_bDown && moved(static_cast<QMouseEvent*>(event)->globalPos().y()))
            return true;
        break;
    case QEvent::MouseButtonRelease: {
        const bool wasDragged = m_bDragging;
        m_bDown = m_bDragging = false;
        if (wasDragged)
            return true;
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool DragScroll::moved(int y)
{
    const int distance = y - m_nStart;
    if (!m_bDragging && qAbs(distance) < Resting)
        return false;

    m_bDragging = true;
    m_pArea->verticalScrollBar()->setValue(m_nStartValue - distance);
    return true;
}

} // namespace HostDialogs
