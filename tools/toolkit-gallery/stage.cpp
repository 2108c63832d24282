// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace {

// What the window system thinks is active. The application's own idea of it may be late: a stage
// can be built while the news is still on its way.
QWidget* activeOnScreen()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->windowHandle() != nullptr &&
            window->windowHandle() == QGuiApplication::focusWindow())
            return window;
    }
    return nullptr;
}

} // namespace

Stage::Stage(const QSize& size)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_TranslucentBackground);
    resize(size);
}

Stage::~Stage()
{
    hide();
    QApplication::setActiveWindow(activeOnScreen());
}

void Stage::show(QWidget* widget)
{
    widget->setGeometry(rect());
    QDialog::show();
}

// The window system has no part in this: it does not know the stage, and would take its time.
void Stage::focus(QWidget* widget)
{
    QApplication::setActiveWindow(this);
    widget->setFocus(Qt::MouseFocusReason);
    QCoreApplication::sendPostedEvents();
}

void Stage::key(int key)
{
    const bool printable = key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde;
    const QString text = printable ? QString(QChar(key)) : QString();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (QWidget* receiver = focusWidget())
            QCoreApplication::sendEvent(receiver, &event);
        QCoreApplication::sendPostedEvents();
    }
}

void Stage::type(const QString& characters)
{
    for (const QChar character : characters)
        key(character.unicode());
}

QPixmap Stage::photograph()
{
    return grab();
}
