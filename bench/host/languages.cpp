// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include "languagenames.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace {

const char* const OwnCatalogues[] = {"multipulse", "kvxhost", "kvxdialogs"};

} // namespace

QStringList Languages::all()
{
    return LanguageNames::all();
}

QString Languages::nameOf(const QString& language)
{
    return LanguageNames::nameOf(language);
}

QString Languages::ofDesktop()
{
    return LanguageNames::ofLocale(QLocale::system().name());
}

Languages::Languages(const QString& folder)
    : m_strFolder(folder)
{}

Languages::~Languages()
{
    for (const auto& texts : m_texts) {
        if (texts)
            QCoreApplication::removeTranslator(texts.get());
    }
}

// Of the own ones each is wanted, of the plug-ins' those that are there.
QStringList Languages::catalogues(const QString& language) const
{
    const QString ending = QStringLiteral("_%1.qm").arg(language);
    QStringList names;
    for (const char* own : OwnCatalogues)
        names.append(QLatin1String(own) + ending);
    const QStringList all =
        QDir(m_strFolder).entryList({QLatin1Char('*') + ending}, QDir::Files, QDir::Name);
    for (const QString& name : all) {
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

// The new texts are there before the old ones go, so that no widget ever sees none.
QString Languages::install(const QString& language)
{
    QStringList missing;
    Texts fresh;
    for (const QString& name : catalogues(language)) {
        fresh.push_back(std::make_unique<QTranslator>());
        if (!fresh.back()->load(name, m_strFolder))
            missing.append(name);
        QCoreApplication::installTranslator(fresh.back().get());
    }
    for (const auto& texts : m_texts) {
        if (texts)
            QCoreApplication::removeTranslator(texts.get());
    }
    m_texts = std::move(fresh);
    m_strCurrent = language;
    if (missing.isEmpty())
        return QString();
    return QStringLiteral("%1: cannot read %2").arg(m_strFolder, missing.join(QLatin1String(", ")));
}
