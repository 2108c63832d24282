// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QTableView>

class QLabel;
class QStandardItem;

namespace appPlugins {

class CStandardItemModel;

/// A table for a touch screen: a tap selects a cell, a drag scrolls by pixels. Positions are those
/// of the viewport, in pixels. The view never takes the focus. Follows a change of language.
///
/// Rows are 36 pixels high, the titles 32, the column of row numbers is 50 wide; the other columns
/// share the rest. A double tap, or a tap on the selected cell, edits; NoEditDelegate makes a
/// column read-only.
class APPPLUGINS_EXPORT CTableView : public QTableView
{
    Q_OBJECT

public:
    /// No rows, @p tableColumnCount columns and "Index" in the corner.
    CTableView(QWidget* parent, const int& tableColumnCount);

    /// Sets corner and column titles. @p strsId holds one identifier per column; the array and all
    /// identifiers must outlive the view.
    void setHorizontalHeaderData(const char* indexTextId, const char** strsId);

public Q_SLOTS:
    /// Inserts an empty row before the selected cell's row; appends it with nothing selected; does
    /// nothing with several cells selected.
    virtual void slt_insert();
    /// Removes the selected cell's row, the last row without just one selected; clears the
    /// selection. Nothing on an empty table.
    virtual void slt_remove();
    /// Empties the table; the titles stay.
    void slt_clear();

protected:
    /// Shows the titles in the new language.
    void changeEvent(QEvent* event) override;
    /// Begins a tap or a drag. A press in the topmost 32 pixels is left to QTableView, as are the
    /// move and the release that follow it.
    void mousePressEvent(QMouseEvent* event) override;
    /// Scrolls by what the finger has moved up or down since the press, once that is 6 pixels or
    /// more; each move is logged at warning level.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// A tap, which selects the cell under the finger, when it is less than 5 pixels below the
    /// press and the drag never reached 21 pixels; so a short drag upward selects, too.
    void mouseReleaseEvent(QMouseEvent* event) override;

    /// Places a row before the selected cell's row when just one is selected, at the end otherwise,
    /// and clears the selection. @p items are one per column; the model takes them over.
    void placeRow(const QList<QStandardItem*>& items);

    CStandardItemModel* m_pStandardItemModel;    ///< the cells
    const int m_nTableColumnCount;               ///< columns, the row numbers not counted
    const char** m_pHeaderLabelsStrId = nullptr; ///< name the titles, one per column; null at first
    QLabel* m_pCorner;                           ///< the corner above the row numbers
    const char* m_pCornerTextId = nullptr;       ///< names the corner's text; null at first
    QPoint m_pressPoint;                         ///< where the finger came down
    bool m_bMousePressed = false;                ///< set by the first press below the titles
    bool m_bContinuousMove = false;              ///< the drag has reached 21 pixels
    int m_iPressScrollBarValue = 0;              ///< scroll position at the press, in pixels

private:
    void initModel();
    void initView();
    void initHeaders();
    void initCorner();
    void retranslate();
    void scrollBarTo(int barValue);
    void tap(QMouseEvent* release);
};

} // namespace appPlugins
