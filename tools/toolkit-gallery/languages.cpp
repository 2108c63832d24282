// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "languages.h"

#include "common/languagenames.h"

#include <QCoreApplication>

namespace {

QString catalogue(const QString& name, const QString& language)
{
    return QStringLiteral(":/translations/%1_%2.qm").arg(name, language);
}

} // namespace

QStringList Languages::all()
{
    return LanguageNames::all();
}

QString Languages::nameOf(const QString& language)
{
    return LanguageNames::nameOf(language);
}

Languages::Languages() = default;

Languages::~Languages()
{
    QCoreApplication::removeTranslator(&m_galleryTexts);
    QCoreApplication::removeTranslator(&m_toolkitTexts);
}

bool Languages::install(const QString& language)
{
    if (!all().contains(language))
        return false;
    if (language == m_strCurrent)
        return true;

    m_strCurrent = language;
    for (QTranslator* texts : {&m_toolkitTexts, &m_galleryTexts})
        QCoreApplication::removeTranslator(texts);
    const bool loaded = m_toolkitTexts.load(catalogue(QStringLiteral("multipulse"), language)) &&
                        m_galleryTexts.load(catalogue(QStringLiteral("gallery"), language));
    Q_ASSERT(loaded);
    for (QTranslator* texts : {&m_toolkitTexts, &m_galleryTexts})
        QCoreApplication::installTranslator(texts);
    return loaded;
}
