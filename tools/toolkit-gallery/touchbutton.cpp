// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "touchbutton.h"

#include "gallerylook.h"
#include "translated.h"

#include <QEvent>

TouchButton::TouchButton(const char* textId, QWidget* parent)
    : QPushButton(parent)
    , m_textId(textId)
{
    setFocusPolicy(Qt::NoFocus);
    setFont(GalleryLook::font(14));
    setFixedHeight(GalleryLook::TouchHeight);
    setStyleSheet(QStringLiteral(
        "QPushButton{color:white;background:#3a3a3a;border:1px solid rgb(110,110,110);"
        "border-radius:4px;}"
        "QPushButton:pressed,QPushButton:checked{background:rgb(52,120,247);}"));
    retranslate();
}

void TouchButton::retranslate()
{
    setText(appPlugins::translated(m_textId));
}

void TouchButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QPushButton::changeEvent(event);
}
