// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "screendialog.h"

#include "dialoglook.h"
#include "frontpanelkeys.h"
#include "hostscreen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>

namespace HostDialogs {

ScreenDialog::ScreenDialog()
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint)
    , m_pPanel(new QWidget(this))
{
    setWindowModality(Qt::ApplicationModal);
    setFont(DialogLook::textFont());
    QPalette palette = QDialog::palette();
    palette.setColor(QPalette::WindowText, DialogLook::Text);
    palette.setColor(QPalette::Text, DialogLook::Text);
    palette.setColor(QPalette::Base, DialogLook::Panel);
    setPalette(palette);
    setStyleSheet(DialogLook::sheet());
}

// The dialog belongs to the window in front of it without being its child: a child would take over
// the style sheet of a plug-in, and would be deleted with it in the middle of its own loop. Not
// every platform mixes a window with what lies below it, so the dialog paints that itself.
void ScreenDialog::cover(QWidget* before)
{
    m_below = pictureBelow(before);
    setGeometry(screenPlace());
    winId();
    if (before != nullptr)
        windowHandle()->setTransientParent(before->windowHandle());
}

int ScreenDialog::run()
{
    const QPointer<QWidget> before = QApplication::activeModalWidget() != nullptr
                                         ? QApplication::activeModalWidget()
                                         : QApplication::activeWindow();
    QGuiApplication::inputMethod()->hide();
    retranslate();
    cover(before);
    const int result = exec();
    if (before != nullptr && before->isVisible())
        before->activateWindow();
    return result == QDialog::Accepted ? 1 : 0;
}

void ScreenDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_below);
    painter.fillRect(rect(), DialogLook::Dim);
    painter.setPen(QPen(DialogLook::Faint, 2));
    painter.setBrush(DialogLook::Background);
    painter.drawRect(m_pPanel->geometry().adjusted(1, 1, -1, -1));
}

void ScreenDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    m_pPanel->setGeometry(panelPlace(rect()));
}

void ScreenDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        m_pPanel->setGeometry(panelPlace(rect()));
    }
    QDialog::changeEvent(event);
}

void ScreenDialog::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    const int key = event->key();
    if (!event->isAutoRepeat())
        m_pressed.insert(key);
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return arrowPressed(key);
    default:
        break;
    }
}

void ScreenDialog::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
    if (event->isAutoRepeat() || !m_pressed.remove(event->key()))
        return;

    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
    case QT_KEY_KNOB:
        return enterReleased();
    case QT_KEY_BACK:
        return backReleased();
    case Qt::Key_Cancel:
    case Qt::Key_Escape:
    case QT_KEY_HOME:
        return closeReleased();
    default:
        break;
    }
}

// With the keyboard on the screen the first Cancel is for it.
void ScreenDialog::closeReleased()
{
    QInputMethod* const method = QGuiApplication::inputMethod();
    if (method->isVisible())
        method->hide();
    else
        reject();
}

void ScreenDialog::arrowPressed(int key)
{
    focusNextPrevChild(key == Qt::Key_Down || key == Qt::Key_Right);
}

void ScreenDialog::enterReleased()
{
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
        button->click();
    else
        accept();
}

void ScreenDialog::backReleased()
{
    closeReleased();
}

} // namespace HostDialogs
