// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "crealtableview.h"

#include "tabledelegates.h"

#include <algorithm>

namespace appPlugins {

CRealTableView::CRealTableView(QWidget* parent, const int& tableColumnCount,
                               RealPrivate* defaultPrivateArray)
    : CTableView(parent, tableColumnCount)
    , m_pDefaultPrivateArray(new RealPrivate[static_cast<size_t>(tableColumnCount)])
{
    std::copy_n(defaultPrivateArray, m_nTableColumnCount, m_pDefaultPrivateArray.get());
    for (int column = 0; column < m_nTableColumnCount; ++column) {
        const auto& description = m_pDefaultPrivateArray[static_cast<size_t>(column)];
        setItemDelegateForColumn(column, new RealEditDelegate(description, this));
    }
}

CRealTableView::~CRealTableView() = default;

void CRealTableView::getDefaultRowContents(RealPrivate& contents) const
{
    contents = m_pDefaultPrivateArray[0];
}

void CRealTableView::slt_insert()
{
    QList<QStandardItem*> items;
    for (int column = 0; column < m_nTableColumnCount; ++column) {
        const auto& description = m_pDefaultPrivateArray[static_cast<size_t>(column)];
        items.append(new QStandardItem(description.strValue));
    }
    placeRow(items);
}

void CRealTableView::slt_insert(std::initializer_list<QString> texts)
{
    if (static_cast<int>(texts.size()) != m_nTableColumnCount)
        return slt_insert();

    QList<QStandardItem*> items;
    for (const QString& text : texts)
        items.append(new QStandardItem(text));
    placeRow(items);
}

void CRealTableView::setDisabled(bool disabled, int column, QString defaultText)
{
    // Whatever is disabled, the common text goes into the column of gaps.
    const int textColumn = 1;
    if (disabled && defaultText.isEmpty())
        defaultText = m_pStandardItemModel->index(0, textColumn).data().toString();

    for (int row = 0; row < m_pStandardItemModel->rowCount(); ++row) {
        if (QStandardItem* item = m_pStandardItemModel->item(row, column))
            item->setEnabled(!disabled);
        if (disabled) {
            m_pStandardItemModel->setData(m_pStandardItemModel->index(row, textColumn), defaultText,
                                          Qt::DisplayRole);
        }
    }
}

} // namespace appPlugins
