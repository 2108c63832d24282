// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "chorizontalslider.h"

#include "pluginsTranslation.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSlider>

namespace appPlugins {

CHorizontalSlider::CHorizontalSlider(QWidget* parent, int minimum, int maximum, int value)
    : QLabel(parent)
    , m_pSlider(new QSlider(Qt::Horizontal, this))
    , m_pNoticeLbl(new QLabel(this))
    , m_pLayout(new QHBoxLayout(this))
{
    setFont(Look::textFont());
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_pSlider);
    m_pSlider->setFocusPolicy(Qt::ClickFocus);
    m_pSlider->setRange(minimum, maximum);
    m_pSlider->setValue(value);
    m_pSlider->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pNoticeLbl->setFont(Look::textFont());
    m_pNoticeLbl->setAlignment(Qt::AlignCenter);
    m_pNoticeLbl->setStyleSheet(QStringLiteral("QLabel{color:%1;}QLabel:disabled{color:%2;}")
                                    .arg(Look::White, Look::DisabledGrey));

    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->addWidget(m_pSlider);
    m_pLayout->addWidget(m_pNoticeLbl);
    setHorizontalLayoutStretch(2, 1);
    showNotice();

    connect(m_pSlider, &QSlider::valueChanged, this, &CHorizontalSlider::slt_sliderValueChanged);
}

void CHorizontalSlider::set(int value)
{
    if (value == m_pSlider->value() || !m_pSlider->isEnabled())
        return;
    m_pSlider->setValue(value);
}

int CHorizontalSlider::value() const
{
    return m_pSlider->value();
}

void CHorizontalSlider::setHorizontalLayoutStretch(int slider, int notice)
{
    m_pLayout->setStretch(0, slider);
    m_pLayout->setStretch(1, notice);
}

void CHorizontalSlider::setStyleSheet(QString styleSheet)
{
    m_pSlider->setStyleSheet(styleSheet);
}

void CHorizontalSlider::setDisabled(bool disable)
{
    m_pSlider->setDisabled(disable);
    m_pNoticeLbl->setDisabled(disable);
    QLabel::setDisabled(disable);
}

void CHorizontalSlider::slt_sliderValueChanged(int value)
{
    showNotice();
    Q_EMIT valueChanged(value);
}

void CHorizontalSlider::showNotice()
{
    const int value = m_pSlider->value();
    if (m_pSlider->maximum() == 1)
        m_pNoticeLbl->setText(translated(value == 1 ? TR_DBID_ON : TR_DBID_OFF));
    else
        m_pNoticeLbl->setText(QString::number(value));
}

void CHorizontalSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showNotice();
    QLabel::changeEvent(event);
}

} // namespace appPlugins
