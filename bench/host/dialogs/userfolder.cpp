// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "userfolder.h"

#include "filename.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <dirent.h>

namespace HostDialogs {

namespace {

QString joined(const QString& folder, const QString& name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

// Qt's own answer for a link that leads to itself, or through a folder that is locked, is the path
// as it stands: no answer at all is what is wanted.
QString realPath(const QString& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(QFile::encodeName(path).constData(), nullptr), &std::free);
    return resolved == nullptr ? QString() : QFile::decodeName(resolved.get());
}

bool hidden(const QString& part)
{
    return part.startsWith(QLatin1Char('.'));
}

bool isText(const QString& name)
{
    return !name.contains(QChar(QChar::ReplacementCharacter));
}

FileEntry entryOf(const QFileInfo& info)
{
    return {info.fileName(), info.isDir(), info.size(), info.lastModified(), true};
}

struct FolderClosing
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

// Qt leaves out names whose bytes are no text; whoever put the file there looks for it.
QStringList namesThatAreNoText(const QString& folder)
{
    QStringList names;
    const std::unique_ptr<DIR, FolderClosing> open(
        ::opendir(QFile::encodeName(folder).constData()));
    const dirent* entry = nullptr;
    while (open != nullptr && (entry = ::readdir(open.get())) != nullptr) {
        const QByteArray bytes(entry->d_name);
        if (QFile::encodeName(QFile::decodeName(bytes)) != bytes)
            names.append(QString::fromUtf8(bytes));
    }
    return names;
}

} // namespace

QString refusalText(Refusal refusal, const QString& name)
{
    const auto about = [&name](const QString& text) { return withName(text, name); };
    switch (refusal) {
    case Refusal::Gone:
        return about(qtTrId("HOSTID_DLG_GONE"));
    case Refusal::Outside:
        return about(qtTrId("HOSTID_DLG_OUTSIDE"));
    case Refusal::IsFolder:
        return about(qtTrId("HOSTID_DLG_IS_FOLDER"));
    case Refusal::NoFile:
        return about(qtTrId("HOSTID_DLG_NO_FILE"));
    case Refusal::Exists:
        return about(qtTrId("HOSTID_DLG_EXISTS"));
    case Refusal::Unreadable:
        return about(qtTrId("HOSTID_DLG_UNREADABLE"));
    case Refusal::FolderReadOnly:
        return qtTrId("HOSTID_DLG_FOLDER_READ_ONLY");
    case Refusal::FileReadOnly:
        return about(qtTrId("HOSTID_DLG_FILE_READ_ONLY"));
    case Refusal::BadName:
        return faultText(checkName(name));
    case Refusal::None:
        break;
    }
    return {};
}

UserFolder::UserFolder(const QString& folder)
    : m_strRoot(QFileInfo(folder).isDir() ? realPath(folder) : QString())
{}

// The part of a path below the root; null for one that is not there.
QString UserFolder::below(const QString& canonicalPath) const
{
    if (m_strRoot.isEmpty() || canonicalPath.isEmpty())
        return {};
    if (canonicalPath == m_strRoot)
        return QLatin1String("");
    const QString start = joined(m_strRoot, QString());
    return canonicalPath.startsWith(start) ? canonicalPath.mid(start.size()) : QString();
}

bool UserFolder::contains(const QString& path) const
{
    const QString inside = below(realPath(path));
    const QStringList names = inside.split(QLatin1Char('/'));
    return !inside.isNull() && std::none_of(names.begin(), names.end(), hidden);
}

QString UserFolder::nearestFolder(const QString& path) const
{
    QString folder = QDir::cleanPath(path);
    while (QDir::isAbsolutePath(folder)) {
        const QFileInfo info(folder);
        if (info.isDir() && contains(folder))
            return realPath(info.filePath());
        if (info.path() == folder)
            break;
        folder = info.path();
    }
    return m_strRoot;
}

QStringList UserFolder::parts(const QString& folder) const
{
    return below(realPath(folder)).split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

QVector<FileEntry> UserFolder::entries(const QString& folder, const QStringList& suffixes) const
{
    QVector<FileEntry> found;
    if (!contains(folder))
        return found;

    const QFileInfoList infos =
        QDir(folder).entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QFileInfo& info : infos) {
        if (mayShow(info, suffixes))
            found.append(entryOf(info));
    }
    for (const QString& name : namesThatAreNoText(folder)) {
        if (hasSuffix(name, suffixes) && !hidden(name))
            found.append({name, false, 0, QDateTime(), false});
    }
    return found;
}

bool UserFolder::mayShow(const QFileInfo& info, const QStringList& suffixes) const
{
    if (!info.isDir() && !hasSuffix(info.fileName(), suffixes))
        return false;
    return !info.isSymLink() || contains(info.filePath());
}

Refusal UserFolder::mayOpen(const QString& folder, const QString& name, QString& path) const
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || hidden(name))
        return Refusal::Outside;

    const QFileInfo info(joined(folder, name));
    if (!info.exists() && !info.isSymLink())
        return isText(name) ? Refusal::Gone : Refusal::Unreadable;
    if (!contains(folder) || !contains(info.filePath()))
        return Refusal::Outside;
    if (info.isDir())
        return Refusal::IsFolder;
    if (!info.isFile())
        return Refusal::NoFile;
    if (!info.isReadable())
        return Refusal::Unreadable;
    path = realPath(info.filePath());
    return Refusal::None;
}

