// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "helpdialog.h"

#include "panellook.h"
#include "paneltexts.h"

#include <QEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

HelpDialog::HelpDialog(QWidget* parent)
    : QDialog(parent)
    , m_page(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("helpDialog"));
    m_page->setFont(PanelLook::font(14));
    m_page->setFrameStyle(QFrame::NoFrame);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_page);
    resize(620, 640);
    retranslate();
}

void HelpDialog::retranslate()
{
    setWindowTitle(qtTrId("PANELID_HELP_TITLE"));
    m_page->setHtml(PanelTexts::helpPage());
}

void HelpDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}
