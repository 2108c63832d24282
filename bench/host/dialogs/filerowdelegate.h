// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace HostDialogs {

struct FileEntry;
class FileModel;

/// Draws a row of a browser.
class FileRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    FileRowDelegate(const FileModel* files, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintName(QPainter& painter, const QStyleOptionViewItem& option,
                   const QString& name) const;

    const FileModel* m_pFiles;
};

/// A size in bytes as people read it: "980 B", "1.5 kB", "12 MB"; in the user's language.
QString sizeText(qint64 bytes);

} // namespace HostDialogs
