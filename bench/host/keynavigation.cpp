// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keynavigation.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

int stepOf(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Down:
    case Qt::Key_Left:
        return -1;
    default:
        return 0;
    }
}

} // namespace

KeyNavigation::KeyNavigation(QWidget* page)
    : QObject(page)
{}

void KeyNavigation::setInputs(const QVector<QWidget*>& inputs)
{
    m_inputs = inputs;
    for (QWidget* input : inputs)
        input->installEventFilter(this);
}

bool KeyNavigation::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    const int step = stepOf(*static_cast<QKeyEvent*>(event));
    if (step == 0)
        return false;
    if (event->type() == QEvent::KeyPress)
        move(static_cast<QWidget*>(watched), step);
    return true;
}

void KeyNavigation::move(QWidget* from, int step)
{
    const int count = m_inputs.size();
    int index = m_inputs.indexOf(from);
    if (index < 0)
        return;
    index = (index + step + count) % count;
    m_inputs.at(index)->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}
