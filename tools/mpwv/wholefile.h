// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <mutex>

/// From here on SIGHUP, SIGINT and SIGTERM (those that are not ignored) remove every file that is
/// still on its way and then end the process as they would have without this call. To be called
/// once, before any other thread begins: a thread of its own waits for them.
void removeUnfinishedOnSignals();

/// While one of these exists, the signals of removeUnfinishedOnSignals() wait, and so does every
/// WholeFile that is opened or goes in another thread.
class SignalsDelayed
{
public:
    SignalsDelayed();

private:
    std::unique_lock<std::mutex> m_lock;
};

/// A file that appears under its name only when it is complete: it is written under a passing name
/// in the same folder and renamed at the end. What already has the name and is no file (a pipe, a
/// device) is written in place.
class WholeFile
{
public:
    explicit WholeFile(const QString& path);
    /// Removes what has not been committed.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    /// Makes the file to write to. Returns an empty text or the reason.
    QString open();

    /// The name to write under; valid after open().
    QString workPath() const { return m_strWorkPath; }

    /// True when the target is written in place, being no file.
    bool isInPlace() const { return m_strWorkPath == m_strPath; }

    /// Gives the complete file its name. Returns an empty text or the reason.
    QString commit();

private:
    int openPassing();
    void forget();

    QString m_strPath;
    QString m_strWorkPath;
    bool m_bPending = false;
};
