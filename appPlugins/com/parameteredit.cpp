// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "frontpanelkeys.h"
#include "stepcount.h"
#include "toolkitlook.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cmath>

namespace appPlugins {

const QString ParameterTextWithOrderOfMagnitude::m_strSelfStyleSheet =
    QStringLiteral("QLabel{color: %5; border: %1px solid %2 ;border-radius : %3px;}"
                   "QLabel:disabled{color: %6; border: %1px solid %4 ;border-radius : %3px;}")
        .arg(QString::number(2), Look::White, QString::number(0), Look::DisabledGrey, Look::White,
             Look::DisabledGrey);

ParameterTextWithOrderOfMagnitude::ParameterTextWithOrderOfMagnitude(QWidget* parent,
                                                                     double defaultValue,
                                                                     ENUM_UNIT_TYPE unitType,
                                                                     double resolution)
    : QLabel(parent)
    , m_valueLL(stepCount(defaultValue, resolution))
    , m_paramResolution(resolution)
    , m_typeProperty(unitType)
    , m_lastValueLL(m_valueLL)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    setStyleSheet(m_strSelfStyleSheet);

    m_pParameterText = new ParameterTextEdit(this);
    m_pParameterText->installEventFilter(this);
    setFocusProxy(m_pParameterText);
    m_pUnitLabel = createUnit(unitType);
    // A finger on the prefix means the number: the prefix alone would take a unit key as a unit for
    // the digits on show.
    m_pUnitLabel->setFocusProxy(m_pParameterText);
    m_nMaxUnitIndex = m_pUnitLabel->unitCounts();
    buildLayout();

    connect(m_pUnitLabel, &CUnit::unitSelected, this,
            &ParameterTextWithOrderOfMagnitude::normalize);
    connect(this, &ParameterTextWithOrderOfMagnitude::valueChanged, this,
            &ParameterTextWithOrderOfMagnitude::normalize);
    initialize();
}

CUnit* ParameterTextWithOrderOfMagnitude::createUnit(ENUM_UNIT_TYPE unitType)
{
    switch (unitType) {
    case UNIT_FREQUENCY:
        return new CFrequencyUnit(this);
    case UNIT_TIME:
        return new CTimeUnit(this);
    case UNIT_PERCENT:
        return new CPercentUnit(this);
    case UNIT_RATE:
        return new CRateUnit(this);
    case UNIT_PHASE:
        return new CPhaseUnit(this);
    case UNIT_VOLTAGE:
        m_pParameterText->m_bSupportNegative = true;
        return new CVoltUnit(this);
    case UNIT_POINTS:
        return new CPointUnit(this);
    default:
        return new CUnit(this);
    }
}

void ParameterTextWithOrderOfMagnitude::buildLayout()
{
    m_vLayout = new QVBoxLayout;
    m_vLayout->setSpacing(0);
    m_vLayout->setContentsMargins(0, 0, 0, 0);
    m_vLayout->addWidget(m_pParameterText);

    m_hLayout = new QHBoxLayout(this);
    m_hLayout->setSpacing(0);
    m_hLayout->setContentsMargins(0, 0, 0, 0);
    m_hLayout->addLayout(m_vLayout);
    m_hLayout->addWidget(m_pUnitLabel);
    m_hLayout->setAlignment(m_pUnitLabel, Qt::AlignBottom);
    setDigitsLayout(133, 23);
}

void ParameterTextWithOrderOfMagnitude::setDigitsLayout(int digits, int prefix)
{
    m_hLayout->setStretch(0, digits);
    m_hLayout->setStretch(1, prefix);
}

QString ParameterTextWithOrderOfMagnitude::getStringValue() const
{
    return m_pParameterText->lastText() + m_pUnitLabel->getUnitString();
}

int ParameterTextWithOrderOfMagnitude::getTextLength() const
{
    return m_pParameterText->lastText().size();
}

void ParameterTextWithOrderOfMagnitude::setDisable(bool disable)
{
    m_disabled = disable;
    m_pUnitLabel->setDisabled(disable);
    m_pParameterText->setDisable(disable);
    setDisabled(disable);
}

void ParameterTextWithOrderOfMagnitude::setValue(long long value)
{
    if (value == m_valueLL)
        return;

    // The new value takes the place of what is being typed, which the next digit would otherwise
    // be added to.
    endTyping();
    if (!m_pParameterText->hasFocus())
        m_pParameterText->m_dbSetValueFlag = true;
    takeValue(value);
}

