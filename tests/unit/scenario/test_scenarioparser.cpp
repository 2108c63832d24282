// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "identifiertexts.h"
#include "scenarioparser.h"
#include "targetfinder.h"

#include <QtTest>

class TestScenarioParser : public QObject
{
    Q_OBJECT

private:
    static QStringList mistakes(const QByteArray& text)
    {
        Scenario scenario;
        scenario.fileName = "s";
        return parseScenario(text, scenario);
    }

    Statement only(const QByteArray& line)
    {
        Scenario scenario;
        scenario.fileName = "s";
        const QStringList errors = parseScenario(line, scenario);
        if (!errors.isEmpty() || scenario.statements.size() != 1)
            qFatal("%s: %s", line.constData(), qPrintable(errors.join('\n')));
        return scenario.statements.first();
    }

    QString shown(const ScenarioText& text) const { return text.shown(m_texts); }

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("step \"Open it\"") << int(Statement::Step);
        QTest::newRow("language de") << int(Statement::Language);
        QTest::newRow("touch \"Run\"") << int(Statement::Touch);
        QTest::newRow("touch 10,20") << int(Statement::Touch);
        QTest::newRow("touch right of \"Load\" within 3 s") << int(Statement::Touch);
        QTest::newRow("hold \"Run\" for 0.5 s") << int(Statement::Hold);
        QTest::newRow("drag 1,2 to 3,4") << int(Statement::Drag);
        QTest::newRow("turn -3") << int(Statement::Turn);
        QTest::newRow("key home") << int(Statement::Key);
        QTest::newRow("key up 3 times") << int(Statement::Key);
        QTest::newRow("type \"abc\"") << int(Statement::Type);
        QTest::newRow("number 2.5 u") << int(Statement::Number);
        QTest::newRow("number 3") << int(Statement::Number);
        QTest::newRow("expect text \"Stop\"") << int(Statement::ExpectText);
        QTest::newRow("expect no text \"Stop\"") << int(Statement::ExpectNoText);
        QTest::newRow("expect enabled \"Stop\"") << int(Statement::ExpectState);
        QTest::newRow("expect checked right of \"Stop\"") << int(Statement::ExpectState);
        QTest::newRow("expect picture home") << int(Statement::ExpectPicture);
        QTest::newRow("expect picture home 0,0,10x10 within 2 s") << int(Statement::ExpectPicture);
        QTest::newRow("expect picture home within 2 s") << int(Statement::ExpectPicture);
        QTest::newRow("expect command \"*RST\"") << int(Statement::ExpectCommand);
        QTest::newRow("expect no command \"*RST\"") << int(Statement::ExpectNoCommand);
        QTest::newRow("expect file run.mpwv") << int(Statement::ExpectFile);
        QTest::newRow("expect no file \"my setup.json\"") << int(Statement::ExpectNoFile);
        QTest::newRow("picture home-page") << int(Statement::Picture);
        QTest::newRow("pause 0.5 s") << int(Statement::Pause);
        QTest::newRow("plot channel1 within 3 s") << int(Statement::Plot);
        QTest::newRow("save run.mpwv") << int(Statement::Save);
        QTest::newRow("save examples/a.json as b.json") << int(Statement::Save);
    }

    void kinds()
    {
        const QByteArray line = QTest::currentDataTag();
        QTEST(int(only(line).kind), "kind");
        QCOMPARE(only("  " + line + "  # why").kind, only(line).kind);
    }

    void targets_data()
    {
        QTest::addColumn<QString>("means");
        QTest::newRow("touch \"Run\"") << "\"Run\"";
        QTest::newRow("touch 10,20") << "the place 10,20";
        QTest::newRow("touch right of \"Load\"") << "something right of \"Load\"";
        QTest::newRow("touch \"a\" left of \"b\" and below \"c\" and above \"d\"")
            << "\"a\" left of \"b\" and below \"c\" and above \"d\"";
    }

    void targets() { QTEST(shownTarget(only(QTest::currentDataTag()).target, m_texts), "means"); }

    void values()
    {
        QCOMPARE(only("turn -3").count, -3);
        QCOMPARE(only("key up 3 times").count, 3);
        QCOMPARE(only("key up").count, 1);
        QCOMPARE(only("number -2.5 u").keys, QStringList({"minus", "2", "point", "5", "mu"}));
        QCOMPARE(only("expect text \"a\" within 2.5 s").seconds, 2.5);
        QCOMPARE(only("expect text \"a\"").seconds, 10.0);
        QCOMPARE(only("hold 1,2 for 0.5 s").seconds, 0.5);
        QCOMPARE(only("expect picture a 1,2,30x40").area, QRect(1, 2, 30, 40));
        QCOMPARE(only("expect disabled \"a\"").state, Statement::Disabled);
        QCOMPARE(only("save a/b.json").destinationName, QString("b.json"));
        QCOMPARE(only("save a/b.json as c.json").destinationName, QString("c.json"));
        QCOMPARE(only("drag 1,2 to 3,4").destination.place, QPoint(3, 4));
        QCOMPARE(only("language zh_CN").name, QString("zh_CN"));
        QCOMPARE(shown(only("type \"a b\"").text), QString("a b"));
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("tuch \"Run\"") << "\"tuch\" is not a statement";
        QTest::newRow("\"Run\"") << "a statement is wanted";
        QTest::newRow("touch") << "is wanted";
        QTest::newRow("touch Run") << "is wanted";
        QTest::newRow("touch \"\"") << "empty";
        QTest::newRow("touch \"a\" right \"b\"") << "\"of\"";
        QTest::newRow("touch \"a\" below \"b\" and") << "\"and\"";
        QTest::newRow("touch \"a\" beside \"b\"") << "more than";
        QTest::newRow("touch \"a\" within 5") << "\"within\"";
        QTest::newRow("touch \"a\" within x s") << "\"within\"";
        QTest::newRow("touch \"a\" within 0 s") << "\"within\"";
        QTest::newRow("touch \"a\" within nan s") << "\"within\"";
        QTest::newRow("hold \"a\" for 5") << "\"for\"";
        QTest::newRow("drag 1,2") << "\"to\"";
        QTest::newRow("turn") << "wanted";
        QTest::newRow("turn 0") << "detents";
        QTest::newRow("turn 101") << "detents";
        QTest::newRow("turn 1.5") << "detents";
        QTest::newRow("turn 1 2") << "more than";
        QTest::newRow("key hoem") << "no key \"hoem\"; it has 0, 1";
        QTest::newRow("key up 3") << "times";
        QTest::newRow("key up -3 times") << "times";
        QTest::newRow("type abc") << "quotation";
        QTest::newRow("number 1,5 u") << "digits";
        QTest::newRow("number 1 u s") << "more than";
        QTest::newRow("expect") << "is wanted";
        QTest::newRow("expect words \"a\"") << "\"words\" is not something to expect";
        QTest::newRow("expect no picture a") << "absent";
        QTest::newRow("expect text right of \"b\"") << "text is wanted";
        QTest::newRow("expect enabled 1,2") << "not a place";
        QTest::newRow("expect picture a 1,2,3") << "X,Y";
        QTest::newRow("expect picture a 1,2,0x5") << "X,Y";
        QTest::newRow("picture ../a") << "picture's name";
        QTest::newRow("pause 5") << "\"pause\"";
        QTest::newRow("plot a/b") << "picture's name";
        QTest::newRow("expect file ../a") << "inside";
        QTest::newRow("save /etc/passwd") << "inside";
        QTest::newRow("save a as b/../../c") << "inside";
        QTest::newRow("step \"a") << "no end";
    }

    void refuses()
    {
        QFETCH(QString, reason);
        const QStringList errors = mistakes(QByteArray("\n\n") + QTest::currentDataTag());
        QCOMPARE(errors.size(), 1);
        QVERIFY2(errors.first().startsWith("s:3: "), qPrintable(errors.first()));
        QVERIFY2(errors.first().contains(reason), qPrintable(errors.first()));
    }

    void tellsEveryMistake() { QCOMPARE(mistakes("turn 1\nturn x\n# turn y\n\nkeys\n").size(), 2); }

    void refusesWhatIsNoText() { QCOMPARE(mistakes("step \"\xff\"").size(), 1); }

    void keepsLines()
    {
        Scenario scenario;
        QCOMPARE(parseScenario("# a\r\n  turn 1 \r\n\r\nturn 2\r\n", scenario), QStringList());
        QCOMPARE(scenario.statements.size(), 2);
        QCOMPARE(scenario.statements.at(0).line, 2);
        QCOMPARE(scenario.statements.at(1).line, 4);
        QCOMPARE(scenario.statements.at(0).source, QString("turn 1"));
    }

private:
    IdentifierTexts m_texts;
};

QTEST_GUILESS_MAIN(TestScenarioParser)

#include "test_scenarioparser.moc"
