// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ctableview.h"
#include "realprivate.h"

#include <initializer_list>
#include <memory>

namespace appPlugins {

/// A table of real values, one description and one unit-aware editor a column.
class APPPLUGINS_EXPORT CRealTableView : public CTableView
{
    Q_OBJECT

public:
    /// @p defaultPrivateArray holds one entry per column and is copied.
    CRealTableView(QWidget* parent, const int& tableColumnCount, RealPrivate* defaultPrivateArray);
    ~CRealTableView() override;

    /// Copies the description of the first column.
    void getDefaultRowContents(RealPrivate& contents) const;

    /// Enables the cells of @p column, or disables them and writes @p defaultText into column 1 of
    /// every row; an empty text stands for that of row 0 there.
    virtual void setDisabled(bool disabled, int column, QString defaultText);

public Q_SLOTS:
    /// Inserts a row of default texts before the selected cell's row, or appends it; clears the
    /// selection.
    void slt_insert() override;
    /// The same with the given texts; a row of defaults unless there is one for each column.
    virtual void slt_insert(std::initializer_list<QString> texts);

protected:
    std::unique_ptr<RealPrivate[]> m_pDefaultPrivateArray;
};

} // namespace appPlugins
