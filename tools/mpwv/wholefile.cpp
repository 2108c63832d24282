// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

// No random numbers are needed: a name that exists already is passed over.
QString passingName(const QFileInfo& target)
{
    static std::atomic<unsigned> counter(0);
    return QStringLiteral("%1/.%2.%3-%4.tmp")
        .arg(target.path(), target.fileName().left(200),
             QString::number(QCoreApplication::applicationPid()), QString::number(counter++));
}

// The library's temporary files are readable by their owner alone; outputs follow the umask.
int createNew(const QString& path)
{
    return ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC,
                  0666);
}

} // namespace

WholeFile::WholeFile(const QString& path)
    : m_strPath(path)
{}

WholeFile::~WholeFile()
{
    if (m_bPending)
        QFile::remove(m_strWorkPath);
}

QString WholeFile::open()
{
    const QFileInfo target(m_strPath);
    if (target.isDir())
        return QStringLiteral("is a folder");
    if (target.exists() && !target.isFile()) {
        m_strWorkPath = m_strPath;
        return QString();
    }

    int descriptor = -1;
    do {
        m_strWorkPath = passingName(target);
        descriptor = createNew(m_strWorkPath);
    } while (descriptor < 0 && errno == EEXIST);
    if (descriptor < 0)
        return qt_error_string(errno);
    ::close(descriptor);
    m_bPending = true;
    return QString();
}

QString WholeFile::commit()
{
    if (isInPlace())
        return QString();
    const QByteArray from = QFile::encodeName(m_strWorkPath);
    if (std::rename(from.constData(), QFile::encodeName(m_strPath).constData()) != 0)
        return qt_error_string(errno);
    m_bPending = false;
    return QString();
}
