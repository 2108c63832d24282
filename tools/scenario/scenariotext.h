// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

class IdentifierTexts;

/// A text as a scenario names it: characters as they stand, identifiers of the catalogues, and
/// places where anything may stand.
struct ScenarioText
{
    enum Kind {
        Plain,      ///< as it stands
        Identifier, ///< what the catalogues have for it; anything may stand where it has %1
        Anything    ///< any characters, or none
    };
    struct Piece
    {
        Kind kind = Plain;
        QString text; ///< characters or identifier; empty for Anything
    };
    QVector<Piece> pieces;

    /// A text without identifiers and wildcards.
    static ScenarioText plain(const QString& text);

    /// The identifiers in it, in order.
    QStringList identifiers() const;
    /// The characters that it stands for, with "..." where anything may stand.
    QString shown(const IdentifierTexts& texts) const;
    /// Matches a whole text with all white space made single blanks.
    QRegularExpression pattern(const IdentifierTexts& texts) const;
};

/// Reads what stands between two quotation marks: {NAME} is an identifier, three points are
/// anything; a backslash takes the meaning from the character behind it. Returns what is wrong, or
/// nothing.
QString readScenarioText(const QString& body, ScenarioText& text);
