// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "realcombcomponent.h"

#include "cswitchlabel.h"
#include "dbutils.h"
#include "frontpanelkeys.h"
#include "parameteredit.h"
#include "stepcount.h"
#include "toolkitlook.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace appPlugins {

const QString RealCombComponent::m_strSelfStyleSheet =
    QStringLiteral("QLabel{border:none;color:%1;background:#2e2e2e;}\n"
                   "QLabel:disabled{border:none;color:%2;background:#2e2e2e;}\n"
                   "QLabel[bDisguiseFocus=\"true\"]{border:none;color:%1;background:%3;}\n"
                   "QLabel[bDisguiseFocus=\"false\"]{border:none;color:%1;background:#2e2e2e;}")
        .arg(Look::White, Look::DisabledGrey, Look::FocusBlue);

RealCombComponent::RealCombComponent(QWidget* parent, const char* titleStrId, bool titleCheckable,
                                     const char* unitStrId, ENUM_UNIT_TYPE unitType,
                                     double defaultValue, double absoluteMax, double absoluteMin,
                                     double resolution)
    : CPluginCombComponentBase(parent, titleStrId, titleCheckable, unitStrId)
    , m_dbResolution(resolution)
    , m_dbMaxValue(std::max(absoluteMax, absoluteMin))
    , m_dbMinValue(std::min(absoluteMax, absoluteMin))
{
    setStyleSheet(m_strSelfStyleSheet);
    m_dbValue = std::min(defaultValue, m_dbMaxValue);
    m_pParamTextEdit = new ParameterTextWithOrderOfMagnitude(this, m_dbValue, unitType, resolution);
    setFocusProxy(m_pParamTextEdit);

    connect(m_pParamTextEdit, &ParameterTextWithOrderOfMagnitude::parameterChanged, this,
            &RealCombComponent::slt_editingFinished);
    connect(m_pParamTextEdit, &ParameterTextWithOrderOfMagnitude::sgn_editorFocusIn, this,
            &RealCombComponent::slt_editorFocusIn);
    connect(m_pParamTextEdit, &ParameterTextWithOrderOfMagnitude::sgn_editorFocusOut, this,
            &RealCombComponent::sgn_editorFocusOut);
    addInput(m_pParamTextEdit, 172, 156, 32);
}

// An editor that goes with the focus reports that it lost it, to a component that is gone by then.
RealCombComponent::~RealCombComponent()
{
    m_pParamTextEdit->disconnect(this);
}

QString RealCombComponent::getStringValue() const
{
    return m_pParamTextEdit->getStringValue();
}

void RealCombComponent::redraw()
{
    m_pParamTextEdit->redraw();
}

double RealCombComponent::round(double value) const
{
    return DBRound(value, m_dbResolution);
}

void RealCombComponent::getMaxMinValue(double& max, double& min) const
{
    max = m_dbMaxValue;
    min = m_dbMinValue;
}

void RealCombComponent::getRoundedMaxMin(double& max, double& min) const
{
    max = round(m_dbMaxValue);
    min = round(m_dbMinValue);
}

RealCombComponent::VALUE_ERROR RealCombComponent::checkInput(double value) const
{
    double max = 0;
    double min = 0;
    getMaxMinValue(max, min);
    if (value > limitPlusSafety(max))
        return VALUE_OVERMAX;
    return value < limitMinusSafety(min) ? VALUE_UNDERMIN : VALUE_OK;
}

void RealCombComponent::validate(double value)
{
    double max = 0;
    double min = 0;
    getRoundedMaxMin(max, min);
    // Beyond the margin the limit itself is held: a margin that stayed would read as the number
    // below it when a count is cut to an integer.
    if (value > limitPlusSafety(max))
        value = max;
    else if (value < limitMinusSafety(min))
        value = min;
    actualSet(value);
}

void RealCombComponent::actualSet(double value)
{
    qDebug() << "actualSet"
             << "value" << value << "m_dbValue" << m_dbValue;
    if (DBSameValue(value, m_dbValue))
        return;

    m_dbValue = value;
    const long long valueLL = stepCount(value, m_dbResolution);
    qWarning() << "actualSet"
               << "valueLL" << valueLL << "valueDB"
               << value * std::pow(10, std::log10(1 / m_dbResolution));
    m_pParamTextEdit->setValue(valueLL);
}

