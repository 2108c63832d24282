// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTranslator>

/// The languages of the texts, and the one that is installed. Stands in for the host, to which the
/// translator belongs.
class Languages
{
public:
    /// "en", "de", "zh_CN" and "ja".
    static QStringList all();

    /// What a speaker of the language calls it.
    static QString nameOf(const QString& language);

    Languages();
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    QString current() const { return m_strCurrent; }

    /// Installs the texts of one of all(), for the widgets and for the gallery. Every widget gets a
    /// language-change event through the event queue. False, with nothing done, for another name.
    bool install(const QString& language);

private:
    QString m_strCurrent;
    QTranslator m_toolkitTexts;
    QTranslator m_galleryTexts;
};
