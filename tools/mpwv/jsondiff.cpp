// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "jsondiff.h"

#include "input.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

QString valueText(const QJsonValue& value)
{
    if (value.isUndefined())
        return QStringLiteral("-");
    // A value alone is no JSON text for the library: it is taken out of an array of one.
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return printable(QString::fromUtf8(text.mid(1, text.size() - 2)));
}

void compare(const QString& member, const QJsonValue& left, const QJsonValue& right,
             QStringList& lines);

void compareObjects(const QString& member, const QJsonObject& left, const QJsonObject& right,
                    QStringList& lines)
{
    QStringList keys = left.keys() + right.keys();
    keys.sort();
    keys.removeDuplicates();
    const QString prefix = member.isEmpty() ? member : member + QLatin1Char('.');
    for (const QString& key : qAsConst(keys))
        compare(prefix + printable(key), left.value(key), right.value(key), lines);
}

void compareArrays(const QString& member, const QJsonArray& left, const QJsonArray& right,
                   QStringList& lines)
{
    for (int i = 0; i < std::max(left.size(), right.size()); ++i)
        compare(QStringLiteral("%1[%2]").arg(member).arg(i),
                i < left.size() ? left.at(i) : QJsonValue(QJsonValue::Undefined),
                i < right.size() ? right.at(i) : QJsonValue(QJsonValue::Undefined), lines);
}

void compare(const QString& member, const QJsonValue& left, const QJsonValue& right,
             QStringList& lines)
{
    if (left == right)
        return;
    if (left.isObject() && right.isObject())
        compareObjects(member, left.toObject(), right.toObject(), lines);
    else if (left.isArray() && right.isArray())
        compareArrays(member, left.toArray(), right.toArray(), lines);
    else
        lines.append(QStringLiteral("%1: %2 -> %3").arg(member, valueText(left), valueText(right)));
}

} // namespace

QStringList differingMembers(const QJsonObject& left, const QJsonObject& right)
{
    QStringList lines;
    compareObjects(QString(), left, right, lines);
    return lines;
}
