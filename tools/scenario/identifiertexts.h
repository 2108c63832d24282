// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// What the identifiers of plug-ins and host mean in one language: all catalogues of that language
/// in a folder, files named NAME_LANGUAGE.qm.
class IdentifierTexts
{
public:
    /// Knows no identifier.
    IdentifierTexts();
    ~IdentifierTexts();
    IdentifierTexts(const IdentifierTexts&) = delete;
    IdentifierTexts& operator=(const IdentifierTexts&) = delete;

    /// Reads the catalogues. Returns what is wrong, or nothing; after a failure no identifier is
    /// known.
    QString load(const QString& folder, const QString& language);

    /// The language that was read last; empty at first.
    const QString& language() const { return m_language; }

    /// Whether a catalogue has it.
    bool contains(const QString& identifier) const;
    /// Its text; the identifier itself, as programs show it, where no catalogue has it.
    QString text(const QString& identifier) const;

private:
    QString find(const QString& identifier) const;

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_catalogues;
};
