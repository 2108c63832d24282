// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "unitcell.h"

#include "gallerylook.h"
#include "unit.h"

#include <QEvent>

namespace {

const int Width = 44;
const int DigitsWidth = 14;

} // namespace

UnitCell::UnitCell(appPlugins::CUnit* unit, QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("UnitCell{background:#2e2e2e;}"));
    setFixedSize(Width, GalleryLook::TouchHeight);
    unit->setParent(this);
    unit->setGeometry(rect());
    unit->installEventFilter(this);
}

// The prefix stands where it would behind a digit, and not at the cell's edge.
bool UnitCell::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Resize)
        return QWidget::eventFilter(watched, event);

    watched->event(event);
    auto* unit = static_cast<QWidget*>(watched);
    QMargins margins = unit->contentsMargins();
    margins.setLeft(DigitsWidth);
    unit->setContentsMargins(margins);
    return true;
}
