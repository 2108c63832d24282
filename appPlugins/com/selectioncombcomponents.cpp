// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "selectioncombcomponents.h"

#include "ccombobox.h"
#include "chorizontalslider.h"
#include "cradiobutton.h"
#include "cswitchlabel.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QDebug>
#include <QEvent>
#include <QGuiApplication>
#include <QSlider>

#include <cstring>

namespace appPlugins {

SelectionCombComponent::SelectionCombComponent(QWidget* parent, const char* titleStrId,
                                               bool titleCheckable, const char* unitStrId,
                                               Uint16 val, Uint16 max, const char** saveStrIds)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , m_value(val)
    , m_maxValue(max)
    , m_saveRestoreValueLabelsStrId(saveStrIds)
{}

bool SelectionCombComponent::set(Uint16 value)
{
    if (!isAvailable() || value > m_maxValue)
        return false;

    m_value = value;
    showValue();
    return true;
}

bool SelectionCombComponent::set(const char* saveStrId)
{
    for (int i = 0; i <= m_maxValue; ++i) {
        if (std::strcmp(m_saveRestoreValueLabelsStrId[i], saveStrId) == 0)
            return set(static_cast<Uint16>(i));
    }
    return false;
}

const char* SelectionCombComponent::getSaveStrId() const
{
    return m_saveRestoreValueLabelsStrId[m_value];
}

void SelectionCombComponent::reportChoice()
{
    Q_EMIT paraChanged(m_value);
    Q_EMIT paraChanged(getSaveStrId());
}

BooleanCombComponent::BooleanCombComponent(QWidget* parent, const char* titleStrId,
                                           bool titleCheckable, const char* unitStrId, Uint16 val,
                                           const char** saveStrIds)
    : SelectionCombComponent(parent, titleStrId, titleCheckable, unitStrId, val, 1, saveStrIds)
    , m_pAlterNativeButtons(new CRadioButton(this, saveStrIds[0], saveStrIds[1]))
{
    m_pAlterNativeButtons->setChecked(m_value, true);
    setFocusProxy(m_pAlterNativeButtons);
    connect(m_pAlterNativeButtons, &CRadioButton::sgnButtonClicked, this,
            &BooleanCombComponent::slt_buttonClicked);
    addInput(m_pAlterNativeButtons, 172, 156, 32);
}

void BooleanCombComponent::showValue()
{
    m_pAlterNativeButtons->setChecked(m_value, true);
}

void BooleanCombComponent::slt_buttonClicked(int index)
{
    if (index == m_value)
        return;

    m_value = static_cast<Uint16>(index);
    if (m_pAlterNativeButtons->hasFocus())
        reportChoice();
}

void BooleanCombComponent::setDisable(bool disable)
{
    SelectionCombComponent::setDisable(disable);
    m_pAlterNativeButtons->setDisabled(disable);
}

ComboBoxCombComponent::ComboBoxCombComponent(QWidget* parent, const char* titleStrId,
                                             bool titleCheckable, const char* unitStrId, Uint16 val,
                                             Uint16 max, const char** saveStrIds)
    : SelectionCombComponent(parent, titleStrId, titleCheckable, unitStrId, val, max, saveStrIds)
    , m_pComboBox(new CComboBox(this))
{
    for (int i = 0; i <= m_maxValue; ++i)
        m_pComboBox->addItem(translated(m_saveRestoreValueLabelsStrId[i]));
    m_pComboBox->setCurrentIndex(m_value);
    setFocusProxy(m_pComboBox);
    connect(m_pComboBox, QOverload<int>::of(&CComboBox::currentIndexChanged), this,
            &ComboBoxCombComponent::slt_currentIndexChanged);
    addInput(m_pComboBox, 172, 156, 32);
}

void ComboBoxCombComponent::showValue()
{
    m_pComboBox->setCurrentIndex(m_value);
}

bool ComboBoxCombComponent::userIsChoosing() const
{
    const QObject* focus = QGuiApplication::focusObject();
    return m_pComboBox->hasFocus() || (focus != nullptr && focus->inherits("QComboBoxListView"));
}

void ComboBoxCombComponent::slt_currentIndexChanged(int index)
{
    const auto chosen = static_cast<Uint16>(index);
    // What set() shows is the value already.
    const bool byProgram = chosen == m_value;
    m_value = chosen;
    if (!byProgram && userIsChoosing())
        reportChoice();
}

void ComboBoxCombComponent::setDisable(bool disable)
{
    SelectionCombComponent::setDisable(disable);
    m_pComboBox->setDisabled(disable);
}

void ComboBoxCombComponent::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        for (int i = 0; i <= m_maxValue; ++i)
            m_pComboBox->setItemText(i, translated(m_saveRestoreValueLabelsStrId[i]));
        m_pComboBox->setCurrentIndex(m_value);
    }
    SelectionCombComponent::changeEvent(event);
}

const QString BooleanSliderCombComponent::sm_selfStyleSheet =
    QStringLiteral("QSlider::groove:horizontal {border:%1px solid %2;border-radius:%3px;}"
                   "QSlider::handle:horizontal {border-image:url(%5appPluginsPics/toggle "
                   "button.png);width:%4px;}"
                   "QSlider::add-page:horizontal{background:transparent;border:%1px solid "
                   "%2;border-top-right-radius:%3px;border-bottom-right-radius:%3px;}"
                   "QSlider::sub-page:horizontal{background:blue;border:%1px solid "
                   "%2;border-top-left-radius:%3px;border-bottom-left-radius:%3px;}")
        .arg(QString::number(2), Look::White, QString::number(17), QString::number(34),
             Look::AppFolder);

BooleanSliderCombComponent::BooleanSliderCombComponent(QWidget* parent, const char* titleStrId,
                                                       bool titleCheckable, const char* unitStrId,
                                                       Uint16 val)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , m_pSlider(new CHorizontalSlider(this, 0, 1, val))
    , m_value(val)
{
    m_pSlider->setStyleSheet(sm_selfStyleSheet);
    setFocusProxy(m_pSlider);
    connect(m_pSlider, &CHorizontalSlider::valueChanged, this,
            &BooleanSliderCombComponent::slt_currentIndexChanged);
    addInput(m_pSlider, 172, 156, 32);
}

void BooleanSliderCombComponent::set(Uint16 value)
{
    if (!isAvailable() || value == m_value || value > 1)
        return;

    m_value = value;
    m_pSlider->set(value);
}

void BooleanSliderCombComponent::slt_currentIndexChanged(int index)
{
    const auto chosen = static_cast<Uint16>(index);
    if (chosen == m_value)
        return;

    m_value = chosen;
    const QObject* focus = QGuiApplication::focusObject();
    qDebug() << "slt_currentIndexChanged"
             << (focus == nullptr ? "" : focus->metaObject()->className());
    if (isAvailable() && m_pSlider->focusProxy()->hasFocus())
        Q_EMIT paraChanged(m_value);
}

void BooleanSliderCombComponent::setDisable(bool disable)
{
    CPluginCombComponentBase::setDisable(disable);
    m_pSlider->setDisabled(disable);
}

} // namespace appPlugins
