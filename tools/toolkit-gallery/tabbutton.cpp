// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tabbutton.h"

#include "gallerylook.h"
#include "translated.h"

#include <QEvent>

TabButton::TabButton(const char* textId, QWidget* parent)
    : QPushButton(parent)
    , m_textId(textId)
{
    setFocusPolicy(Qt::NoFocus);
    setFont(GalleryLook::font(15));
    setFixedHeight(GalleryLook::TabHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setStyleSheet(QStringLiteral(
        "QPushButton{color:rgb(176,176,176);background:#141414;border:none;"
        "border-bottom:3px solid #141414;padding:0 10px;}"
        "QPushButton:pressed{background:#2e2e2e;}"
        "QPushButton:checked{color:white;border-bottom:3px solid rgb(52,120,247);}"));
    retranslate();
}

void TabButton::retranslate()
{
    if (m_textId != nullptr)
        setText(appPlugins::translated(m_textId));
}

void TabButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QPushButton::changeEvent(event);
}
