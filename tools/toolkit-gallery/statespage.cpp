// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statespage.h"

#include "gallerylook.h"
#include "gallerytexts.h"
#include "pagegrid.h"
#include "plaincombcomponents.h"
#include "pluginsTranslation.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"
#include "stage.h"

using namespace appPlugins;

namespace {

CPluginCombComponentBase* number(QWidget* parent)
{
    return new RealCombComponent(parent, TR_STR_ID_HIGH_LEVEL, false, "V", UNIT_VOLTAGE, 0.25, 10,
                                 -10, 1e-4);
}

CPluginCombComponentBase* name(QWidget* parent)
{
    auto* component = new StringCombComponent(parent, GalleryText::Name, false, nullptr,
                                              QRegExp(QStringLiteral("[A-Za-z0-9_]{1,12}")));
    component->set(QStringLiteral("DUT_1"));
    return component;
}

// Its longest text is that of the second choice, in each language.
CPluginCombComponentBase* load(QWidget* parent)
{
    static const char* ids[] = {TR_STR_ID_50, TR_STR_ID_HI_Z};
    return new ComboBoxCombComponent(parent, TR_STR_ID_STAT_LOAD, false, nullptr, 1, 1, ids);
}

CPluginCombComponentBase* invert(QWidget* parent)
{
    static const char* ids[] = {TR_DBID_OFF, TR_DBID_ON};
    return new BooleanCombComponent(parent, TR_STR_ID_INVERT, false, nullptr, 1, ids);
}

template<int Value>
CPluginCombComponentBase* output(QWidget* parent)
{
    return new BooleanSliderCombComponent(parent, GalleryText::Output, false, nullptr, Value);
}

CPluginCombComponentBase* run(QWidget* parent)
{
    return new ActionCombComponent(parent, GalleryText::Output, false, nullptr, TR_STR_UTILITY_RUN,
                                   DummyAction);
}

} // namespace

StatesPage::StatesPage(QWidget* parent)
    : GalleryPage(parent)
{
    // The components bring no background of their own but the numbers, whose it is.
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("StatesPage{background:#2e2e2e;}"));
    PageGrid grid(this, 124);
    grid.setStates({GalleryText::Focused, GalleryText::Disabled});
    addKind(grid, "RealComb\nComponent", number);
    addKind(grid, "StringComb\nComponent", name);
    addKind(grid, "ComboBoxComb\nComponent", load);
    addKind(grid, "BooleanComb\nComponent", invert);
    addKind(grid, "BooleanSlider\nCombComponent", output<1>);
    addKind(grid, "BooleanSlider\nCombComponent", output<0>);
    addKind(grid, "ActionComb\nComponent", run);
}

void StatesPage::addKind(PageGrid& grid, const char* className, Make make)
{
    const auto makeWide = [make](QWidget* parent) {
        CPluginCombComponentBase* component = make(parent);
        component->setCombComponentsHorLayout(130, 170, 20, 6);
        return component;
    };
    grid.addRow(className, GalleryLook::TouchHeight);
    grid.addPhoto(makeWide, [](Stage& stage, QWidget* component) { stage.focus(component); });
    CPluginCombComponentBase* disabled = makeWide(this);
    disabled->setDisable(true);
    grid.add(disabled);
}
