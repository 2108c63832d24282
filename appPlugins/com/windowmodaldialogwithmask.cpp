// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "windowmodaldialogwithmask.h"

#include "frontpanelkeys.h"
#include "toolkitlook.h"

#include <QApplication>
#include <QDebug>
#include <QDesktopWidget>
#include <QKeyEvent>
#include <QLabel>

namespace appPlugins {

WindowModalDialogWithMask::WindowModalDialogWithMask(QWidget* parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    createMask();
    createFillArea();
    connect(this, &QDialog::finished, this, &WindowModalDialogWithMask::setFinished);
}

WindowModalDialogWithMask::~WindowModalDialogWithMask() = default;

void WindowModalDialogWithMask::createMask()
{
    m_pMaskLabel = new QLabel(this);
    m_pMaskLabel->setObjectName(QStringLiteral("mask"));
    m_pMaskLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_pMaskLabel->setFocusPolicy(Qt::NoFocus);
    m_pMaskLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    const QRect desktop = QApplication::desktop()->geometry();
    m_pMaskLabel->setGeometry(0, 0, desktop.width(), desktop.height());
}

void WindowModalDialogWithMask::createFillArea()
{
    m_pSubClassFillArea = new QLabel(m_pMaskLabel);
    m_pSubClassFillArea->setStyleSheet(QStringLiteral("background: %1;").arg(Look::DarkBackground));
    m_pSubClassFillArea->setFocusPolicy(Qt::StrongFocus);
    m_pSubClassFillArea->setObjectName(QStringLiteral("m_pSubClassFillArea"));
    m_pSubClassFillArea->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusProxy(m_pSubClassFillArea);
}

void WindowModalDialogWithMask::setGeometry(int x, int y, int w, int h)
{
    qInfo("WindowModalDialogWithMask::setGeometry x=%d, y=%d, w=%d, h=%d", x, y, w, h);
    const QPoint centre = m_pMaskLabel->geometry().center();
    m_pSubClassFillArea->setGeometry(centre.x() - (w - 1) / 2, centre.y() - (h - 1) / 2, w, h);
}

int WindowModalDialogWithMask::exec()
{
    m_focusPtr = QApplication::focusWidget();
    if (const QObject* focus = QGuiApplication::focusObject()) {
        qWarning() << "WindowModalDialogWithMask::exec focus object name =" << focus->objectName();
    }
    setWindowModality(Qt::WindowModal);
    setWindowFlags(windowFlags() | Qt::WindowStaysOnTopHint);
    raise();
    activateWindow();
    setFocus(Qt::OtherFocusReason);
    executeAtStartup();
    return QDialog::exec();
}

void WindowModalDialogWithMask::executeAtStartup() {}

void WindowModalDialogWithMask::setFinished(int result)
{
    qInfo("WindowModalDialogWithMask::setFinished result=%d", result);
    m_bFinished = true;
}

// What is not handled here goes to the widget's handler: the dialog's own would give keys a
// meaning.
bool WindowModalDialogWithMask::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return true;
    case QEvent::KeyRelease:
        return keyReleased(static_cast<QKeyEvent*>(event));
    case QEvent::Hide:
        if (m_focusPtr != nullptr && m_focusPtr->isVisible())
            m_focusPtr->setFocus(Qt::OtherFocusReason);
        break;
    case QEvent::Close:
        m_bFinished = true;
        break;
    default:
        break;
    }
    return QWidget::event(event); // NOLINT(bugprone-parent-virtual-call): see above
}

bool WindowModalDialogWithMask::keyReleased(QKeyEvent* event)
{
    qInfo() << "WindowModalDialogWithMask::event" << event;
    switch (event->key()) {
    case QT_KEY_HOME:
    case QT_KEY_BACK:
    case QT_KEY_DEFAULT:
    case QT_KEY_UTLITY:
    case QT_KEY_HELP:
    case Qt::Key_Cancel:
        reject();
        return false;
    case QT_KEY_MANUAL:
        return false;
    default:
        qDebug() << "WindowModalDialogWithMask::event keyRelease" << event;
        return true;
    }
}

} // namespace appPlugins
