// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "multipulseeditor.h"

#include "frontpanelkeys.h"
#include "hostflags.h"

#include <QAction>
#include <QDebug>
#include <QKeyEvent>

bool MultiPulseEditor::checkDiscardKeys()
{
    bool discard = false;
    if (!HostFlags::readDiscardKeys(discard)) {
        discardSegmentProblem();
        return false;
    }
    qDebug() << "MultiPulseEditor::checkDiscardKeys" << discard;
    return discard;
}

// A key press never reaches the base, which would swallow it: unhandled, it goes on to the host's
// surface.
bool MultiPulseEditor::event(QEvent* qEvent)
{
    switch (qEvent->type()) {
    case QEvent::KeyPress:
        return tossKey(qEvent);
    case QEvent::KeyRelease:
        return tossKey(qEvent) || keyReleased(static_cast<QKeyEvent*>(qEvent));
    default:
        return WindowModalDialogWithMask::event(qEvent);
    }
}

bool MultiPulseEditor::tossKey(QEvent* event)
{
    if (!checkDiscardKeys())
        return false;

    qDebug() << "MultiPulseEditor::event tossing" << event->type();
    event->accept();
    return true;
}

// Unlike in the base, Home, Back, Default and Utility stop the output and close nothing.
bool MultiPulseEditor::keyReleased(QKeyEvent* event)
{
    switch (event->key()) {
    case QT_KEY_CH1ON:
        toggleOutput();
        return true;
    case QT_KEY_DEFAULT:
    case QT_KEY_UTLITY:
    case QT_KEY_HOME:
    case QT_KEY_BACK:
        if (m_pActionRun->isChecked())
            m_pActionRun->trigger();
        return false;
    case QT_KEY_MANUAL:
        return false;
    case QT_KEY_HELP:
        m_pActionHelp->trigger();
        return true;
    case Qt::Key_Cancel:
        return true;
    default:
        return WindowModalDialogWithMask::event(event);
    }
}

void MultiPulseEditor::toggleOutput()
{
    qInfo() << "MultiPulseEditor::event KEY_CH1ON";
    const bool before = m_pActionRun->isChecked();
    m_pActionRun->trigger();
    qInfo() << "MultiPulseEditor::event KEY_CH1ON" << before << m_pActionRun->isChecked();
}
