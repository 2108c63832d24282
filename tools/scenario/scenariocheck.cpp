// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariocheck.h"

#include "identifiertexts.h"

namespace {

QStringList identifiersOf(const ScreenTarget& target)
{
    QStringList names = target.text.identifiers();
    for (const ScreenRelation& relation : target.relations)
        names += relation.landmark.identifiers();
    return names;
}

QStringList identifiersOf(const Statement& statement)
{
    return statement.text.identifiers() + identifiersOf(statement.target) +
           identifiersOf(statement.destination);
}

} // namespace

QStringList unknownIdentifiers(const QVector<Scenario>& scenarios, const QString& translations)
{
    IdentifierTexts texts;
    const QString unreadable = texts.load(translations, QStringLiteral("en"));
    QStringList mistakes;
    for (const Scenario& scenario : scenarios) {
        for (const Statement& statement : scenario.statements) {
            const QStringList names = identifiersOf(statement);
            if (!names.isEmpty() && !unreadable.isEmpty())
                return {unreadable};
            for (const QString& name : names) {
                if (!texts.contains(name))
                    mistakes.append(QStringLiteral("%1:%2: no catalogue has %3")
                                        .arg(scenario.fileName)
                                        .arg(statement.line)
                                        .arg(name));
            }
        }
    }
    return mistakes;
}
