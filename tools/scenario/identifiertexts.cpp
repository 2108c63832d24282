// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "identifiertexts.h"

#include <QDir>
#include <QTranslator>

IdentifierTexts::IdentifierTexts() = default;

IdentifierTexts::~IdentifierTexts() = default;

QString IdentifierTexts::load(const QString& folder, const QString& language)
{
    m_catalogues.clear();
    m_language = language;
    const QDir dir(folder);
    const QStringList files =
        dir.entryList({QStringLiteral("*_%1.qm").arg(language)}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        auto catalogue = std::make_unique<QTranslator>();
        if (!catalogue->load(dir.filePath(file))) {
            m_catalogues.clear();
            return QStringLiteral("%1 is no catalogue").arg(dir.filePath(file));
        }
        m_catalogues.push_back(std::move(catalogue));
    }
    if (files.isEmpty())
        return QStringLiteral("%1 has no catalogue of the language \"%2\"").arg(folder, language);
    return {};
}

bool IdentifierTexts::contains(const QString& identifier) const
{
    return !find(identifier).isNull();
}

QString IdentifierTexts::text(const QString& identifier) const
{
    const QString found = find(identifier);
    return found.isNull() ? identifier : found;
}

QString IdentifierTexts::find(const QString& identifier) const
{
    const QByteArray key = identifier.toUtf8();
    for (const auto& catalogue : m_catalogues) {
        QString text = catalogue->translate(nullptr, key.constData());
        if (!text.isNull())
            return text;
    }
    return {};
}
