// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

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
    QString m_strPath;
    QString m_strWorkPath;
    bool m_bPending = false;
};
