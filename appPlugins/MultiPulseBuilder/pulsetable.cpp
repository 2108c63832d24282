// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsetable.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QStandardItemModel>

using appPlugins::CRealTableView;

namespace {

const int GapColumn = 1;

} // namespace

CPulseTable::CPulseTable(QWidget* parent, const int& tableColumnCount,
                         appPlugins::RealPrivate* defaultPrivateArray)
    : CRealTableView(parent, tableColumnCount, defaultPrivateArray)
{
    connect(this, &CPulseTable::sgn_currentItem, this, &CPulseTable::slt_editorFocusIn);
}

QStandardItemModel* CPulseTable::itemModel() const
{
    return qobject_cast<QStandardItemModel*>(model());
}

void CPulseTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QGuiApplication::inputMethod()->hide();
    CRealTableView::selectionChanged(selected, deselected);
    Q_EMIT sgn_currentItem(selected.indexes().value(0));
}

void CPulseTable::slt_editorFocusIn(QModelIndex index)
{
    Q_EMIT sgn_editorFocusIn(QPoint(index.row(), index.column()));
}

void CPulseTable::appendRow(const QList<QStandardItem*>& items)
{
    itemModel()->insertRow(itemModel()->rowCount(), items);
    clearSelection();
}

void CPulseTable::slt_insert()
{
    if (itemModel() == nullptr)
        return;

    QList<QStandardItem*> items;
    for (int column = 0; column < m_nTableColumnCount; ++column) {
        const auto& description = m_pDefaultPrivateArray[static_cast<size_t>(column)];
        items.append(new QStandardItem(description.strValue));
    }
    appendRow(items);
}

void CPulseTable::slt_insert(std::initializer_list<QString> texts)
{
    if (static_cast<int>(texts.size()) != m_nTableColumnCount)
        return slt_insert();
    if (itemModel() == nullptr)
        return;

    QList<QStandardItem*> items;
    for (const QString& text : texts)
        items.append(new QStandardItem(text));
    appendRow(items);
}

void CPulseTable::slt_remove()
{
    if (itemModel() == nullptr)
        return;

    clearSelection();
    itemModel()->removeRow(itemModel()->rowCount() - 1);
}

void CPulseTable::setDisabled(bool disabled, int column, QString disabledDefaultText)
{
    QStandardItemModel* items = itemModel();
    if (items == nullptr)
        return;

    for (int row = 1; row < items->rowCount(); ++row) {
        if (QStandardItem* item = items->item(row, column))
            item->setEnabled(!disabled);
    }
    if (!disabled) {
        disconnect(items, &QStandardItemModel::itemChanged, this,
                   &CPulseTable::slt_itemDataChanged);
        return;
    }

    // The texts are gaps, whichever column is disabled.
    if (disabledDefaultText.isEmpty())
        disabledDefaultText = items->index(0, GapColumn).data().toString();
    writeGaps(disabledDefaultText, column);
    disconnect(items, &QStandardItemModel::itemChanged, nullptr, nullptr);
    connect(items, &QStandardItemModel::itemChanged, this, &CPulseTable::slt_itemDataChanged);
}

void CPulseTable::writeGaps(const QString& text, int column)
{
    QStandardItemModel* items = itemModel();
    for (int row = 1; row < items->rowCount(); ++row)
        items->setData(items->index(row, column), text, Qt::DisplayRole);
}

void CPulseTable::slt_itemDataChanged(QStandardItem* item)
{
    if (item->row() != 0 || item->column() != GapColumn || itemModel() == nullptr)
        return;

    writeGaps(itemModel()->index(0, GapColumn).data().toString(), GapColumn);
}
