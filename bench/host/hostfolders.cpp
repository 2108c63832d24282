// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostfolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace {

QString firstFolder(const QString& programs, const QStringList& places)
{
    for (const QString& place : places) {
        const QString folder = QDir::cleanPath(programs + QLatin1Char('/') + place);
        if (QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::cleanPath(programs + QLatin1Char('/') + places.last());
}

QString writersObjection(const QString& folder, const struct stat& state)
{
    return (state.st_mode & (S_IWGRP | S_IWOTH)) == 0
               ? QString()
               : QStringLiteral("others can write to the folder %1").arg(folder);
}

} // namespace

QString HostFolders::plugins(const QString& programs)
{
    return firstFolder(programs,
                       {QStringLiteral(MPB_PLUGINS_FROM_PROGRAMS), QStringLiteral("../lib")});
}

QString HostFolders::translations(const QString& programs)
{
    const QString named = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
    if (!named.isEmpty())
        return named;
    return firstFolder(programs, {QStringLiteral("../share/multi-pulse-builder/translations"),
                                  QStringLiteral("../content/translations")});
}

QString HostFolders::make(const QString& folder)
{
    const QFileInfo info(folder);
    if (info.isDir())
        return QString();
    if (info.exists() || info.isSymLink())
        return QStringLiteral("%1: not a folder").arg(folder);
    if (::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0)
        return QString();
    return QStringLiteral("%1: %2").arg(folder, QString::fromLocal8Bit(std::strerror(errno)));
}

QString HostFolders::userDataObjection(const QString& folder)
{
    struct stat state = {};
    return ::stat(QFile::encodeName(folder).constData(), &state) == 0
               ? writersObjection(folder, state)
               : QString();
}

QString HostFolders::keypadObjection(const QString& folder)
{
    struct stat state = {};
    if (::stat(QFile::encodeName(folder).constData(), &state) != 0 || !S_ISDIR(state.st_mode))
        return QStringLiteral("%1 is not a folder").arg(folder);
    if (state.st_uid != ::geteuid())
        return QStringLiteral("the folder %1 belongs to somebody else").arg(folder);
    return writersObjection(folder, state);
}