void ParameterTextWithOrderOfMagnitude::takeValue(long long value)
{
    m_valueLL = value;
    Q_EMIT valueChanged();
}

int ParameterTextWithOrderOfMagnitude::decimals() const
{
    return shownDecimals(m_paramResolution, m_pUnitLabel->times());
}

// The selector shows the prefix only once it is chosen: each text that it shows lays the form out
// anew.
int ParameterTextWithOrderOfMagnitude::chooseUnit(ShownNumber shown) const
{
    const double magnitude = std::fabs(static_cast<double>(m_valueLL));
    double number = 0;
    for (int index = 0; index < m_nMaxUnitIndex; ++index) {
        number = shown(magnitude, m_pUnitLabel->timesOf(index), m_paramResolution);
        if (number >= 1.0 && number < 1000.0)
            return index;
    }
    if (m_valueLL == 0)
        return m_pUnitLabel->baseIndex();
    return number < 1000.0 ? m_nMaxUnitIndex - 1 : 0;
}

void ParameterTextWithOrderOfMagnitude::showInUnit(int index)
{
    const double times = m_pUnitLabel->timesOf(index);
    m_pParameterText->updateText(m_valueLL, shownDecimals(m_paramResolution, times));
    m_pUnitLabel->setUnitIndex(index);
}

void ParameterTextWithOrderOfMagnitude::initialize()
{
    showInUnit(chooseUnit([](double magnitude, double times, double resolution) {
        return static_cast<double>(static_cast<float>(magnitude * resolution / times));
    }));
}

void ParameterTextWithOrderOfMagnitude::normalize()
{
    if (sender() == m_pUnitLabel)
        takeTypedText();

    const int previous = m_pUnitLabel->unitIndex();
    const int index = chooseUnit([](double magnitude, double times, double resolution) {
        return magnitude / (times / resolution);
    });
    m_pParameterText->m_unitChangeFlag = index != previous;
    const bool byProgram = m_pParameterText->m_dbSetValueFlag;
    showInUnit(index);

    const bool changed = m_valueLL != m_lastValueLL;
    m_lastValueLL = m_valueLL;
    if (!byProgram && !m_disabled && changed)
        Q_EMIT parameterChanged(m_valueLL);
}

void ParameterTextWithOrderOfMagnitude::takeTypedText()
{
    QString typed = m_pParameterText->toPlainText();
    static const QRegularExpression space(QStringLiteral("\\s"));
    typed.remove(space);
    m_valueLL = typedSteps(typed, decimals(), m_valueLL);
}

void ParameterTextWithOrderOfMagnitude::redraw()
{
    endTyping();
    m_pParameterText->updateText(m_valueLL, decimals());
}

void ParameterTextWithOrderOfMagnitude::knobRotateClockwise(QKeyEvent* e)
{
    qDebug("arameterTextWithOrderOfMagnitude::knobRotateClockwise, e->count()=%d", e->count());
    turnKnob(1);
}

void ParameterTextWithOrderOfMagnitude::knobRotateCouterClockwise(QKeyEvent* e)
{
    qDebug("ParameterTextWithOrderOfMagnitude::knobRotateCouterClockwise, e->count()=%d",
           e->count());
    turnKnob(-1);
}

void ParameterTextWithOrderOfMagnitude::turnKnob(int direction)
{
    const int position = m_pParameterText->textCursor().position();
    if (m_valueLL < 0 && position == 0)
        return;

    const long long step = tenToThe(decimals() + m_pParameterText->cursorPower());
    const long long value = addSteps(m_valueLL, direction * step);
    // A detent is the user's, also when the focus has gone before it came out of the event queue.
    if (value != m_valueLL)
        takeValue(value);

    QScrollBar* const bar = m_pParameterText->horizontalScrollBar();
    if (m_pParameterText->textCursor().position() <= 4)
        bar->setValue(bar->minimum());
    else
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

void ParameterTextWithOrderOfMagnitude::arrowChangeUnit(QKeyEvent* e)
{
    const int index = m_pUnitLabel->unitIndex() + (e->key() == Qt::Key_Left ? -1 : 1);
    if (index < 0)
        return;
    if (index >= m_nMaxUnitIndex)
        return m_pParameterText->rightArrowClicked(e);

    m_pParameterText->m_unitEnterFlag = true;
    showInUnit(index);
}

} // namespace appPlugins
