// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariowords.h"

namespace {

const QLatin1Char Quote('"');
const QLatin1Char Brace('{');

class LineSplitter
{
public:
    LineSplitter(const QString& line, QVector<ScenarioWord>& words)
        : m_line(line)
        , m_words(words)
    {}

    QString split()
    {
        QString error;
        while (error.isEmpty() && skipBlanks()) {
            if (m_line.at(m_at) == Quote)
                error = takeQuoted();
            else if (m_line.at(m_at) == Brace)
                error = takeIdentifier();
            else
                takeBare();
        }
        return error;
    }

private:
    bool skipBlanks()
    {
        while (m_at < m_line.size() && m_line.at(m_at).isSpace())
            ++m_at;
        return m_at < m_line.size() && m_line.at(m_at) != QLatin1Char('#');
    }

    QString takeQuoted()
    {
        const int begin = ++m_at;
        while (m_at < m_line.size() && m_line.at(m_at) != Quote)
            m_at += m_line.at(m_at) == QLatin1Char('\\') ? 2 : 1;
        if (m_at >= m_line.size())
            return QStringLiteral("the text has no end");
        return addText(m_line.mid(begin, m_at++ - begin));
    }

    QString takeIdentifier()
    {
        const int begin = m_at;
        const int end = m_line.indexOf(QLatin1Char('}'), begin);
        m_at = end < 0 ? m_line.size() : end + 1;
        return addText(m_line.mid(begin, m_at - begin));
    }

    void takeBare()
    {
        const int begin = m_at;
        while (m_at < m_line.size() && !m_line.at(m_at).isSpace())
            ++m_at;
        ScenarioWord word;
        word.bare = m_line.mid(begin, m_at - begin);
        m_words.append(word);
    }

    QString addText(const QString& body)
    {
        ScenarioWord word;
        word.isText = true;
        QString error = readScenarioText(body, word.text);
        m_words.append(word);
        return error;
    }

    const QString& m_line;
    QVector<ScenarioWord>& m_words;
    int m_at = 0;
};

} // namespace

QString splitScenarioLine(const QString& line, QVector<ScenarioWord>& words)
{
    words.clear();
    return LineSplitter(line, words).split();
}
