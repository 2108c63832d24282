// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace appPlugins {
class CUnit;
}

/// The place of a unit selector on the page, which shows where the empty text of a base unit is.
class UnitCell : public QWidget
{
    Q_OBJECT

public:
    /// Takes @p unit over.
    UnitCell(appPlugins::CUnit* unit, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
