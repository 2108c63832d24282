// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unitcell.h"

#include "gallerylook.h"
#include "unit.h"

namespace {

const int Width = 44;

} // namespace

UnitCell::UnitCell(appPlugins::CUnit* unit, QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("UnitCell{background:#2e2e2e;}"));
    setFixedSize(Width, GalleryLook::TouchHeight);
    unit->setParent(this);
    unit->setGeometry(rect());
}
