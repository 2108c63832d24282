// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "scenariotext.h"

#include <QString>
#include <QStringList>

class IdentifierTexts;

/// The commands in an instrument's transcript, as they come. Expected ones are taken in order: each
/// is looked for behind the last one that was found.
class CommandLog
{
public:
    /// Reads nothing yet. @p fileName may be empty or not be there: it has no command then.
    explicit CommandLog(const QString& fileName);

    /// Whether such a command is there behind the last one that was found; it then becomes that
    /// one. Case and the amount of white space do not count.
    bool find(const ScenarioText& command, const IdentifierTexts& texts);
    /// The same without taking it.
    bool contains(const ScenarioText& command, const IdentifierTexts& texts);

    /// The commands behind the last one that was found.
    QStringList remaining() const;

private:
    void read();
    int indexOf(const ScenarioText& command, const IdentifierTexts& texts) const;

    QString m_strFileName;
    qint64 m_nRead = 0;
    QStringList m_commands;
    int m_nNext = 0;
};
