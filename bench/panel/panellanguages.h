// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTranslator>

/// The languages of the panel's texts, and the one that is installed.
class PanelLanguages
{
public:
    /// "en", "de", "zh_CN" and "ja".
    static QStringList all();

    /// What a speaker of the language calls it.
    static QString nameOf(const QString& language);

    /// The one of all() for a locale's name, "de_AT": English where there is none.
    static QString ofLocale(const QString& localeName);

    /// Where the texts lie unless told otherwise: the folder that MPB_TRANSLATIONS_DIR names, else
    /// the one that belongs to a program in @p programFolder.
    static QString defaultFolder(const QString& programFolder);

    explicit PanelLanguages(const QString& folder);
    ~PanelLanguages();
    PanelLanguages(const PanelLanguages&) = delete;
    PanelLanguages& operator=(const PanelLanguages&) = delete;

    QString current() const { return m_strCurrent; }

    /// Installs the texts of one of all(), and Qt's own where the machine has them; widgets are
    /// told. False, with nothing done, where there are none.
    bool install(const QString& language);

private:
    QString m_strFolder;
    QString m_strCurrent;
    QTranslator m_panelTexts;
    QTranslator m_qtTexts;
};
