// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cswitchlabel.h"

#include "elidingtext.h"
#include "slideoff.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace appPlugins {

const QString CSwitchLabel::m_selfStyleSheet_normalLabel =
    QStringLiteral("QLabel{color:%1;}QLabel:disabled{color:%3;}")
        .replace(QStringLiteral("%1"), Look::White)
        .replace(QStringLiteral("%3"), Look::DisabledGrey);

// The pictures have no extension, deliberately: they are installed under these names.
const QString CSwitchLabel::m_selfStyleSheet_checkabledLabel =
    QStringLiteral("QPushButton{border-image:url(%5appPluginsPics/L_button_n);color:%1;}"
                   "QPushButton:pressed{border-image:url(%5appPluginsPics/L_button_d);color:%2;}"
                   "QPushButton:focus{border-image:url(%5appPluginsPics/Ins_button_d);color:%3;}"
                   "QPushButton:disabled{color:%4;border-image:url(%5appPluginsPics/L_button_d);}")
        .arg(Look::White, Look::White, Look::White, Look::DisabledGrey, Look::AppFolder);

CSwitchLabel::CSwitchLabel(const char* textStrId, QWidget* parent, bool checkable)
    : QLabel(parent)
    , m_textStrId(textStrId)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::NoFocus);
    setFont(Look::textFont());

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(checkable ? createCheckableLabel() : createNormalLabel());
    retranslate();
}

QWidget* CSwitchLabel::createNormalLabel()
{
    m_normalLabel = new ElidingLabel(this);
    // Below a style sheet the font of this label would not reach it.
    m_normalLabel->setFont(font());
    m_normalLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_normalLabel->setStyleSheet(m_selfStyleSheet_normalLabel);
    return m_normalLabel;
}

QWidget* CSwitchLabel::createCheckableLabel()
{
    m_checkabledLabel = new ElidingButton(this);
    m_checkabledLabel->setFont(font());
    m_checkabledLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_checkabledLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_checkabledLabel->setFocusPolicy(Qt::NoFocus);
    m_checkabledLabel->setStyleSheet(m_selfStyleSheet_checkabledLabel);
    m_checkabledLabel->installEventFilter(this);
    connect(m_checkabledLabel, &QPushButton::released, this, &CSwitchLabel::sgnQLabelClicked);
    return m_checkabledLabel;
}

void CSwitchLabel::retranslate()
{
    const QString text = translated(m_textStrId);
    if (m_normalLabel != nullptr)
        m_normalLabel->setText(text);
    else
        m_checkabledLabel->setText(text);
}

void CSwitchLabel::setDisabled(bool disable)
{
    if (m_normalLabel != nullptr)
        m_normalLabel->setDisabled(disable);
    else
        m_checkabledLabel->setDisabled(disable);
    QLabel::setDisabled(disable);
}

bool CSwitchLabel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_checkabledLabel &&
        slidesOff(m_checkabledLabel, m_checkabledLabel->rect(), isEnabled(), event))
        return true;
    return QLabel::eventFilter(watched, event);
}

void CSwitchLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QLabel::changeEvent(event);
}

} // namespace appPlugins
