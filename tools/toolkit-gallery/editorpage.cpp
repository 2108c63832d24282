// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorpage.h"

#include "gallerylook.h"
#include "gallerytexts.h"
#include "pagegrid.h"
#include "parameteredit.h"
#include "stage.h"

using namespace appPlugins;

// Among them what is easily drawn wrong: the longest text that fits, a negative number, one below
// the smallest prefix, zero, one beyond the largest prefix.
const EditorPage::Quantity EditorPage::Quantities[] = {
    {"UNIT_FREQUENCY", UNIT_FREQUENCY, 31250, 1e-6, "1.25"},
    {"UNIT_TIME", UNIT_TIME, 2.35e-6, 1e-12, "2.350"},
    {"UNIT_VOLTAGE", UNIT_VOLTAGE, -2.5, 1e-4, "-1.2"},
    {"UNIT_PERCENT", UNIT_PERCENT, 0.05, 0.01, "50"},
    {"UNIT_RATE", UNIT_RATE, 2.5e9, 1, "1.2"},
    {"UNIT_PHASE", UNIT_PHASE, 0, 0.01, "90"},
    {"UNIT_POINTS", UNIT_POINTS, 1234567000, 1, "131072"},
    {"UNIT_EMPTY", UNIT_EMPTY, 30, 1, "12"},
};

EditorPage::EditorPage(QWidget* parent)
    : GalleryPage(parent)
{
    PageGrid grid(this, 124);
    grid.setStates(
        {GalleryText::Live, GalleryText::Focused, GalleryText::Typing, GalleryText::Disabled});
    for (const Quantity& quantity : Quantities)
        addQuantity(grid, quantity);
}

void EditorPage::addQuantity(PageGrid& grid, const Quantity& quantity)
{
    const auto make = [quantity](QWidget* parent) {
        return new ParameterTextWithOrderOfMagnitude(parent, quantity.value, quantity.unitType,
                                                     quantity.resolution);
    };
    grid.addRow(quantity.name, GalleryLook::TouchHeight);
    auto* live = make(this);
    connect(
        live, &ParameterTextWithOrderOfMagnitude::parameterChanged, this,
        [this, live](long long steps) {
            Q_EMIT message(
                QStringLiteral("parameterChanged(%1)   %2").arg(steps).arg(live->getStringValue()));
        });
    addInput(grid.add(live));
    grid.addPhoto(make, [](Stage& stage, QWidget* editor) { stage.focus(editor); });
    grid.addPhoto(make, [quantity](Stage& stage, QWidget* editor) {
        stage.focus(editor);
        stage.type(QLatin1String(quantity.typed));
    });
    auto* disabled = make(this);
    disabled->setDisable(true);
    grid.add(disabled);
}
