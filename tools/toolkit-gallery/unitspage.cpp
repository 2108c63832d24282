// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unitspage.h"

#include "caption.h"
#include "gallerytexts.h"
#include "unit.h"
#include "unitcell.h"
#include "unittrial.h"

using namespace appPlugins;

namespace {

enum Column {
    NameColumn,
    FirstPrefix,
    FocusColumn = FirstPrefix + 6,
    DisabledColumn,
    BothColumn,
    TrialColumn,
    AnswerColumn
};

// An empty text would show neither colour: the first that is not, if there is one.
void showPrefix(CUnit* unit)
{
    for (int index = 0; unit->getUnitString().isEmpty() && index < unit->unitCounts(); ++index)
        unit->setUnitIndex(index);
}

template<typename Unit>
CUnit* make(QWidget* parent)
{
    return new Unit(parent);
}

} // namespace

UnitsPage::UnitsPage(QWidget* parent)
    : GalleryPage(parent)
    , m_pGrid(new QGridLayout(this))
{
    m_pGrid->setContentsMargins(12, 4, 12, 6);
    m_pGrid->setHorizontalSpacing(4);
    m_pGrid->setVerticalSpacing(4);
    addHeader();
    addFamily("CUnit", make<CUnit>);
    addFamily("CFrequencyUnit", make<CFrequencyUnit>);
    addFamily("CVoltUnit", make<CVoltUnit>);
    addFamily("CTimeUnit", make<CTimeUnit>);
    addFamily("CPercentUnit", make<CPercentUnit>);
    addFamily("CRateUnit", make<CRateUnit>);
    addFamily("CPhaseUnit", make<CPhaseUnit>);
    addFamily("CPointUnit", make<CPointUnit>);
}

void UnitsPage::addHeader()
{
    m_pGrid->addWidget(new Caption(GalleryText::Prefixes, this), 0, FirstPrefix, 1, 6);
    m_pGrid->addWidget(new Caption(GalleryText::Focused, this), 0, FocusColumn);
    m_pGrid->addWidget(new Caption(GalleryText::Disabled, this), 0, DisabledColumn);
    m_pGrid->addWidget(new Caption(GalleryText::Both, this), 0, BothColumn);
    auto* live = new Caption(GalleryText::Live, this);
    live->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_pGrid->addWidget(live, 0, TrialColumn, 1, 2);
    m_pGrid->setColumnMinimumWidth(NameColumn, 128);
    for (const int column : {FocusColumn, DisabledColumn, BothColumn, TrialColumn})
        m_pGrid->setColumnMinimumWidth(column, 72);
    m_pGrid->setColumnStretch(AnswerColumn, 1);
}

void UnitsPage::addFamily(const char* className, Make make)
{
    const int row = m_pGrid->rowCount();
    m_pGrid->addWidget(Caption::verbatim(QLatin1String(className), this), row, NameColumn);
    addPrefixes(row, make);
    addState(row, FocusColumn, make, true, false);
    addState(row, DisabledColumn, make, false, true);
    addState(row, BothColumn, make, true, true);
    addTrial(row, make);
}

void UnitsPage::addPrefixes(int row, Make make)
{
    int index = 0;
    for (CUnit* unit = make(this);; unit = make(this)) {
        unit->setUnitIndex(index);
        m_pGrid->addWidget(new UnitCell(unit, this), row, FirstPrefix + index, Qt::AlignCenter);
        if (++index == unit->unitCounts())
            return;
    }
}

void UnitsPage::addState(int row, int column, Make make, bool focused, bool disabled)
{
    CUnit* unit = make(this);
    showPrefix(unit);
    unit->setBDisguiseFocus(focused);
    unit->setDisabled(disabled);
    m_pGrid->addWidget(new UnitCell(unit, this), row, column, Qt::AlignCenter);
}

void UnitsPage::addTrial(int row, Make make)
{
    auto* trial = new UnitTrial(this, make);
    m_pGrid->addWidget(trial, row, TrialColumn, 1, 2);
    addInput(trial->selector());
}
