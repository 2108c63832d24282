// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unittrial.h"

#include "caption.h"
#include "gallerytexts.h"
#include "translated.h"
#include "unit.h"
#include "unitcell.h"

#include <QHBoxLayout>
#include <QKeyEvent>

UnitTrial::UnitTrial(QWidget* parent, const Make& make)
    : QWidget(parent)
    , m_pSelector(make(this))
    , m_pAnswer(Caption::verbatim(QString(), this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new UnitCell(m_pSelector, this));
    layout->addWidget(m_pAnswer, 1);
    m_pSelector->installEventFilter(this);
    connect(m_pSelector, &appPlugins::CUnit::unitSelected, this,
            [this] { answer(GalleryText::Confirmed); });
}

// An editor draws its selector as focused while its digits are.
bool UnitTrial::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        m_pSelector->setBDisguiseFocus(event->type() == QEvent::FocusIn);
    return QWidget::eventFilter(watched, event);
}

void UnitTrial::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Cancel)
        answer(GalleryText::Refused);
}

void UnitTrial::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        answer(m_answerId);
    QWidget::changeEvent(event);
}

void UnitTrial::answer(const char* textId)
{
    m_answerId = textId;
    m_pAnswer->setText(appPlugins::translated(m_answerId));
}
