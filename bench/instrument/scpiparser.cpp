// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpiparser.h"

#include "scpinumber.h"
#include "scpitext.h"

#include <algorithm>

namespace {

class Scanner
{
public:
    explicit Scanner(const QByteArray& text)
        : m_text(text)
    {}

    bool atEnd() const { return m_nPos >= m_text.size(); }
    bool atUnitEnd() const { return atEnd() || peek() == ';'; }

    void skipBlanks()
    {
        while (!atEnd() && ScpiText::isBlank(peek()))
            ++m_nPos;
    }

    /// Moves behind the next semicolon that is not part of a quoted string.
    void skipUnit()
    {
        char quote = 0;
        for (; !atEnd() && (quote != 0 || peek() != ';'); ++m_nPos) {
            if (quote != 0)
                quote = peek() == quote ? 0 : quote;
            else if (ScpiText::isQuote(peek()))
                quote = peek();
        }
        ++m_nPos;
    }

    int readHeader(ScpiUnit& unit);
    int readParameters(ScpiUnit& unit);

private:
    char peek(int ahead = 0) const
    {
        return m_nPos + ahead < m_text.size() ? m_text.at(m_nPos + ahead) : '\n';
    }

    bool accept(char c)
    {
        if (peek() != c)
            return false;
        ++m_nPos;
        return true;
    }

    QByteArray readWord()
    {
        const int begin = m_nPos;
        while (ScpiText::isWord(peek()))
            ++m_nPos;
        return m_text.mid(begin, m_nPos - begin);
    }

    int readMnemonic(ScpiUnit& unit, const QByteArray& mark);
    int readParameter(ScpiParameter& parameter);
    int readCharacterData(ScpiParameter& parameter);
    int readString(ScpiParameter& parameter);
    int readHash(ScpiParameter& parameter);
    int readDefiniteBlock(ScpiParameter& parameter);
    int readIndefiniteBlock(ScpiParameter& parameter);
    int readNumber(ScpiParameter& parameter);
    bool atParameterEnd() const
    {
        return atUnitEnd() || peek() == ',' || ScpiText::isBlank(peek());
    }

    const QByteArray& m_text;
    int m_nPos = 0;
};

int Scanner::readHeader(ScpiUnit& unit)
{
    unit.isRooted = accept(':');
    const bool isCommon = !unit.isRooted && accept('*');
    int error = readMnemonic(unit, isCommon ? QByteArrayLiteral("*") : QByteArray());
    while (error == 0 && !isCommon && accept(':'))
        error = readMnemonic(unit, QByteArray());
    if (error != 0)
        return error;
    unit.isQuery = accept('?');
    if (atUnitEnd() || ScpiText::isBlank(peek()))
        return 0;
    return static_cast<unsigned char>(peek()) > 126 ? -101 : -111;
}

int Scanner::readMnemonic(ScpiUnit& unit, const QByteArray& mark)
{
    if (atUnitEnd())
        return -102;
    if (!ScpiText::isLetter(peek()))
        return -101;
    unit.nodes.append(mark + readWord().toUpper());
    return 0;
}

int Scanner::readParameters(ScpiUnit& unit)
{
    skipBlanks();
    if (atUnitEnd())
        return 0;
    do {
        skipBlanks();
        ScpiParameter parameter;
        const int error = readParameter(parameter);
        if (error != 0)
            return error;
        unit.parameters.append(parameter);
        skipBlanks();
    } while (accept(','));
    return atUnitEnd() ? 0 : -103;
}

int Scanner::readParameter(ScpiParameter& parameter)
{
    const char first = peek();
    if (atUnitEnd() || first == ',')
        return -102;
    if (ScpiText::isLetter(first))
        return readCharacterData(parameter);
    if (ScpiText::isQuote(first))
        return readString(parameter);
    if (first == '#')
        return readHash(parameter);
    if (ScpiText::isDigit(first) || first == '+' || first == '-' || first == '.')
        return readNumber(parameter);
    return first == '(' ? -178 : -101;
}

int Scanner::readCharacterData(ScpiParameter& parameter)
{
    parameter.kind = ScpiParameter::Word;
    parameter.text = readWord();
    return atParameterEnd() ? 0 : -141;
}

int Scanner::readString(ScpiParameter& parameter)
{
    parameter.kind = ScpiParameter::String;
    const char quote = peek();
    ++m_nPos;
    while (!atEnd()) {
        const char c = peek();
        ++m_nPos;
        if (c == quote && !accept(quote))
            return 0;
        parameter.text.append(c);
    }
    return -151;
}

int Scanner::readHash(ScpiParameter& parameter)
{
    const char kind = peek(1);
    if (kind >= '1' && kind <= '9')
        return readDefiniteBlock(parameter);
    if (kind == '0')
        return readIndefiniteBlock(parameter);
    if (!QByteArrayLiteral("hqbHQB").contains(kind))
        return -161;
    const ScpiNumberResult result = readScpiRadixNumber(m_text, m_nPos, parameter);
    m_nPos = result.end;
    return result.errorNumber == 0 && !atParameterEnd() ? -121 : result.errorNumber;
}

int Scanner::readDefiniteBlock(ScpiParameter& parameter)
{
    const int digits = peek(1) - '0';
    const QByteArray length = m_text.mid(m_nPos + 2, digits);
    const bool isNumber = std::all_of(length.cbegin(), length.cend(), ScpiText::isDigit);
    const int count = length.toInt();
    m_nPos += 2 + digits;
    if (!isNumber || length.size() != digits || count > m_text.size() - m_nPos)
        return -161;
    parameter.kind = ScpiParameter::Block;
    parameter.text = m_text.mid(m_nPos, count);
    m_nPos += count;
    return 0;
}

int Scanner::readIndefiniteBlock(ScpiParameter& parameter)
{
    parameter.kind = ScpiParameter::Block;
    parameter.text = m_text.mid(m_nPos + 2);
    m_nPos = m_text.size();
    return 0;
}

int Scanner::readNumber(ScpiParameter& parameter)
{
    const ScpiNumberResult result = readScpiNumber(m_text, m_nPos, parameter);
    m_nPos = result.end;
    return result.errorNumber == 0 && !atParameterEnd() ? -121 : result.errorNumber;
}

} // namespace

QVector<ScpiUnit> parseScpiMessage(const QByteArray& message)
{
    QVector<ScpiUnit> units;
    Scanner scanner(message);
    for (scanner.skipBlanks(); !scanner.atEnd(); scanner.skipBlanks()) {
        if (!scanner.atUnitEnd()) {
            ScpiUnit unit;
            unit.errorNumber = scanner.readHeader(unit);
            if (unit.errorNumber == 0)
                unit.errorNumber = scanner.readParameters(unit);
            units.append(unit);
        }
        scanner.skipUnit();
    }
    return units;
}
