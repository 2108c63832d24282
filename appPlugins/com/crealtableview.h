// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ctableviewbase.h"
#include "realprivate.h"

#include <initializer_list>
#include <memory>

namespace appPlugins {

/// A table of real values, one description and one unit-aware editor (RealEditDelegate) a column.
/// A double tap, or a tap on the selected cell, edits. The values are the texts of the model's
/// cells; RealEditDelegate::convertToDbValue() reads them.
///
/// @code
/// RealPrivate columns[] = {{UNIT_TIME, 2e-6, "2.000u", 1.5e-4, 2e-8, 1e-9},
///                          {UNIT_TIME, 1e-5, "10.000u", 1.5e-4, 2e-8, 1e-9}};
/// static const char* titles[] = {TR_STR_ID_WIDTHS, TR_STR_ID_GAPS};
/// auto* table = new CRealTableView(this, 2, columns);
/// table->setHorizontalHeaderData("N", titles);
/// table->slt_insert({"2.000u", "10.000u"});
/// @endcode
class APPPLUGINS_EXPORT CRealTableView : public CTableView
{
    Q_OBJECT

public:
    /// No rows, @p tableColumnCount columns (at least 1). @p defaultPrivateArray holds one entry
    /// per column and is copied.
    CRealTableView(QWidget* parent, const int& tableColumnCount, RealPrivate* defaultPrivateArray);
    /// Drops the descriptions.
    ~CRealTableView() override;

    /// Copies the description of the first column.
    void getDefaultRowContents(RealPrivate& contents) const;

    /// Enables the cells of @p column, or disables them and writes @p defaultText into column 1 of
    /// every row, whatever the column; an empty text stands for that of row 0 there. A disabled
    /// cell is grey and can be neither selected nor edited. Rows that come later are enabled.
    virtual void setDisabled(bool disabled, int column, QString defaultText);

public Q_SLOTS:
    /// Inserts a row of default texts before the selected cell's row, or appends it; clears the
    /// selection.
    void slt_insert() override;
    /// The same with the given texts; a row of defaults unless there is one for each column.
    virtual void slt_insert(std::initializer_list<QString> texts);

protected:
    std::unique_ptr<RealPrivate[]> m_pDefaultPrivateArray; ///< one description per column
};

} // namespace appPlugins
