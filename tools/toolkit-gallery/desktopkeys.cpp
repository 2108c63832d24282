// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "desktopkeys.h"

#include "frontpanelkeys.h"
#include "parameteredit.h"
#include "unit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

namespace {

bool numberIsEdited()
{
    const QWidget* focus = QApplication::focusWidget();
    return qobject_cast<const appPlugins::ParameterTextEdit*>(focus) != nullptr ||
           qobject_cast<const appPlugins::CUnit*>(focus) != nullptr;
}

void postKey(QEvent::Type type, int key)
{
    if (QWidget* receiver = QApplication::focusWidget())
        QCoreApplication::postEvent(receiver, new QKeyEvent(type, key, Qt::NoModifier));
}

const int WheelDetent = 120;

} // namespace

DesktopKeys::DesktopKeys(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

int DesktopKeys::frontPanelKey(int key, bool numberIsEdited)
{
    if (key == Qt::Key_Escape)
        return Qt::Key_Cancel;
    if (!numberIsEdited)
        return 0;
    switch (key) {
    case Qt::Key_G:
        return QT_KEY_GN;
    case Qt::Key_M:
        return QT_KEY_MU;
    case Qt::Key_K:
        return QT_KEY_KM;
    case Qt::Key_X:
        return QT_KEY_X1;
    case Qt::Key_Space:
        return QT_KEY_KNOB;
    default:
        return 0;
    }
}

bool DesktopKeys::galleryKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_PageUp:
        Q_EMIT pageWanted(-1);
        return true;
    case Qt::Key_PageDown:
        Q_EMIT pageWanted(1);
        return true;
    case Qt::Key_F2:
        Q_EMIT nextLanguageWanted();
        return true;
    case Qt::Key_Tab:
        Q_EMIT inputWanted(1);
        return true;
    case Qt::Key_Backtab:
        Q_EMIT inputWanted(-1);
        return true;
    default:
        return false;
    }
}

bool DesktopKeys::translate(const QKeyEvent& event)
{
    const int code = frontPanelKey(event.key(), numberIsEdited());
    if (code == 0)
        return false;
    postKey(event.type(), code);
    return true;
}

// Half a detent of a fine wheel waits for the other half.
bool DesktopKeys::turnKnob(const QWheelEvent& event)
{
    if (!numberIsEdited())
        return false;

    m_nWheelAngle += event.angleDelta().y();
    const int detents = m_nWheelAngle / WheelDetent;
    m_nWheelAngle -= detents * WheelDetent;
    for (int i = 0; i < qAbs(detents); ++i) {
        postKey(QEvent::KeyPress, detents > 0 ? Qt::Key_Up : Qt::Key_Down);
        postKey(QEvent::KeyRelease, detents > 0 ? Qt::Key_Up : Qt::Key_Down);
    }
    return true;
}

// A window gets each key before its widgets do and would have it translated twice.
bool DesktopKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return galleryKey(*static_cast<QKeyEvent*>(event)) ||
               translate(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return translate(*static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
        return turnKnob(*static_cast<QWheelEvent*>(event));
    default:
        return false;
    }
}
