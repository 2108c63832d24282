// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioreport.h"

#include <QtTest>

class TestScenarioReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everything()
    {
        ScenarioFailure failure;
        failure.place = "a.scenario:3";
        failure.statement = "touch \"Run\"";
        failure.step = "Run it";
        failure.reason = "\"Run\" is disabled";
        failure.hasScreen = true;
        failure.screen.language = "de";
        failure.screen.busy = true;
        failure.screen.items.append({"Run", {1, 2, 30, 40}, false, true, true, "button"});
        failure.picture = "out/failure.png";
        QCOMPARE(failureText(failure), QString("a.scenario:3: touch \"Run\"\n"
                                               "  step: Run it\n"
                                               "  \"Run\" is disabled\n"
                                               "  on the screen (de, busy):\n"
                                               "    \"Run\" at 1,2,30x40 (button, disabled, "
                                               "focused, checked)\n"
                                               "  picture: out/failure.png\n"));
    }

    void nothingToSee()
    {
        ScenarioFailure failure;
        failure.place = "a.scenario:3";
        failure.statement = "turn 1";
        failure.reason = "the host's screen is gone";
        QCOMPARE(failureText(failure), QString("a.scenario:3: turn 1\n"
                                               "  the host's screen is gone\n"
                                               "  the screen could not be read\n"));
        failure.hasScreen = true;
        QVERIFY(failureText(failure).contains("    nothing\n"));
    }
};

QTEST_GUILESS_MAIN(TestScenarioReport)

#include "test_scenarioreport.moc"
