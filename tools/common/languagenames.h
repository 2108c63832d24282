// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The languages that there are texts in.
namespace LanguageNames {

/// "en", "de", "zh_CN" and "ja".
inline QStringList all()
{
    return {QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("zh_CN"),
            QStringLiteral("ja")};
}

/// What a speaker of the language calls it.
inline QString nameOf(const QString& language)
{
    static const QMap<QString, QString> names = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("zh_CN"), QStringLiteral("中文")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
    };
    return names.value(language);
}

/// The one that a locale such as "de_AT" speaks; the first of all() if there is none.
inline QString ofLocale(const QString& localeName)
{
    const QString spoken = localeName.section(QLatin1Char('_'), 0, 0);
    for (const QString& language : all()) {
        if (language.section(QLatin1Char('_'), 0, 0) == spoken)
            return language;
    }
    return all().first();
}

} // namespace LanguageNames
