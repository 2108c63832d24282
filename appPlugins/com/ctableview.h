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
/// of the viewport. The view never takes the focus. Follows a change of language.
class APPPLUGINS_EXPORT CTableView : public QTableView
{
    Q_OBJECT

public:
    CTableView(QWidget* parent, const int& tableColumnCount);

    /// Sets corner and column titles. @p strsId holds one identifier per column; all identifiers
    /// must outlive the view.
    void setHorizontalHeaderData(const char* indexTextId, const char** strsId);

public Q_SLOTS:
    /// Inserts an empty row before the selected cell's row; appends it with nothing selected; does
    /// nothing with several cells selected.
    virtual void slt_insert();
    /// Removes the selected cell's row, the last row without just one selected.
    virtual void slt_remove();
    /// Empties the table; the titles stay.
    void slt_clear();

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    /// Places a row before the selected cell's row when just one is selected, at the end otherwise,
    /// and clears the selection.
    void placeRow(const QList<QStandardItem*>& items);

    CStandardItemModel* m_pStandardItemModel;
    const int m_nTableColumnCount;
    const char** m_pHeaderLabelsStrId = nullptr;
    QLabel* m_pCorner;
    const char* m_pCornerTextId = nullptr;
    QPoint m_pressPoint;
    bool m_bMousePressed = false;
    bool m_bContinuousMove = false;
    int m_iPressScrollBarValue = 0;

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
