// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariotext.h"

#include "identifiertexts.h"

namespace {

const QLatin1String AnyWord("...");

// Stands for anything until the white space around it has been dealt with.
const QChar AnyMark(0xfffc);

class PieceReader
{
public:
    explicit PieceReader(ScenarioText& text)
        : m_text(text)
    {}

    QString read(const QString& body)
    {
        for (int at = 0; at < body.size(); ++at) {
            const QChar next = body.at(at);
            if (next == QLatin1Char('\\')) {
                if (++at == body.size())
                    return QStringLiteral("a backslash wants a character behind it");
                m_plain += body.at(at);
            } else if (body.midRef(at, AnyWord.size()) == AnyWord) {
                add(ScenarioText::Anything, {});
                at += AnyWord.size() - 1;
            } else if (next == QLatin1Char('{')) {
                const int end = body.indexOf(QLatin1Char('}'), at);
                if (end <= at + 1)
                    return QStringLiteral("{ wants an identifier and }");
                add(ScenarioText::Identifier, body.mid(at + 1, end - at - 1));
                at = end;
            } else {
                m_plain += next;
            }
        }
        endPlain();
        return {};
    }

private:
    void add(ScenarioText::Kind kind, const QString& text)
    {
        endPlain();
        m_text.pieces.append({kind, text});
    }

    void endPlain()
    {
        if (!m_plain.isEmpty())
            m_text.pieces.append({ScenarioText::Plain, m_plain});
        m_plain.clear();
    }

    ScenarioText& m_text;
    QString m_plain;
};

// A program puts its values where %1 stands.
QString withoutValues(QString text, const QString& any)
{
    static const QRegularExpression value(QStringLiteral("%[1-9]"));
    return text.replace(value, any);
}

QString joined(const QVector<ScenarioText::Piece>& pieces, const IdentifierTexts& texts,
               const QString& any)
{
    QString whole;
    for (const ScenarioText::Piece& piece : pieces) {
        if (piece.kind == ScenarioText::Anything)
            whole += any;
        else
            whole += piece.kind == ScenarioText::Plain ? piece.text
                                                       : withoutValues(texts.text(piece.text), any);
    }
    return whole;
}

} // namespace

ScenarioText ScenarioText::plain(const QString& text)
{
    return {{{Plain, text}}};
}

QStringList ScenarioText::identifiers() const
{
    QStringList names;
    for (const Piece& piece : pieces) {
        if (piece.kind == Identifier)
            names.append(piece.text);
    }
    return names;
}

QString ScenarioText::shown(const IdentifierTexts& texts) const
{
    return joined(pieces, texts, AnyWord);
}

QRegularExpression ScenarioText::pattern(const IdentifierTexts& texts) const
{
    QStringList parts = joined(pieces, texts, QString(AnyMark)).simplified().split(AnyMark);
    for (QString& part : parts)
        part = QRegularExpression::escape(part);
    return QRegularExpression(QRegularExpression::anchoredPattern(parts.join(QStringLiteral(".*"))),
                              QRegularExpression::DotMatchesEverythingOption);
}

QString readScenarioText(const QString& body, ScenarioText& text)
{
    text.pieces.clear();
    return PieceReader(text).read(body);
}
