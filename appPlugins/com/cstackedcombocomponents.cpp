// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cstackedcombocomponents.h"

#include "cplugincombcomponentbase.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace appPlugins {

CStackedComboComponents::CStackedComboComponents(QWidget* parent)
    : QLabel(parent)
    , m_stackedWidget(new QStackedWidget(this))
    , m_layout(new QVBoxLayout(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_TranslucentBackground);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_stackedWidget);
    connect(m_stackedWidget, &QStackedWidget::currentChanged, this,
            &CStackedComboComponents::slt_CurrentChanged);
}

int CStackedComboComponents::addWidget(CPluginCombComponentBase* component)
{
    const int index = m_stackedWidget->addWidget(component);
    component->setStackedIndex(index);
    connect(component, &CPluginCombComponentBase::sgnTitleSwitchLabelClicked, this,
            &CStackedComboComponents::slt_stackedWidgetClicked);
    return index;
}

void CStackedComboComponents::setCurrentIndex(Uint16 index)
{
    if (index != m_stackedWidget->currentIndex())
        m_stackedWidget->setCurrentIndex(index);
}

void CStackedComboComponents::slt_CurrentChanged(int index)
{
    Q_EMIT currentChanged(static_cast<Uint16>(index));
}

void CStackedComboComponents::slt_stackedWidgetClicked(int index)
{
    if (m_stackedWidget->count() > 0)
        m_stackedWidget->setCurrentIndex((index + 1) % m_stackedWidget->count());
}

void CStackedComboComponents::setDisabled(bool disable)
{
    m_stackedWidget->setDisabled(disable);
    QLabel::setDisabled(disable);
}

} // namespace appPlugins
