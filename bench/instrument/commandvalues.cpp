// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandvalues.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

enum StandardError {
    DataTypeError = -104,
    ParameterNotAllowed = -108,
    MissingParameter = -109,
    InvalidSuffix = -131,
    SuffixNotAllowed = -138,
    DataOutOfRange = -222,
    IllegalParameterValue = -224,
};

// Texts that stand for numbers which no decimal number can.
const char InfiniteText[] = "9.9E+37";
const char NotANumberText[] = "9.91E+37";

const ScpiParameter* onlyParameter(ScpiCall& call)
{
    if (call.parameters.isEmpty()) {
        call.fail(MissingParameter);
        return nullptr;
    }
    if (call.parameters.size() > 1) {
        call.fail(ParameterNotAllowed);
        return nullptr;
    }
    return &call.parameters.constFirst();
}

const ScpiParameter* onlyParameter(ScpiCall& call, ScpiParameter::Kind kind)
{
    const ScpiParameter* const parameter = onlyParameter(call);
    if (!parameter || parameter->kind == kind)
        return parameter;

    call.fail(DataTypeError);
    return nullptr;
}

bool namedBound(const QByteArray& word, const NumberRange& range, double& value)
{
    if (isMnemonic(word, "MINimum"))
        value = range.minimum;
    else if (isMnemonic(word, "MAXimum"))
        value = range.maximum;
    else if (isMnemonic(word, "DEFault"))
        value = range.defaultValue;
    else
        return false;
    return true;
}

bool wordAsNumber(const QByteArray& word, const NumberRange& range, double& value)
{
    if (namedBound(word, range, value))
        return true;

    const double infinity = std::numeric_limits<double>::infinity();
    if (isMnemonic(word, "INFinity"))
        value = infinity;
    else if (isMnemonic(word, "NINFinity") || isMnemonic(word, "NINF"))
        value = -infinity;
    else if (isMnemonic(word, "NAN"))
        value = std::numeric_limits<double>::quiet_NaN();
    else
        return false;
    return true;
}

bool isWithin(const NumberRange& range, double value)
{
    if (range.mayBeInfinite && std::isinf(value) && value > 0)
        return true;
    return value >= range.minimum && value <= range.maximum;
}

/// The error number for a number sent with @p unit, empty for none, where @p wanted is its own.
int unitError(const QByteArray& unit, const QByteArray& wanted)
{
    if (unit.isEmpty() || unit == wanted || (unit == "V" && wanted == "VPP"))
        return 0;
    return wanted.isEmpty() ? SuffixNotAllowed : InvalidSuffix;
}

bool acceptsUnit(ScpiCall& call, const char* wanted)
{
    const ScpiParameter& parameter = call.parameters.constFirst();
    const int error = unitError(parameter.unit, wanted);
    if (error != 0)
        call.fail(error, parameter.text);
    return error == 0;
}

} // namespace

QByteArray shortForm(const char* mnemonic)
{
    const QByteArray text(mnemonic);
    const auto end =
        std::find_if(text.begin(), text.end(), [](char letter) { return letter >= 'a'; });
    return text.left(int(end - text.begin()));
}

bool isMnemonic(const QByteArray& text, const char* mnemonic)
{
    const QByteArray upper = text.toUpper();
    return upper == shortForm(mnemonic) || upper == QByteArray(mnemonic).toUpper();
}

bool readNumber(ScpiCall& call, const NumberRange& range, double& value)
{
    const ScpiParameter* const parameter = onlyParameter(call);
    if (!parameter)
        return false;

    double number = parameter->number;
    const bool isNumber =
        parameter->kind == ScpiParameter::Number ||
        (parameter->kind == ScpiParameter::Word && wordAsNumber(parameter->text, range, number));
    if (!isNumber) {
        call.fail(DataTypeError);
        return false;
    }
    if (!acceptsUnit(call, range.unit))
        return false;
    if (!isWithin(range, number)) {
        call.fail(DataOutOfRange, parameter->text);
        return false;
    }
    value = number;
    return true;
}

bool readSwitch(ScpiCall& call, bool& on)
{
    const ScpiParameter* const parameter = onlyParameter(call);
    if (!parameter)
        return false;

    if (parameter->kind == ScpiParameter::Number) {
        if (!acceptsUnit(call, ""))
            return false;
        on = std::fabs(parameter->number) >= 0.5;
        return true;
    }
    const int choice = readMnemonic(call, {"OFF", "ON"});
    if (choice >= 0)
        on = choice == 1;
    return choice >= 0;
}

bool readText(ScpiCall& call, QByteArray& text)
{
    const ScpiParameter* const parameter = onlyParameter(call, ScpiParameter::String);
    if (parameter)
        text = parameter->text;
    return parameter;
}

int readMnemonic(ScpiCall& call, std::initializer_list<const char*> mnemonics)
{
    const ScpiParameter* const parameter = onlyParameter(call, ScpiParameter::Word);
    if (!parameter)
        return -1;

    const auto named =
        std::find_if(mnemonics.begin(), mnemonics.end(), [parameter](const char* mnemonic) {
            return isMnemonic(parameter->text, mnemonic);
        });
    if (named == mnemonics.end()) {
        call.fail(IllegalParameterValue, parameter->text);
        return -1;
    }
    return int(named - mnemonics.begin());
}

bool expectNoParameter(ScpiCall& call)
{
    if (!call.parameters.isEmpty())
        call.fail(ParameterNotAllowed);
    return call.parameters.isEmpty();
}

void replyNumber(ScpiCall& call, const NumberRange& range, double value)
{
    double shown = value;
    if (!call.parameters.isEmpty()) {
        const ScpiParameter* const parameter = onlyParameter(call, ScpiParameter::Word);
        if (!parameter)
            return;
        if (!namedBound(parameter->text, range, shown)) {
            call.fail(IllegalParameterValue, parameter->text);
            return;
        }
    }
    call.reply = numberText(shown);
}

void replyPlain(ScpiCall& call, const QByteArray& text)
{
    if (expectNoParameter(call))
        call.reply = text;
}

QByteArray numberText(double value)
{
    if (std::isnan(value))
        return NotANumberText;
    if (std::isinf(value))
        return value < 0 ? QByteArray("-") + InfiniteText : QByteArray(InfiniteText);
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest).toUpper();
}
