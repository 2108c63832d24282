// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "translated.h"

#include "testtranslator.h"

#include <QtTest>

using appPlugins::translated;

class TestTranslated : public QObject
{
    Q_OBJECT

private slots:
    void withoutCatalogueTheIdentifierShows();
    void catalogueGivesText();
    void nothingStaysNothing();
};

void TestTranslated::withoutCatalogueTheIdentifierShows()
{
    QCOMPARE(translated("STR_UTILITY_RUN"), QStringLiteral("STR_UTILITY_RUN"));
}

void TestTranslated::catalogueGivesText()
{
    const TestTranslator german(QStringLiteral("de:"));
    QCOMPARE(translated("STR_UTILITY_RUN"), QStringLiteral("de:STR_UTILITY_RUN"));
}

void TestTranslated::nothingStaysNothing()
{
    const TestTranslator german(QStringLiteral("de:"));
    QCOMPARE(translated(nullptr), QString());
    QCOMPARE(translated(""), QString());
}

QTEST_GUILESS_MAIN(TestTranslated)
#include "test_translated.moc"
