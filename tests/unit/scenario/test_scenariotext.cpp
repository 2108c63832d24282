// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "identifiertexts.h"
#include "scenariotext.h"

#include <QtTest>

class TestScenarioText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString error =
            m_texts.load(qEnvironmentVariable("MPB_TRANSLATIONS_DIR"), QStringLiteral("de"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void shows_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("shown");
        QTest::newRow("plain") << "Run it"
                               << "Run it";
        QTest::newRow("identifier") << "{STR_ID_HIGH_LEVEL}" << m_texts.text("STR_ID_HIGH_LEVEL");
        QTest::newRow("in the middle") << "a {STR_ID_SAVE} b"
                                       << "a " + m_texts.text("STR_ID_SAVE") + " b";
        QTest::newRow("unknown identifier") << "{NONE_OF_OURS}"
                                            << "NONE_OF_OURS";
        QTest::newRow("anything") << "from ... on"
                                  << "from ... on";
        QTest::newRow("backslash") << "a\\\"b\\\\c\\{d\\..."
                                   << "a\"b\\c{d...";
    }

    void shows()
    {
        QFETCH(QString, body);
        ScenarioText text;
        QCOMPARE(readScenarioText(body, text), QString());
        QTEST(text.shown(m_texts), "shown");
    }

    void matches_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("seen");
        QTest::addColumn<bool>("matches");
        QTest::newRow("the same") << "8.000u"
                                  << "8.000u" << true;
        QTest::newRow("a point is no wildcard") << "8.000u"
                                                << "8x000u" << false;
        QTest::newRow("part of it") << "8"
                                    << "8.000u" << false;
        QTest::newRow("beginning") << "8..."
                                   << "8.000u" << true;
        QTest::newRow("nothing more") << "8..."
                                      << "8" << true;
        QTest::newRow("end") << "...u"
                             << "8.000u" << true;
        QTest::newRow("middle") << "a...c"
                                << "a b c" << true;
        QTest::newRow("white space") << "two  words"
                                     << "two words" << true;
        QTest::newRow("escaped points") << "a\\.\\.\\."
                                        << "ab" << false;
        QTest::newRow("star") << "*RST"
                              << "*RST" << true;
        QTest::newRow("case") << "Run"
                              << "run" << false;
    }

    void matches()
    {
        QFETCH(QString, body);
        QFETCH(QString, seen);
        ScenarioText text;
        QCOMPARE(readScenarioText(body, text), QString());
        QTEST(text.pattern(m_texts).match(seen).hasMatch(), "matches");
    }

    // Programs put values into some of the catalogues' texts.
    void valuesOfACatalogueMatchAnything()
    {
        ScenarioText text;
        QCOMPARE(readScenarioText("{HOSTID_CHANNEL}", text), QString());
        QCOMPARE(text.shown(m_texts), QString("Kanal ..."));
        QVERIFY(text.pattern(m_texts).match("Kanal 2").hasMatch());
        QVERIFY(!text.pattern(m_texts).match("Anschluss 2").hasMatch());
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("body");
        QTest::newRow("open brace") << "a {b";
        QTest::newRow("empty identifier") << "{}";
        QTest::newRow("backslash at the end") << "a\\";
    }

    void refuses()
    {
        QFETCH(QString, body);
        ScenarioText text;
        QVERIFY(!readScenarioText(body, text).isEmpty());
    }

    void namesIdentifiers()
    {
        ScenarioText text;
        QCOMPARE(readScenarioText("{A} b {C}...", text), QString());
        QCOMPARE(text.identifiers(), QStringList({"A", "C"}));
    }

private:
    IdentifierTexts m_texts;
};

QTEST_GUILESS_MAIN(TestScenarioText)

#include "test_scenariotext.moc"