Refusal UserFolder::mayWriteInto(const QString& folder) const
{
    const QFileInfo info(folder);
    if (!info.isDir())
        return Refusal::Gone;
    if (!contains(folder))
        return Refusal::Outside;
    return info.isWritable() ? Refusal::None : Refusal::FolderReadOnly;
}

Refusal UserFolder::maySave(const QString& folder, const QString& name, QString& path) const
{
    if (checkName(name) != NameFault::None)
        return Refusal::BadName;
    const Refusal refused = mayWriteInto(folder);
    if (refused != Refusal::None)
        return refused;

    const QFileInfo info(joined(folder, name));
    if (!info.exists() && !info.isSymLink()) {
        path = joined(realPath(folder), name);
        return Refusal::None;
    }
    // A link that leads nowhere would make a file there.
    if (!contains(info.filePath()))
        return Refusal::Outside;
    if (info.isDir())
        return Refusal::IsFolder;
    if (!info.isFile())
        return Refusal::NoFile;
    if (!info.isWritable())
        return Refusal::FileReadOnly;
    path = realPath(info.filePath());
    return Refusal::None;
}

Refusal UserFolder::makeFolder(const QString& folder, const QString& name) const
{
    if (checkName(name) != NameFault::None)
        return Refusal::BadName;
    const Refusal refused = mayWriteInto(folder);
    if (refused != Refusal::None)
        return refused;
    const QFileInfo info(joined(folder, name));
    if (info.exists() || info.isSymLink())
        return Refusal::Exists;
    return QDir(folder).mkdir(name) ? Refusal::None : Refusal::FolderReadOnly;
}

void sortByName(QVector<FileEntry>& entries)
{
    // The machine's own locale may be none.
    QCollator order{QLocale(QLocale::English)};
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(entries.begin(), entries.end(),
              [&order](const FileEntry& one, const FileEntry& other) {
                  if (one.folder != other.folder)
                      return one.folder;
                  const int compared = order.compare(one.name, other.name);
                  return compared != 0 ? compared < 0 : one.name < other.name;
              });
}

void sortByDate(QVector<FileEntry>& entries)
{
    std::sort(entries.begin(), entries.end(), [](const FileEntry& one, const FileEntry& other) {
        if (one.folder != other.folder)
            return one.folder;
        return one.changed != other.changed ? one.changed > other.changed : one.name < other.name;
    });
}

} // namespace HostDialogs
