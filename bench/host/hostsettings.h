// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What the host remembers from one start to the next.
struct HostSettings
{
    QString language;   ///< one of Languages::all(), or empty
    QString lastFolder; ///< of the file browsers, or empty
    QString lastPlugin; ///< file name of the plug-in that was opened last, or empty

    bool operator==(const HostSettings& other) const;
};

/// The file that holds them, in a folder of the host's own among the user's files.
class HostSettingsFile
{
public:
    explicit HostSettingsFile(const QString& userData);

    QString path() const;

    /// What the file holds. A file that is not there is an empty one. What cannot be read, or makes
    /// no sense, is left at its default and told in @p problem.
    HostSettings load(QString& problem) const;

    /// Writes the file as a whole or not at all. Returns what is wrong, or an empty text.
    QString save(const HostSettings& settings) const;

private:
    QString folder() const;
    QString prepareFolder() const;

    QString m_strUserData;
};
