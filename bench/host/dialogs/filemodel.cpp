// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filemodel.h"

#include "filename.h"

namespace HostDialogs {

FileModel::FileModel(QObject* parent)
    : QAbstractListModel(parent)
{}

void FileModel::setEntries(const QVector<FileEntry>& entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

int FileModel::rowOf(const QString& name) const
{
    for (int row = 0; row < m_entries.size(); ++row) {
        if (m_entries.at(row).name == name)
            return row;
    }
    return -1;
}

int FileModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant FileModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    return shownName(m_entries.at(index.row()).name);
}

} // namespace HostDialogs
