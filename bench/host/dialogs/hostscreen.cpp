// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostscreen.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace HostDialogs {

namespace {

QPointer<QWidget>& surface()
{
    static QPointer<QWidget> widget;
    return widget;
}

QWidget* widgetOf(const QWindow* window)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (window != nullptr && widget->windowHandle() == window)
            return widget;
    }
    return nullptr;
}

// The window that another belongs to: as a child in Qt's sense, or for the system alone.
QWidget* ownerOf(const QWidget* window)
{
    if (window->parentWidget() != nullptr)
        return window->parentWidget()->window();
    return window->windowHandle() == nullptr ? nullptr
                                             : widgetOf(window->windowHandle()->transientParent());
}

} // namespace

void setScreenSurface(QWidget* widget)
{
    surface() = widget;
}

QRect screenPlace()
{
    if (const QWidget* widget = surface())
        return {widget->mapToGlobal(QPoint()), widget->size()};
    return QGuiApplication::primaryScreen()->geometry();
}

QPixmap pictureBelow(QWidget* window)
{
    QVector<QWidget*> windows;
    for (QWidget* next = window; next != nullptr; next = ownerOf(next))
        windows.prepend(next);
    if (surface() != nullptr && !windows.contains(surface()->window()))
        windows.prepend(surface()->window());

    const QRect place = screenPlace();
    QPixmap picture(place.size());
    picture.fill(Qt::black);
    for (QWidget* next : qAsConst(windows)) {
        if (next->isVisible())
            next->render(&picture, next->mapToGlobal(QPoint()) - place.topLeft());
    }
    return picture;
}

} // namespace HostDialogs
