// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

class QFileInfo;

namespace HostDialogs {

/// One row of a browser.
struct FileEntry
{
    QString name;
    bool folder = false;
    qint64 size = 0;   ///< bytes
    QDateTime changed; ///< local time
    /// False for a name that is no text: it can be shown and not be asked for.
    bool reachable = true;
};

/// Why a file or folder is not opened or written.
enum class Refusal {
    None,
    Gone,
    Outside,
    IsFolder,
    NoFile,
    Exists,
    Unreadable,
    FolderReadOnly,
    FileReadOnly,
    BadName
};

/// The refusal in the user's words, about the file of this name.
QString refusalText(Refusal refusal, const QString& name);

/// The folder with the user's files, and what may be shown and touched of it: what lies in it when
/// every link is followed, apart from files and folders whose name begins with a dot.
class UserFolder
{
public:
    /// A folder that is missing holds nothing.
    explicit UserFolder(const QString& folder);

    /// Its path without links; empty while it is missing.
    QString root() const { return m_strRoot; }

    /// True for a path that exists and, with every link followed, lies inside and is not hidden.
    bool contains(const QString& path) const;
    /// @p path without links if it is a folder inside, else the nearest folder above it that is
    /// one; at last the root.
    QString nearestFolder(const QString& path) const;
    /// Names of the folders from the root, which is not among them, down to @p folder.
    QStringList parts(const QString& folder) const;

    /// What may be shown of @p folder: folders, and regular files with one of @p suffixes; nothing
    /// of a folder that is not inside. In no order.
    QVector<FileEntry> entries(const QString& folder, const QStringList& suffixes) const;

    /// Whether the file @p name of @p folder may be opened now; its path without links goes into
    /// @p path when it may.
    Refusal mayOpen(const QString& folder, const QString& name, QString& path) const;
    /// Whether a file may be written now; likewise. The file need not exist.
    Refusal maySave(const QString& folder, const QString& name, QString& path) const;
    /// Makes a folder. It is there, and inside, if nothing is refused.
    Refusal makeFolder(const QString& folder, const QString& name) const;

private:
    QString below(const QString& canonicalPath) const;
    bool mayShow(const QFileInfo& info, const QStringList& suffixes) const;
    Refusal mayWriteInto(const QString& folder) const;

    QString m_strRoot;
};

/// Puts folders first; then by name, as people count ("2" before "10").
void sortByName(QVector<FileEntry>& entries);
/// Puts folders first; then the newest first.
void sortByDate(QVector<FileEntry>& entries);

} // namespace HostDialogs
