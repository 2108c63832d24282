// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "userfolder.h"

#include <QAbstractListModel>

namespace HostDialogs {

/// The rows of a browser. A row's text is safe to show, its entry has the true name.
class FileModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit FileModel(QObject* parent);

    /// Takes the place of all rows.
    void setEntries(const QVector<FileEntry>& entries);
    /// The entry of a row; nothing (an empty name) for a row that is not there.
    FileEntry entry(int row) const { return m_entries.value(row); }
    /// The row of a name, -1 for none.
    int rowOf(const QString& name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QVector<FileEntry> m_entries;
};

} // namespace HostDialogs
