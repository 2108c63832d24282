// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenariocheck.h"

#include <QtTest>

class TestScenarioCheck : public QObject
{
    Q_OBJECT

private:
    static QVector<Scenario> scenarios(const QByteArray& text)
    {
        Scenario scenario;
        scenario.fileName = "s";
        if (!parseScenario(text, scenario).isEmpty())
            qFatal("mistake");
        return {scenario};
    }

    static QString folder() { return qEnvironmentVariable("MPB_TRANSLATIONS_DIR"); }

private Q_SLOTS:
    void known()
    {
        QCOMPARE(
            unknownIdentifiers(scenarios("touch {STR_UTILITY_RUN} below {STR_ID_SAVE}"), folder()),
            QStringList());
    }

    void unknown_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("target") << QByteArray("touch {NONE_OF_OURS}");
        QTest::newRow("landmark") << QByteArray("touch right of {NONE_OF_OURS}");
        QTest::newRow("in a text") << QByteArray("expect text \"{NONE_OF_OURS}: 3\"");
        QTest::newRow("destination") << QByteArray("drag 1,2 to {NONE_OF_OURS}");
    }

    void unknown()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(unknownIdentifiers(scenarios(text), folder()),
                 QStringList({"s:1: no catalogue has NONE_OF_OURS"}));
    }

    void noCatalogues()
    {
        QCOMPARE(unknownIdentifiers(scenarios("turn 1"), "/nowhere"), QStringList());
        QVERIFY(unknownIdentifiers(scenarios("touch {STR_ID_SAVE}"), "/nowhere")
                    .first()
                    .contains("/nowhere"));
    }
};

QTEST_GUILESS_MAIN(TestScenarioCheck)

#include "test_scenariocheck.moc"
