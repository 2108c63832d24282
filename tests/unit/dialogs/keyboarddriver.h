// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontpanel.h"

#include <QAbstractButton>

/// The on-screen keyboard as a user finds it: keys by their caption, or by their name where they
/// show a picture.
namespace KeyboardDriver {

inline QWidget* window()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("on-screen keyboard") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

inline QAbstractButton* key(const QString& caption, const QWidget* keyboard = window())
{
    if (keyboard == nullptr)
        return nullptr;
    for (auto* button : keyboard->findChildren<QAbstractButton*>()) {
        if (button->isVisible() &&
            (button->text() == caption || button->accessibleName() == caption))
            return button;
    }
    return nullptr;
}

/// Touches keys one after the other; false at the first that is not there.
inline bool touch(const QStringList& captions)
{
    for (const QString& caption : captions) {
        QAbstractButton* button = key(caption);
        if (button == nullptr)
            return false;
        FrontPanel::tap(button);
    }
    return true;
}

/// Touches the keys of single characters.
inline bool touch(const char* characters)
{
    QStringList captions;
    for (const char* at = characters; *at != '\0'; ++at)
        captions.append(QString(QLatin1Char(*at)));
    return touch(captions);
}

inline QRect place(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint()), widget->size()};
}

} // namespace KeyboardDriver
