// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A plug-in folder for one test, filled from the plug-ins that were built for the tests.
class TrialFolder
{
public:
    QString path() const { return m_folder.path(); }

    /// Where a built plug-in lies.
    static QString built(const QString& name)
    {
        return qEnvironmentVariable("MPB_TRIAL_PLUGINS") + QStringLiteral("/lib%1.so").arg(name);
    }

    /// Copies one into the folder and returns its path there.
    QString add(const QString& name) const
    {
        const QString path = m_folder.filePath(QStringLiteral("lib%1.so").arg(name));
        if (!QFile::copy(built(name), path))
            qFatal("cannot copy %s", qPrintable(built(name)));
        return path;
    }

    /// Writes a file of that name with these bytes.
    QString write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    /// The first @p part of a built plug-in's bytes, from 0 to 1.
    static QByteArray beginning(const QString& name, double part)
    {
        QFile file(built(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        const QByteArray bytes = file.readAll();
        return bytes.left(int(bytes.size() * part));
    }

private:
    QTemporaryDir m_folder;
};
