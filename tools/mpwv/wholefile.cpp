// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <set>
#include <string>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Names of the files on their way. They are never destroyed: a signal may come while the process
// ends.
struct Unfinished
{
    std::mutex mutex;
    std::set<std::string> paths;
};

Unfinished& unfinished()
{
    static auto* const files = new Unfinished;
    return *files;
}

std::string nativePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

// Signals that are ignored, as behind nohup, stay so.
sigset_t endingSignals()
{
    sigset_t signalSet;
    sigemptyset(&signalSet);
    for (const int number : {SIGHUP, SIGINT, SIGTERM}) {
        struct sigaction action = {};
        if (sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN)
            sigaddset(&signalSet, number);
    }
    return signalSet;
}

// The lock is kept to the end, so that no file begins after the last one has gone.
void waitForEnd(sigset_t signalSet)
{
    int number = 0;
    if (sigwait(&signalSet, &number) != 0)
        return;
    const std::lock_guard<std::mutex> lock(unfinished().mutex);
    for (const std::string& path : unfinished().paths)
        ::unlink(path.c_str());
    std::signal(number, SIG_DFL);
    sigset_t own;
    sigemptyset(&own);
    sigaddset(&own, number);
    pthread_sigmask(SIG_UNBLOCK, &own, nullptr);
    ::raise(number);
}

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

void removeUnfinishedOnSignals()
{
    const sigset_t signalSet = endingSignals();
    // Threads inherit the mask: the waiting one alone sees these signals.
    if (pthread_sigmask(SIG_BLOCK, &signalSet, nullptr) == 0)
        std::thread(waitForEnd, signalSet).detach();
}

SignalsDelayed::SignalsDelayed()
    : m_lock(unfinished().mutex)
{}

WholeFile::WholeFile(const QString& path)
    : m_strPath(path)
{}

WholeFile::~WholeFile()
{
    if (!m_bPending)
        return;
    QFile::remove(m_strWorkPath);
    forget();
}

void WholeFile::forget()
{
    const SignalsDelayed delayed;
    unfinished().paths.erase(nativePath(m_strWorkPath));
    m_bPending = false;
}

// The file and its name in the list come together, as seen from a signal.
int WholeFile::openPassing()
{
    const SignalsDelayed delayed;
    const int descriptor = createNew(m_strWorkPath);
    if (descriptor >= 0)
        unfinished().paths.insert(nativePath(m_strWorkPath));
    return descriptor;
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
        descriptor = openPassing();
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
    forget();
    return QString();
}
