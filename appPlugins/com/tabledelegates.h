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
    CStandardItemModel(int rows, int columns, QObject* parent);

    QVariant data(const QModelIndex& index, int role) const override;
};

/// Makes a column read-only.
class APPPLUGINS_EXPORT NoEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

/// Edits the cells of a column of real values, whose texts are in engineering notation ("2.000u").
/// A value outside the column's limits is refused by the editor and the user is warned.
class APPPLUGINS_EXPORT RealEditDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    RealEditDelegate(const RealPrivate& column, QObject* parent);

    /// The value of a cell text; see engineeringTextToDouble().
    static double convertToDbValue(const QString& strValue, double dResolution);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

public Q_SLOTS:
    void slt_popWarningMessage(double value);
    /// Takes the value into the cell and closes the editor.
    void slt_finishedEditing(double newValue);
    /// Takes the value on show into the cell and closes the editor once it has lost the focus.
    void slt_editorLeft();

protected:
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
