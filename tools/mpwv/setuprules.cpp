// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setuprules.h"

#include "dbutils.h"
#include "engineeringtext.h"
#include "input.h"
#include "setupcheck.h"

#include <cmath>
#include <limits>

namespace {

// Fine enough to show what rounding to the column's resolution takes away.
const double FineResolution = 1e-13;

QString typeText(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

bool isNumber(const QString& member, const QJsonValue& value, FindingList& findings)
{
    if (value.isDouble())
        return true;
    findings.add(member, QStringLiteral("%1 instead of a number, reads as 0").arg(typeText(value)));
    return false;
}

bool isWhole(const QString& member, const QJsonValue& value, FindingList& findings)
{
    if (!isNumber(member, value, findings))
        return false;
    // The reader's own conversion decides: what it does not take becomes the fall-back.
    if (value.toInt(0) == value.toInt(1))
        return true;
    findings.add(
        member,
        QStringLiteral("%1 is not a whole number, reads as 0").arg(numberText(value.toDouble())));
    return false;
}

QString secondsText(double value)
{
    return engineeringText(value, QStringLiteral("s"));
}

QString rangeReason(double value, const ParameterRange& range)
{
    const QString text = QStringLiteral("%1 is %2 the limit of %3");
    // Not a number is outside every range.
    if (!(value <= limitPlusSafety(range.maximum)))
        return text.arg(secondsText(value), QStringLiteral("above"), secondsText(range.maximum));
    if (!(value >= limitMinusSafety(range.minimum)))
        return text.arg(secondsText(value), QStringLiteral("below"), secondsText(range.minimum));
    return QString();
}

QString gridReason(const QString& value, const ParameterRange& range)
{
    return QStringLiteral("%1 is not a multiple of %2").arg(value, secondsText(range.resolution));
}

QString cellReason(const QString& text, const ParameterRange& range)
{
    const QString quoted = QLatin1Char('"') + printable(text) + QLatin1Char('"');
    const double value = engineeringTextToDouble(text, range.resolution);
    if (value == 0)
        return quoted + QLatin1String(" reads as 0");
    QString outside = rangeReason(value, range);
    if (!outside.isEmpty())
        return outside;
    if (!isOnGrid(engineeringTextToDouble(text, FineResolution), range.resolution))
        return gridReason(quoted, range);
    return QString();
}

void addMissing(const QString& member, FindingList& findings)
{
    findings.add(member, QStringLiteral("missing, reads as 0 or empty"));
}

void addUnknown(const QString& prefix, const QJsonObject& object, const QVector<MemberRule>& rules,
                FindingList& findings)
{
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const bool known = std::any_of(rules.cbegin(), rules.cend(), [&it](const MemberRule& rule) {
            return it.key() == rule.key;
        });
        if (!known)
            findings.add(prefix + printable(it.key()), QStringLiteral("unknown member"));
    }
}

void checkMembers(const QString& member, const QJsonObject& object,
                  const QVector<MemberRule>& rules, FindingList& findings)
{
    const QString prefix = member.isEmpty() ? member : member + QLatin1Char('.');
    for (const MemberRule& rule : rules) {
        const auto found = object.constFind(rule.key);
        if (found != object.constEnd())
            rule.check(prefix + rule.key, *found, findings);
        else if (!rule.optional)
            addMissing(prefix + rule.key, findings);
    }
    addUnknown(prefix, object, rules, findings);
}

} // namespace

void FindingList::add(const QString& member, const QString& reason)
{
    if (m_findings.size() < MaxFindings)
        m_findings.append({member, reason});
    else
        ++m_nLeftOut;
}

QVector<Finding> FindingList::take()
{
    if (m_nLeftOut > 0)
        m_findings.append({QStringLiteral("(more)"),
                           QStringLiteral("%1 further findings are not listed").arg(m_nLeftOut)});
    return std::move(m_findings);
}

MemberCheck objectOf(const QVector<MemberRule>& rules)
{
    return [rules](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (value.isObject())
            checkMembers(member, value.toObject(), rules, findings);
        else
            findings.add(member, QStringLiteral("%1 instead of an object, its members read as 0")
                                     .arg(typeText(value)));
    };
}

MemberCheck anyNumber()
{
    return [](const QString& member, const QJsonValue& value, FindingList& findings) {
        isNumber(member, value, findings);
    };
}

MemberCheck wholeNumber(int least, int most)
{
    return [=](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (!isWhole(member, value, findings))
            return;
        if (value.toInt() < least || value.toInt() > most)
            findings.add(
                member,
                QStringLiteral("%1 is outside %2 to %3").arg(value.toInt()).arg(least).arg(most));
    };
}

MemberCheck always(double expected)
{
    return [=](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (!isNumber(member, value, findings))
            return;
        if (!DBSameValue(value.toDouble(), expected))
            findings.add(member, QStringLiteral("%1 instead of %2, which the editor always writes")
                                     .arg(numberText(value.toDouble()), numberText(expected)));
    };
}

MemberCheck seconds(const ParameterRange& range)
{
    return [=](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (!isNumber(member, value, findings))
            return;
        const double number = value.toDouble();
        const QString outside = rangeReason(number, range);
        if (!outside.isEmpty())
            findings.add(member, outside);
        else if (!isOnGrid(number, range.resolution))
            findings.add(member, gridReason(numberText(number) + QLatin1String(" s"), range));
    };
}

MemberCheck cellText(const ParameterRange& range)
{
    return [=](const QString& member, const QJsonValue& value, FindingList& findings) {
        if (!value.isString()) {
            findings.add(member,
                         QStringLiteral("%1 instead of a text, reads as 0").arg(typeText(value)));
            return;
        }
        const QString reason = cellReason(value.toString(), range);
        if (!reason.isEmpty())
            findings.add(member, reason);
    };
}

bool isOnGrid(double value, double step)
{
    const double steps = value / step;
    return std::fabs(steps - std::round(steps)) < 1e-5;
}

QString numberText(double value)
{
    return QString::number(value, 'g', 12);
}
