// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "realprivate.h"

#include <QPointer>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace appPlugins {

/// A model whose cell texts are centred.
class APPPLUGINS_EXPORT CStandardItemModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /// Empty cells.
    CStandardItemModel(int rows, int columns, QObject* parent);

    /// The cell's data; for Qt::TextAlignmentRole always the centre.
    QVariant data(const QModelIndex& index, int role) const override;
};

/// Makes a column read-only: install it with QAbstractItemView::setItemDelegateForColumn().
class APPPLUGINS_EXPORT NoEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Null: the cell is not edited.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

/// Edits the cells of a column of real values, whose texts are in engineering notation ("2.000u").
/// A value outside the column's limits is replaced by the nearest one and the user is warned by the
/// host's message box, so the host's callbacks must be there.
///
/// The cell gets the text that the editor shows, with its prefix. The small "k" that an editor of
/// hertz, points or plain numbers shows from 1000 on cannot be read back (see
/// engineeringTextToDouble()); columns are for times, voltages and what stays below that.
class APPPLUGINS_EXPORT RealEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Copies unit type, default value, limits and resolution of @p column.
    RealEditDelegate(const RealPrivate& column, QObject* parent);

    /// The value of a cell text in the base unit, rounded to @p dResolution; 0 for unreadable text.
    /// See engineeringTextToDouble().
    static double convertToDbValue(const QString& strValue, double dResolution);

    /// A TabelRealCombComponent without title and unit.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// Forgets the open editor.
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    /// Shows the cell's value in the editor. One outside the limits is warned of and replaced by
    /// the nearest limit.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Takes the editor's confirmed value into the cell as the text on show; what is typed and not
    /// confirmed is dropped. A text that reads as another value is told of on standard output. An
    /// editor of another kind leaves an empty text.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    /// The editor covers its cell.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

public Q_SLOTS:
    /// Warns of @p value (base unit) and of the limits; see rangeWarning().
    void slt_popWarningMessage(double value);
    /// Takes the open editor's value into the cell and closes the editor; nothing without one. A
    /// @p newValue (base unit) other than the editor's is told of on standard output.
    void slt_finishedEditing(double newValue);
    /// The same once the open editor has lost the focus, unless its value is outside the limits.
    void slt_editorLeft();

protected:
    /// Leaves the editor's events to QStyledItemDelegate.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finishEditing();

    ENUM_UNIT_TYPE unitType;
    double defaultValue;
    double absoluteMax;
    double absoluteMin;
    double resolution;
    mutable QPointer<QWidget> m_pEditor;
};

} // namespace appPlugins
