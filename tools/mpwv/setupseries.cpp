// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setupseries.h"

#include "input.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

namespace {

QString named(const QString& path, const QString& reason)
{
    return printable(path) + QLatin1String(": ") + reason;
}

// Files on their way into a folder: what has arrived is taken back unless all have.
class Arrivals
{
public:
    explicit Arrivals(const QString& folder)
        : m_folder(folder)
    {}
    ~Arrivals()
    {
        for (const QString& name : qAsConst(m_names))
            m_folder.remove(name);
    }
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;

    QString take(const QDir& from, const QString& name)
    {
        // Renaming through this library never replaces a file.
        QFile file(from.filePath(name));
        if (!file.rename(m_folder.filePath(name)))
            return named(m_folder.filePath(name), m_folder.exists(name)
                                                      ? QStringLiteral("exists already")
                                                      : file.errorString());
        m_names.append(name);
        return QString();
    }
    void keep() { m_names.clear(); }

private:
    QDir m_folder;
    QStringList m_names;
};

QString writeInto(const QDir& folder, int count,
                  const std::function<SeriesFile(int index)>& makeFile)
{
    for (int i = 0; i < count; ++i) {
        const SeriesFile made = makeFile(i);
        QFile file(folder.filePath(made.name));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) ||
            file.write(made.bytes) != made.bytes.size() || !file.flush())
            return named(made.name, file.errorString());
    }
    return QString();
}

QString moveAll(const QDir& from, const QString& folder)
{
    Arrivals arrivals(folder);
    const QStringList names = from.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QString reason = arrivals.take(from, name);
        if (!reason.isEmpty())
            return reason;
    }
    arrivals.keep();
    return QString();
}

} // namespace

QString writeSeries(const QString& folder, int count,
                    const std::function<SeriesFile(int index)>& makeFile)
{
    // All of the files or none, whatever ends the process.
    const SignalsDelayed delayed;
    const bool existed = QFileInfo::exists(folder);
    if (!QDir().mkpath(folder))
        return named(folder, QStringLiteral("cannot be made a folder"));

    QString reason;
    {
        QTemporaryDir passing(QDir(folder).filePath(QStringLiteral(".series-XXXXXX")));
        reason = passing.isValid() ? writeInto(QDir(passing.path()), count, makeFile)
                                   : named(folder, passing.errorString());
        if (reason.isEmpty())
            reason = moveAll(QDir(passing.path()), folder);
    }
    if (!reason.isEmpty() && !existed)
        QDir().rmdir(folder);
    return reason;
}
