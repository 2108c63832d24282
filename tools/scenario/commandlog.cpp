// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandlog.h"

#include "transcript.h"

#include <QFile>

CommandLog::CommandLog(const QString& fileName)
    : m_strFileName(fileName)
{}

bool CommandLog::find(const ScenarioText& command, const IdentifierTexts& texts)
{
    read();
    const int index = indexOf(command, texts);
    if (index < 0)
        return false;
    m_nNext = index + 1;
    return true;
}

bool CommandLog::contains(const ScenarioText& command, const IdentifierTexts& texts)
{
    read();
    return indexOf(command, texts) >= 0;
}

QStringList CommandLog::remaining() const
{
    return m_commands.mid(m_nNext);
}

// Takes whole lines alone: the last one may still be being written.
void CommandLog::read()
{
    QFile file(m_strFileName);
    if (m_strFileName.isEmpty() || !file.open(QIODevice::ReadOnly) || !file.seek(m_nRead))
        return;
    for (QByteArray line = file.readLine(); line.endsWith('\n'); line = file.readLine()) {
        m_nRead += line.size();
        line.chop(1);
        TranscriptEvent event;
        if (parseTranscriptLine(line, event) && event.mark == TranscriptEvent::Command)
            m_commands.append(QString::fromUtf8(event.bytes).simplified());
    }
}

int CommandLog::indexOf(const ScenarioText& command, const IdentifierTexts& texts) const
{
    QRegularExpression pattern = command.pattern(texts);
    pattern.setPatternOptions(pattern.patternOptions() | QRegularExpression::CaseInsensitiveOption);
    for (int index = m_nNext; index < m_commands.size(); ++index) {
        if (pattern.match(m_commands.at(index)).hasMatch())
            return index;
    }
    return -1;
}
