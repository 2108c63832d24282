// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "overlaypage.h"

#include <QMap>
#include <QVector>

/// The page of the Utility key: the language, and what the host works with.
class SettingsPage : public OverlayPage
{
    Q_OBJECT

public:
    explicit SettingsPage(QWidget* surface);

    /// Marks the current language, one of Languages::all().
    void setLanguage(const QString& language);

    /// Lines of information: identifiers of their titles, which must outlive the page, and values.
    void setFacts(const QVector<QPair<const char*, QString>>& facts);

Q_SIGNALS:
    void languageChosen(const QString& language);

protected:
    void retranslate() override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addLanguage(const QString& language, const QRect& place);
    void addFact(const char* textId, const QString& value);

    struct Fact
    {
        const char* textId;
        TextLabel* title;
        TextLabel* value;
    };

    TextLabel* m_pLanguageTitle;
    QMap<QString, TouchButton*> m_languages;
    QVector<Fact> m_facts;
};
