// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameterform.h"

#include "gallerylook.h"
#include "gallerytexts.h"
#include "plaincombcomponents.h"
#include "pluginsTranslation.h"
#include "rangewarning.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"

#include <QVBoxLayout>

using namespace appPlugins;

namespace {

// A unit that has no identifier shows the text that it is given.
const char* const Volt = "V";
const char* const Hertz = "Hz";

const char** sourceIds()
{
    static const char* ids[] = {TR_STR_ID_MANUAL, TR_DBID_TRIGGER_SOURCE_EXTERNAL, TR_SEQID_TIMER};
    return ids;
}

const char** switchIds()
{
    static const char* ids[] = {TR_DBID_OFF, TR_DBID_ON};
    return ids;
}

} // namespace

ParameterForm::ParameterForm(QWidget* parent)
    : QWidget(parent)
    , m_pLayout(new QVBoxLayout(this))
{
    m_pLayout->setContentsMargins(0, 4, 0, 4);
    m_pLayout->setSpacing(2);
    // The choices bring no background of their own; the numbers' rows are as dark as this.
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("ParameterForm{background:#2e2e2e;}"));
    addNumbers();
    addChoices();
    addOthers();
}

void ParameterForm::addNumbers()
{
    addNumber(new IntegerCombComponent(this, TR_STR_ID_PULSES_NUMS, false, nullptr, UNIT_EMPTY, 2,
                                       30, 2, 1));
    addNumber(new RealCombComponent(this, TR_STR_ID_HIGH_LEVEL, false, Volt, UNIT_VOLTAGE, 2.5, 10,
                                    -10, 1e-4));
    addNumber(new RealCombComponent(this, TR_STR_ID_LOW_LEVEL, false, Volt, UNIT_VOLTAGE, -0.05, 10,
                                    -10, 1e-4));
    addNumber(new RealCombComponent(this, TR_STR_ID_TRIG_DELAY, false, TR_ARBID_UNIT_S, UNIT_TIME,
                                    1e-5, 1.5e-4, 1e-6, 1e-10));
    addNumber(new RealCombComponent(this, GalleryText::Frequency, false, Hertz, UNIT_FREQUENCY,
                                    31250, 120e6, 1e-6, 1e-6));
}

void ParameterForm::addChoices()
{
    addComponent(
        new ComboBoxCombComponent(this, TR_DBID_TRIGGER_SOURCE, false, nullptr, 0, 2, sourceIds()));
    addComponent(new BooleanCombComponent(this, TR_STR_ID_INVERT, false, nullptr, 0, switchIds()));
    addComponent(new BooleanSliderCombComponent(this, GalleryText::Output, false, nullptr, 1));
}

void ParameterForm::addOthers()
{
    auto* name = new StringCombComponent(this, GalleryText::Name, false, nullptr,
                                         QRegExp(QStringLiteral("[A-Za-z0-9_]{1,12}")));
    name->set(QStringLiteral("DUT_1"));
    addComponent(name);
}

void ParameterForm::addComponent(CPluginCombComponentBase* component)
{
    component->setMinimumHeight(GalleryLook::TouchHeight);
    m_pLayout->addWidget(component);
    m_components.append(component);
    using Base = CPluginCombComponentBase;
    connect(component, QOverload<double>::of(&Base::paraChanged), this, [this](double value) {
        Q_EMIT message(QStringLiteral("paraChanged(%1)").arg(value, 0, 'g', 12));
    });
    connect(component, QOverload<const char*>::of(&Base::paraChanged), this,
            [this](const char* id) {
                Q_EMIT message(QStringLiteral("paraChanged(\"%1\")").arg(QLatin1String(id)));
            });
    connect(component, QOverload<QString>::of(&Base::paraChanged), this, [this](QString text) {
        Q_EMIT message(QStringLiteral("paraChanged(\"%1\")").arg(text));
    });
}

void ParameterForm::addNumber(RealCombComponent* number)
{
    addComponent(number);
    m_numbers.append(number);
    connect(number, &RealCombComponent::sgnRealParameterIllegal, this,
            [this, number](double value) { warn(*number, value); });
}

void ParameterForm::warn(const RealCombComponent& number, double value)
{
    double max = 0;
    double min = 0;
    number.getRoundedMaxMin(max, min);
    Q_EMIT rangeWarning(appPlugins::rangeWarning(value, min, max));
}
