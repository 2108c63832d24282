// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "componentspage.h"

#include "gallerylook.h"
#include "gallerytexts.h"
#include "parameterform.h"
#include "photo.h"
#include "plaincombcomponents.h"
#include "pluginsTranslation.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"
#include "stage.h"

#include <QAbstractButton>
#include <QVBoxLayout>

using namespace appPlugins;

namespace {

/// A voltage from -10 to 10 V whose title names the state that it is shown in.
Photo::Make voltage(const char* titleId, bool checkable = false)
{
    return [titleId, checkable](QWidget* parent) {
        return new RealCombComponent(parent, titleId, checkable, "V", UNIT_VOLTAGE, 2.5, 10, -10,
                                     1e-4);
    };
}

ActionCombComponent* action(QWidget* parent, const char* titleId)
{
    return new ActionCombComponent(parent, titleId, false, nullptr, TR_STR_UTILITY_RUN,
                                   DummyAction);
}

ComboBoxCombComponent* load(QWidget* parent, const char* titleId)
{
    static const char* ids[] = {TR_STR_ID_50, TR_STR_ID_HI_Z};
    return new ComboBoxCombComponent(parent, titleId, false, nullptr, 1, 1, ids);
}

} // namespace

ComponentsPage::ComponentsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_pForm(new ParameterForm(this))
{
    for (CPluginCombComponentBase* component : m_pForm->components())
        addInput(component);
    auto* panel = new QWidget(this);
    panel->setStyleSheet(QStringLiteral(".QWidget{background:#2e2e2e;}"));
    m_pStates = new QVBoxLayout(panel);
    m_pStates->setContentsMargins(0, 4, 0, 4);
    m_pStates->setSpacing(2);
    addNumberStates();
    addChoiceStates();

    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(8, 4, 8, 4);
    columns->setSpacing(8);
    columns->addWidget(m_pForm, 1);
    columns->addWidget(panel, 1);
    connect(m_pForm, &ParameterForm::message, this, &GalleryPage::message);
    connect(m_pForm, &ParameterForm::rangeWarning, this, &GalleryPage::message);
}

void ComponentsPage::addState(QWidget* state)
{
    state->setMinimumHeight(GalleryLook::TouchHeight);
    m_pStates->addWidget(state, 1);
}

void ComponentsPage::addNumberStates()
{
    addState(new Photo(this, voltage(GalleryText::Focused),
                       [](Stage& stage, QWidget* widget) { stage.focus(widget); }));
    addState(new Photo(this, voltage(GalleryText::Typing), [](Stage& stage, QWidget* widget) {
        stage.focus(widget);
        stage.type(QStringLiteral("-1.25"));
    }));
    addState(new Photo(this, voltage(GalleryText::OutOfRange), [](Stage& stage, QWidget* widget) {
        stage.focus(widget);
        stage.type(QStringLiteral("12"));
        stage.key(Qt::Key_Return);
    }));
    auto* disabled = static_cast<RealCombComponent*>(voltage(GalleryText::Disabled)(this));
    disabled->setDisable(true);
    addState(disabled);
    addState(voltage(GalleryText::LongTitle)(this));
    addState(voltage(GalleryText::LongTitle, true)(this));
}

void ComponentsPage::addChoiceStates()
{
    ComboBoxCombComponent* choice = load(this, TR_STR_ID_STAT_LOAD);
    addState(choice);
    addInput(choice);
    ActionCombComponent* run = action(this, GalleryText::Live);
    connect(run, &CPluginCombComponentBase::triggered, this,
            [this] { Q_EMIT message(QStringLiteral("triggered()")); });
    addState(run);
    addInput(run);
    addState(new Photo(
        this, [](QWidget* parent) { return action(parent, GalleryText::Pressed); },
        [](Stage&, QWidget* widget) { widget->findChild<QAbstractButton*>()->setDown(true); }));
}
