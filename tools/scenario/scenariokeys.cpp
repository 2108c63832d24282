// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariokeys.h"

#include "frontkey.h"

#include <QMap>
#include <QRegularExpression>

namespace {

QString keyOfPrefix(const QString& prefix)
{
    static const QMap<QString, QString> keys = {
        {QStringLiteral("G"), QStringLiteral("gn")},  {QStringLiteral("n"), QStringLiteral("gn")},
        {QStringLiteral("M"), QStringLiteral("mu")},  {QStringLiteral("u"), QStringLiteral("mu")},
        {QStringLiteral("k"), QStringLiteral("km")},  {QStringLiteral("m"), QStringLiteral("km")},
        {QStringLiteral("x1"), QStringLiteral("x1")}, {QString(), QStringLiteral("enter")}};
    return keys.value(prefix);
}

QString keyOfCharacter(QChar character)
{
    if (character == QLatin1Char('-'))
        return QStringLiteral("minus");
    return character == QLatin1Char('.') ? QStringLiteral("point") : QString(character);
}

} // namespace

QStringList frontKeyNames()
{
    QStringList names;
    for (const FrontKey& key : frontKeys())
        names.append(key.name);
    return names;
}

bool isFrontKeyName(const QString& name)
{
    return frontKeyByName(name) != nullptr;
}

int frontKeyCode(const QString& name)
{
    const FrontKey* key = frontKeyByName(name);
    return key == nullptr ? 0 : key->code;
}

QStringList keysOfNumber(const QString& number, const QString& prefix)
{
    static const QRegularExpression form(QStringLiteral("^-?[0-9]+(\\.[0-9]+)?$"));
    const QString last = keyOfPrefix(prefix);
    if (!form.match(number).hasMatch() || last.isEmpty())
        return {};
    QStringList keys;
    for (const QChar character : number)
        keys.append(keyOfCharacter(character));
    return keys << last;
}
