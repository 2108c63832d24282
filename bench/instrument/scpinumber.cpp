// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scpinumber.h"

#include "scpitext.h"

#include <cmath>

namespace {

const int MaxExponent = 32000;
const int MaxMantissaDigits = 255;

struct Multiplier
{
    const char* name;
    int exponent;
};

const Multiplier multipliers[] = {
    {"", 0},  {"EX", 18}, {"PE", 15}, {"T", 12}, {"G", 9},   {"MA", 6},
    {"K", 3}, {"M", -3},  {"U", -6},  {"N", -9}, {"P", -12}, {"F", -15},
};

const char* const units[] = {"HZ", "OHM", "VPP", "PCT", "DEG", "S", "V", "A"};

/// A number's text, taken apart.
class NumberScanner
{
public:
    NumberScanner(const QByteArray& text, int begin)
        : m_text(text)
        , m_nPos(begin)
    {}

    int position() const { return m_nPos; }
    QByteArray unit() const { return m_unit; }

    int scan()
    {
        scanMantissa();
        if (m_nDigits == 0)
            return -121;
        if (m_nDigits > MaxMantissaDigits)
            return -124;
        scanExponent();
        if (std::abs(m_nExponent) > MaxExponent)
            return -123;
        return scanUnit() ? 0 : -131;
    }

    /// The multiplier is added to the decimal exponent instead of being multiplied, so that "100us"
    /// is the same double as "100e-6".
    double value() const
    {
        return (m_mantissa + 'e' + QByteArray::number(m_nExponent + m_nUnitExponent)).toDouble();
    }

private:
    char peek(int ahead = 0) const
    {
        return m_nPos + ahead < m_text.size() ? m_text.at(m_nPos + ahead) : '\n';
    }

    void scanMantissa()
    {
        const int begin = m_nPos;
        if (peek() == '+' || peek() == '-')
            ++m_nPos;
        scanDigits();
        if (peek() == '.') {
            ++m_nPos;
            scanDigits();
        }
        m_mantissa = m_text.mid(begin, m_nPos - begin);
    }

    void scanDigits()
    {
        for (; ScpiText::isDigit(peek()); ++m_nPos)
            ++m_nDigits;
    }

    void scanExponent()
    {
        const bool isSigned = peek(1) == '+' || peek(1) == '-';
        if ((peek() | 0x20) != 'e' || !ScpiText::isDigit(peek(isSigned ? 2 : 1)))
            return;
        const bool isNegative = peek(1) == '-';
        m_nPos += isSigned ? 2 : 1;
        for (; ScpiText::isDigit(peek()); ++m_nPos)
            m_nExponent = qMin(m_nExponent * 10 + (peek() - '0'), MaxExponent + 1);
        m_nExponent = isNegative ? -m_nExponent : m_nExponent;
    }

    bool scanUnit()
    {
        int begin = m_nPos;
        while (begin < m_text.size() && ScpiText::isBlank(m_text.at(begin)))
            ++begin;
        int end = begin;
        while (end < m_text.size() && ScpiText::isLetter(m_text.at(end)))
            ++end;
        if (end == begin)
            return true;
        m_nPos = end;
        return findUnit(m_text.mid(begin, end - begin).toUpper());
    }

    bool findUnit(const QByteArray& word)
    {
        for (const char* unit : units) {
            const int prefixLength = word.size() - static_cast<int>(qstrlen(unit));
            if (word.endsWith(unit) && findMultiplier(word.left(prefixLength), unit)) {
                m_unit = unit;
                return true;
            }
        }
        return false;
    }

    bool findMultiplier(const QByteArray& prefix, const QByteArray& unit)
    {
        const bool isMega = prefix == "M" && (unit == "HZ" || unit == "OHM");
        for (const Multiplier& multiplier : multipliers) {
            if (prefix == multiplier.name) {
                m_nUnitExponent = isMega ? 6 : multiplier.exponent;
                return true;
            }
        }
        return false;
    }

    const QByteArray& m_text;
    int m_nPos;
    QByteArray m_mantissa;
    QByteArray m_unit;
    int m_nDigits = 0;
    int m_nExponent = 0;
    int m_nUnitExponent = 0;
};

int radixOf(char letter)
{
    switch (letter | 0x20) {
    case 'h':
        return 16;
    case 'q':
        return 8;
    default:
        return 2;
    }
}

} // namespace

ScpiNumberResult readScpiNumber(const QByteArray& text, int begin, ScpiParameter& parameter)
{
    NumberScanner scanner(text, begin);
    ScpiNumberResult result;
    result.errorNumber = scanner.scan();
    result.end = scanner.position();
    parameter.kind = ScpiParameter::Number;
    parameter.text = text.mid(begin, result.end - begin);
    if (result.errorNumber == 0) {
        parameter.number = scanner.value();
        parameter.unit = scanner.unit();
        result.errorNumber = std::isfinite(parameter.number) ? 0 : -222;
    }
    return result;
}

ScpiNumberResult readScpiRadixNumber(const QByteArray& text, int begin, ScpiParameter& parameter)
{
    ScpiNumberResult result;
    result.end = begin + 2;
    while (result.end < text.size() && ScpiText::isWord(text.at(result.end)))
        ++result.end;
    bool isValid = false;
    const QByteArray digits = text.mid(begin + 2, result.end - begin - 2);
    const quint64 value = digits.toULongLong(&isValid, radixOf(text.at(begin + 1)));
    parameter.kind = ScpiParameter::Number;
    parameter.text = text.mid(begin, result.end - begin);
    parameter.number = static_cast<double>(value);
    result.errorNumber = isValid ? 0 : -121;
    return result;
}
