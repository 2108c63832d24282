// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorhost.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QToolButton>

/// Setup files, opened and saved as a user does it.
namespace SetupFiles {

const QString Folder = QStringLiteral("/mnt/user-data/");

inline bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// All files and folders of the user's folder, relative to it and sorted; folders end in "/".
inline QStringList inFolder()
{
    QStringList names;
    QDirIterator entries(Folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = QDir(Folder).relativeFilePath(entries.next());
        names.append(entries.fileInfo().isDir() ? name + QLatin1Char('/') : name);
    }
    names.sort();
    return names;
}

inline void emptyFolder()
{
    QDirIterator entries(Folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileInfo().isDir())
            QDir(entries.filePath()).removeRecursively();
        else
            QFile::remove(entries.filePath());
    }
}

inline QByteArray bytesOf(const QJsonObject& pulses)
{
    return QJsonDocument(QJsonObject{{QStringLiteral("multiple pulses"), pulses}}).toJson();
}

/// The pulses of a setup file's content.
inline QJsonObject pulsesOf(const QByteArray& bytes)
{
    return QJsonDocument::fromJson(bytes)
        .object()
        .value(QStringLiteral("multiple pulses"))
        .toObject();
}

inline void answerBrowser(const QString& path)
{
    EditorHost::record().browserResult = 1;
    EditorHost::record().browserPath = path;
}

/// Taps Open and chooses a file.
inline void open(const EditorHost& host, const QString& path)
{
    answerBrowser(path);
    FrontPanel::tap(host.button(EditorHost::Open));
}

/// Taps Save as and chooses a name.
inline void saveAs(const EditorHost& host, const QString& path)
{
    answerBrowser(path);
    FrontPanel::tap(host.button(EditorHost::SaveAs));
}

/// Writes a file of these bytes and opens it; an illegal file where it cannot be written.
inline void openBytes(const EditorHost& host, const QByteArray& bytes)
{
    const QString path = Folder + QStringLiteral("opened");
    write(path, bytes);
    open(host, path);
    QFile::remove(path);
}

inline void openPulses(const EditorHost& host, const QJsonObject& pulses)
{
    openBytes(host, bytesOf(pulses));
}

/// What the editor shows, by way of a setup file that is saved and read.
inline QJsonObject shown(const EditorHost& host)
{
    const QString path = Folder + QStringLiteral("shown");
    saveAs(host, path);
    const QJsonObject pulses = pulsesOf(read(path));
    QFile::remove(path);
    return pulses;
}

} // namespace SetupFiles
