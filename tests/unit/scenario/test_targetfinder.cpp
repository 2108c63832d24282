// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "identifiertexts.h"
#include "scenarioparser.h"
#include "targetfinder.h"

#include <QtTest>

/// A form on the left, a table on the right, a button whose label is an item of its own.
class TestTargetFinder : public QObject
{
    Q_OBJECT

private:
    void add(const QString& text, const QRect& rect)
    {
        m_screen.items.append({text, rect, true, false, false, "label"});
    }

    QStringList found(const QByteArray& target) const
    {
        Scenario scenario;
        if (!parseScenario("touch " + target, scenario).isEmpty())
            return {"mistake"};
        QStringList places;
        const auto items = findTarget(scenario.statements.first().target, m_screen, m_texts);
        for (const Keypad::ScreenItem& item : items)
            places.append(QString("%1@%2,%3").arg(item.text).arg(item.rect.x()).arg(item.rect.y()));
        return places;
    }

private Q_SLOTS:
    void initTestCase()
    {
        add("Count", {0, 0, 100, 40});
        add("2", {110, 0, 100, 40});
        add("Load", {0, 50, 100, 40});
        add("50", {110, 52, 100, 36});
        add("V", {215, 50, 10, 40});
        add("N", {300, 0, 40, 30});
        add("Width", {340, 0, 100, 30});
        add("Gap", {440, 0, 100, 30});
        for (int row = 1; row <= 3; ++row) {
            add(QString::number(row), {300, row * 30, 40, 30});
            add("5u", {340, row * 30, 100, 30});
            add("7u", {440, row * 30, 100, 30});
        }
        add("Run", {600, 400, 80, 60});
        add("Run", {610, 440, 60, 15});
    }

    void finds_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<int>("count");
        QTest::newRow("\"Count\"") << "Count@0,0" << 1;
        QTest::newRow("\"Run\"") << "Run@600,400" << 1;
        QTest::newRow("\"5u\"") << "5u@340,30" << 3;
        QTest::newRow("\"none\"") << "" << 0;
        QTest::newRow("right of \"Load\" and left of \"V\"") << "50@110,52" << 1;
        QTest::newRow("left of \"V\"") << "50@110,52" << 2;
        QTest::newRow("\"2\" right of \"Count\"") << "2@110,0" << 1;
        QTest::newRow("\"5u\" right of \"3\"") << "5u@340,90" << 1;
        QTest::newRow("below \"Width\"") << "5u@340,30" << 3;
        QTest::newRow("below \"Gap\" and right of \"2\"") << "7u@440,60" << 1;
        QTest::newRow("above \"Load\"") << "Count@0,0" << 1;
        QTest::newRow("\"7u\" below \"Width\"") << "" << 0;
        QTest::newRow("right of \"nowhere\"") << "" << 0;
        QTest::newRow("100,100") << "" << 0;
    }

    void finds()
    {
        QFETCH(QString, first);
        const QStringList places = found(QTest::currentDataTag());
        QTEST(places.size(), "count");
        if (!places.isEmpty())
            QCOMPARE(places.first(), first);
    }

    void buttonsBeforeTexts()
    {
        Keypad::ScreenDescription screen;
        screen.items = {{"Save", {0, 0, 9, 9}, true, false, false, "text"},
                        {"Save", {0, 90, 9, 9}, true, false, false, "button"}};
        ScreenTarget save;
        save.hasText = true;
        save.text = ScenarioText::plain("Save");
        const auto found = findTarget(save, screen, m_texts);
        QCOMPARE(found.size(), 2);
        QCOMPARE(found.first().role, QString("button"));
        QCOMPARE(likelyCount(found), 1);
        screen.items[1].role = "header";
        QCOMPARE(likelyCount(findTarget(save, screen, m_texts)), 2);
        QCOMPARE(likelyCount({}), 0);
    }

    void nearestFirst()
    {
        QCOMPARE(found("right of \"Load\"").mid(0, 2), QStringList({"50@110,52", "V@215,50"}));
        QCOMPARE(found("\"5u\" above \"7u\"").size(), 0);
    }

private:
    Keypad::ScreenDescription m_screen;
    IdentifierTexts m_texts;
};

QTEST_GUILESS_MAIN(TestTargetFinder)

#include "test_targetfinder.moc"