void RealCombComponent::setMaxMinValue(double limit, double otherLimit)
{
    if (!isAvailable())
        return;

    m_dbMaxValue = std::max(limit, otherLimit);
    m_dbMinValue = std::min(limit, otherLimit);
    silently([this] { validate(m_dbValue); });
}

bool RealCombComponent::set(double value)
{
    // What is no number has no digits and passes every limit.
    if (!isAvailable() || std::isnan(value))
        return false;

    const double rounded = round(value);
    if (checkInput(rounded) != VALUE_OK) {
        Q_EMIT sgnRealParameterIllegal(rounded);
        silently([=] { validate(rounded); });
        return false;
    }
    if (!DBSameValue(rounded, m_dbValue))
        silently([=] { actualSet(rounded); });
    return true;
}

// An editor that has the focus would report what a program shows in it, or the limit that takes the
// place of a value, like something that the user entered.
void RealCombComponent::silently(const std::function<void()>& show)
{
    const bool before = m_bSilent;
    m_bSilent = true;
    show();
    m_bSilent = before;
}

void RealCombComponent::slt_editingFinished(long long valueLL)
{
    if (m_bSilent)
        return;

    const double value = round(static_cast<double>(valueLL) * m_dbResolution);
    m_dbValue = value;
    if (checkInput(value) == VALUE_OK)
        return reportChange();

    Q_EMIT sgnRealParameterIllegal(value);
    silently([this] { validate(m_dbValue); });
}

void RealCombComponent::reportChange()
{
    qWarning() << "slt_editingFinished"
               << "paraChanged" << m_dbValue;
    Q_EMIT paraChanged(m_dbValue);
}

void RealCombComponent::slt_editorFocusIn()
{
    Q_EMIT sgn_editorFocusIn(objectName());
}

void RealCombComponent::setCombComponentsHorLayout(int title, int input, int unit, int spacing)
{
    CPluginCombComponentBase::setCombComponentsHorLayout(title, input, unit, spacing);
    m_pParamTextEdit->setDigitsLayout(3, 2);
}

void RealCombComponent::setDisable(bool disable)
{
    CPluginCombComponentBase::setDisable(disable);
    m_pParamTextEdit->setDisable(disable);
}

IntegerCombComponent::IntegerCombComponent(QWidget* parent, const char* titleStrId,
                                           bool titleCheckable, const char* unitStrId,
                                           ENUM_UNIT_TYPE unitType, int defaultValue,
                                           int absoluteMax, int absoluteMin, int resolution)
    : RealCombComponent(parent, titleStrId, titleCheckable, unitStrId, unitType, defaultValue,
                        absoluteMax, absoluteMin, resolution)
{}

TabelRealCombComponent::TabelRealCombComponent(QWidget* parent, const char* titleStrId,
                                               bool titleCheckable, const char* unitStrId,
                                               ENUM_UNIT_TYPE unitType, double defaultValue,
                                               double absoluteMax, double absoluteMin,
                                               double resolution)
    : RealCombComponent(parent, titleStrId, titleCheckable, unitStrId, unitType, defaultValue,
                        absoluteMax, absoluteMin, resolution)
{
    m_pParamTextEdit->textEdit()->installEventFilter(this);
    setFocusProxy(m_pParamTextEdit->textEdit());
}

void TabelRealCombComponent::setCombComponentsHorLayout(int title, int input, int unit, int spacing)
{
    RealCombComponent::setCombComponentsHorLayout(title, input, unit, spacing);
    m_pTitleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_pUnitLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

bool TabelRealCombComponent::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        m_pParamTextEdit->takeHandedOverKeys();
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (m_bKnobRotating && (key == QT_KEY_KNOB || key == Qt::Key_Return)) {
            Q_EMIT paraChanged(m_dbValue);
            qWarning() << "eventFilter"
                       << "knob press";
        }
        // While a number is typed the knob turns nothing, and its press confirms the number.
        m_bKnobRotating =
            (key == Qt::Key_Up || key == Qt::Key_Down) && !m_pParamTextEdit->isTyping();
    }
    return RealCombComponent::eventFilter(watched, event);
}

void TabelRealCombComponent::reportChange()
{
    if (m_bKnobRotating) {
        qWarning() << "slt_editingFinished"
                   << "don't emit paraChanged" << m_dbValue << "m_bKnobRotating" << m_bKnobRotating;
        return;
    }
    RealCombComponent::reportChange();
}

} // namespace appPlugins
