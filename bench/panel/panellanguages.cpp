// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panellanguages.h"

#include "common/languagenames.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

QStringList PanelLanguages::all()
{
    return LanguageNames::all();
}

QString PanelLanguages::nameOf(const QString& language)
{
    return LanguageNames::nameOf(language);
}

QString PanelLanguages::ofLocale(const QString& localeName)
{
    return LanguageNames::ofLocale(localeName);
}

QString PanelLanguages::defaultFolder(const QString& programFolder)
{
    const QString told = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
    return told.isEmpty()
               ? QDir::cleanPath(programFolder +
                                 QStringLiteral("/../share/multi-pulse-builder/translations"))
               : told;
}

PanelLanguages::PanelLanguages(const QString& folder)
    : m_strFolder(folder)
{}

PanelLanguages::~PanelLanguages()
{
    QCoreApplication::removeTranslator(&m_panelTexts);
    QCoreApplication::removeTranslator(&m_qtTexts);
}

bool PanelLanguages::install(const QString& language)
{
    if (!all().contains(language))
        return false;
    if (language == m_strCurrent)
        return true;
    const QString name = QStringLiteral("%1/%2_%3.qm");
    const QString catalogue = name.arg(m_strFolder, QStringLiteral("kvxpanel"), language);
    if (!QFileInfo::exists(catalogue) || !QTranslator().load(catalogue))
        return false;
    m_strCurrent = language;
    // What is installed is taken out while it is loaded anew: widgets must not ask meanwhile.
    QCoreApplication::removeTranslator(&m_qtTexts);
    QCoreApplication::removeTranslator(&m_panelTexts);
    const QString qtFolder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    if (m_qtTexts.load(name.arg(qtFolder, QStringLiteral("qtbase"), language)))
        QCoreApplication::installTranslator(&m_qtTexts);
    return m_panelTexts.load(catalogue) && QCoreApplication::installTranslator(&m_panelTexts);
}
