// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "setuprules.h"

#include "setupcheck.h"

#include <QtTest>

#include <cmath>

class TestSetupRules : public QObject
{
    Q_OBJECT

private slots:
    void tellsTheGrid_data();
    void tellsTheGrid();
    void writesNumbers();
    void checksObjectsWithinObjects();
    void keepsSomeFindings();

private:
    static QStringList findingsOf(const MemberCheck& check, const QJsonValue& value);
};

QStringList TestSetupRules::findingsOf(const MemberCheck& check, const QJsonValue& value)
{
    FindingList list;
    check(QStringLiteral("m"), value, list);
    QStringList lines;
    for (const Finding& finding : list.take())
        lines.append(finding.member + QLatin1String(": ") + finding.reason);
    return lines;
}

void TestSetupRules::tellsTheGrid_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("step");
    QTest::addColumn<bool>("onGrid");
    QTest::newRow("zero") << 0.0 << 1e-9 << true;
    QTest::newRow("written") << 2.5e-6 << 1e-9 << true;
    QTest::newRow("added up") << 0.1 + 0.2 << 0.0001 << true;
    QTest::newRow("many steps") << 499.9999999 << 1e-7 << true;
    QTest::newRow("half a step") << 2.0005e-6 << 1e-9 << false;
    QTest::newRow("hundredth of a step") << 2.00001e-6 << 1e-9 << false;
    QTest::newRow("not a number") << std::nan("") << 1e-9 << false;
}

void TestSetupRules::tellsTheGrid()
{
    QFETCH(double, value);
    QFETCH(double, step);
    QTEST(isOnGrid(value, step), "onGrid");
}

void TestSetupRules::writesNumbers()
{
    QCOMPARE(numberText(0.1 + 0.2), QStringLiteral("0.3"));
    QCOMPARE(numberText(1e-6), QStringLiteral("1e-06"));
    QCOMPARE(numberText(1.000025), QStringLiteral("1.000025"));
}

void TestSetupRules::checksObjectsWithinObjects()
{
    const QLatin1String a("a");
    const QLatin1String b("b");
    const MemberCheck check = objectOf({{a, objectOf({{b, anyNumber()}})}, {b, anyNumber(), true}});
    QCOMPARE(findingsOf(check, QJsonObject{{a, QJsonObject{{b, 1}}}}), QStringList());
    QCOMPARE(findingsOf(check, QJsonObject{{a, QJsonObject()}}),
             QStringList(QStringLiteral("m.a.b: missing, reads as 0 or empty")));
    QCOMPARE(findingsOf(check, QJsonObject{{a, true}}),
             QStringList(QStringLiteral("m.a: a boolean instead of an object, its members read as "
                                        "0")));
    QCOMPARE(findingsOf(check, QJsonObject{{a, QJsonObject{{b, 1}}}, {QStringLiteral("c\n"), 1}}),
             QStringList(QStringLiteral("m.c\\u000a: unknown member")));
}

void TestSetupRules::keepsSomeFindings()
{
    FindingList list;
    for (int i = 0; i < MaxFindings; ++i)
        list.add(QStringLiteral("m"), QStringLiteral("r"));
    QCOMPARE(FindingList(list).take().size(), MaxFindings);
    list.add(QStringLiteral("m"), QStringLiteral("r"));
    const QVector<Finding> findings = list.take();
    QCOMPARE(findings.size(), MaxFindings + 1);
    QCOMPARE(findings.last().reason, QStringLiteral("1 further findings are not listed"));
}

QTEST_APPLESS_MAIN(TestSetupRules)
#include "test_setuprules.moc"
