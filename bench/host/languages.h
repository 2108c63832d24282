// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// The languages of the texts, and the one that is installed: the texts of plug-ins and toolkit,
/// the host's own, and those that further plug-ins have left in the folder as NAME_LANGUAGE.qm.
class Languages
{
public:
    /// "en", "de", "zh_CN" and "ja".
    static QStringList all();

    /// What a speaker of the language calls it.
    static QString nameOf(const QString& language);

    /// The one of the desktop if it is among all(), "en" otherwise.
    static QString ofDesktop();

    /// Catalogues are in @p folder.
    explicit Languages(const QString& folder);
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    QString current() const { return m_strCurrent; }

    /// Installs the texts of one of all(); every widget of the process gets a language-change event
    /// through the event queue. Returns what is wrong, or an empty text; texts that cannot be read
    /// show their identifiers then, and everything else works.
    QString install(const QString& language);

private:
    using Texts = std::vector<std::unique_ptr<QTranslator>>;

    QStringList catalogues(const QString& language) const;

    QString m_strFolder;
    QString m_strCurrent;
    Texts m_texts;
};
