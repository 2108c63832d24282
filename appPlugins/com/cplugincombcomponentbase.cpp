// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cplugincombcomponentbase.h"

#include "cswitchlabel.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QEvent>
#include <QHBoxLayout>

namespace appPlugins {

namespace {

// The types of the toolkit's signals, known before the first widget is there: for receivers that
// get a signal queued or recorded.
[[maybe_unused]] const int g_uint16Type = qRegisterMetaType<Uint16>("Uint16");
[[maybe_unused]] const int g_textIdType = qRegisterMetaType<const char*>("const char*");

} // namespace

const QString CPluginCombComponentBase::sm_unitStyleSheet =
    QStringLiteral("QLabel{color:%1;}QLabel:disabled{color:%2;}")
        .arg(Look::White, Look::DisabledGrey);

CPluginCombComponentBase::CPluginCombComponentBase(QWidget* parent, const char* titleStrId,
                                                   bool titleCheckable, const char* unitStrId)
    : QLabel(parent)
    , m_sTitleStrId(titleStrId)
    , m_sUnitStrId(unitStrId)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    m_pHLayout = new QHBoxLayout(this);
    m_pHLayout->setContentsMargins(0, 0, 0, 0);
    m_pHLayout->setSpacing(6);
    setFont(Look::textFont());
    createTitle(titleCheckable);
    createUnitLabel();
}

void CPluginCombComponentBase::createTitle(bool checkable)
{
    m_pTitleLabel = new CSwitchLabel(m_sTitleStrId, this, checkable);
    if (checkable) {
        connect(m_pTitleLabel, &CSwitchLabel::sgnQLabelClicked, this,
                &CPluginCombComponentBase::slt_TitleSwitchLabelClicked);
    }
    m_pTitleLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_pTitleLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pTitleLabel->setFocusPolicy(Qt::NoFocus);
}

void CPluginCombComponentBase::createUnitLabel()
{
    m_pUnitLabel = new QLabel(translated(m_sUnitStrId), this);
    m_pUnitLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_pUnitLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_pUnitLabel->setFocusPolicy(Qt::NoFocus);
    m_pUnitLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_pUnitLabel->setFont(font());
    m_pUnitLabel->setStyleSheet(sm_unitStyleSheet);
}

void CPluginCombComponentBase::addInput(QWidget* input, int title, int inputStretch, int unit)
{
    m_pHLayout->addWidget(m_pTitleLabel, title);
    m_pHLayout->addWidget(input, inputStretch);
    m_pHLayout->addWidget(m_pUnitLabel, unit);
}

void CPluginCombComponentBase::setCombComponentsHorLayout(int title, int input, int unit,
                                                          int spacing)
{
    if (m_pHLayout->count() != 3)
        return;

    m_pHLayout->setSpacing(spacing);
    m_pHLayout->setStretch(0, title);
    m_pHLayout->setStretch(1, input);
    m_pHLayout->setStretch(2, unit);
}

void CPluginCombComponentBase::setDisable(bool disable)
{
    m_pTitleLabel->setDisabled(disable);
    m_pUnitLabel->setDisabled(disable);
    setDisabled(disable);
}

bool CPluginCombComponentBase::isAvailable()
{
    return isEnabled();
}

void CPluginCombComponentBase::slt_TitleSwitchLabelClicked()
{
    if (isEnabled())
        Q_EMIT sgnTitleSwitchLabelClicked(m_nStackedIndex);
}

void CPluginCombComponentBase::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        m_pUnitLabel->setText(translated(m_sUnitStrId));
    QLabel::changeEvent(event);
}

} // namespace appPlugins
