// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "caption.h"

#include "gallerylook.h"
#include "translated.h"

#include <QEvent>

namespace {

void dress(QLabel* label)
{
    label->setFont(GalleryLook::font(13));
    label->setStyleSheet(GalleryLook::CaptionStyle);
}

} // namespace

Caption::Caption(const char* textId, QWidget* parent)
    : QLabel(parent)
    , m_textId(textId)
{
    dress(this);
    setAlignment(Qt::AlignCenter);
    setFixedHeight(GalleryLook::CaptionHeight);
    retranslate();
}

QLabel* Caption::verbatim(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    dress(label);
    return label;
}

void Caption::retranslate()
{
    setText(appPlugins::translated(m_textId));
}

void Caption::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLabel::changeEvent(event);
}
