// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ctableview.h"

#include <QPoint>

class QStandardItem;
class QStandardItemModel;

/// The table of the train's pulses: one row a pulse, its width in column 0 and the gap that follows
/// it in column 1, as engineering texts in seconds ("2.000u"). Rows come and go at its end alone.
///
/// In common-gap mode (off at first) the gap of the first row stands in every row.
class CPulseTable : public appPlugins::CRealTableView
{
    Q_OBJECT

public:
    /// @p defaultPrivateArray describes each of the @p tableColumnCount columns; it stays the
    /// caller's and must live as long as the table.
    CPulseTable(QWidget* parent, const int& tableColumnCount,
                appPlugins::RealPrivate* defaultPrivateArray);

Q_SIGNALS:
    /// The cell that became current; invalid when the selection was cleared.
    void sgn_currentItem(QModelIndex index);
    /// The same cell as a point: x is its row, y its column; (-1, -1) for none.
    void sgn_editorFocusIn(QPoint cell);

protected Q_SLOTS:
    /// Hides the on-screen keyboard and tells which cell became current.
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

public Q_SLOTS:
    /// Appends a row of default texts and clears the selection.
    void slt_insert() override;
    /// Removes the last row, whatever is selected.
    void slt_remove() override;

public:
    /// Switches common-gap mode of @p column on or off. On: the cells below the first row are
    /// disabled and take @p disabledDefaultText, or the gap of row 0 where that is empty, and
    /// follow each change of row 0's gap. Off: they are enabled again and keep their texts.
    void setDisabled(bool disabled, int column, QString disabledDefaultText) override;

public Q_SLOTS:
    /// Appends a row with the given texts, which are not checked against the limits; a row of
    /// defaults when their number is not that of the columns.
    void slt_insert(std::initializer_list<QString> texts) override;

    /// Copies the gap of row 0 to all rows when @p item is that cell.
    void slt_itemDataChanged(QStandardItem* item);
    /// Tells of a cell as a point.
    void slt_editorFocusIn(QModelIndex index);

private:
    QStandardItemModel* itemModel() const;
    void appendRow(const QList<QStandardItem*>& items);
    void writeGaps(const QString& text, int column);
};
