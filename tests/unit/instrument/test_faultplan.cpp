// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "faultplan.h"

#include <QTest>

class TestFaultPlan : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsWrongAtFirst();
    void everyFault();
    void splitHasDefault();
    void listsAndRepeats();
    void refused_data();
    void refused();
    void descriptionsNameAll();
};

void TestFaultPlan::nothingIsWrongAtFirst()
{
    const FaultPlan plan;
    QVERIFY(!plan.noAccept && !plan.refuse && !plan.noReply && !plan.rubbish);
    QCOMPARE(plan.slowMs, 0);
    QCOMPARE(plan.pieces, 1);
    QVERIFY(plan.closeAfter < 0 && plan.halfCloseAfter < 0);
    QVERIFY(plan.closeAt < 0 && plan.halfCloseAt < 0);
}

void TestFaultPlan::everyFault()
{
    FaultPlan plan;
    QCOMPARE(addFaults(QStringLiteral("no-accept,refuse,slow=250,split=4,close-after=10,"
                                      "half-close-after=11,close-at=3,half-close-at=2,no-reply,"
                                      "rubbish"),
                       plan),
             QString());
    QVERIFY(plan.noAccept && plan.refuse && plan.noReply && plan.rubbish);
    QCOMPARE(plan.slowMs, 250);
    QCOMPARE(plan.pieces, 4);
    QCOMPARE(plan.closeAfter, qint64(10));
    QCOMPARE(plan.halfCloseAfter, qint64(11));
    QCOMPARE(plan.closeAt, qint64(3));
    QCOMPARE(plan.halfCloseAt, qint64(2));
}

void TestFaultPlan::splitHasDefault()
{
    FaultPlan plan;
    QCOMPARE(addFaults(QStringLiteral("split"), plan), QString());
    QCOMPARE(plan.pieces, 3);
}

void TestFaultPlan::listsAndRepeats()
{
    FaultPlan plan;
    QCOMPARE(addFaults(QStringLiteral("slow=1, rubbish"), plan), QString());
    QCOMPARE(addFaults(QStringLiteral("slow=2"), plan), QString());
    QCOMPARE(plan.slowMs, 2);
    QVERIFY(plan.rubbish);
}

void TestFaultPlan::refused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char* text, const char* fault) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(fault);
    };
    row("", "\"\"");
    row("slow=1,", "\"\"");
    row("nonsense", "\"nonsense\"");
    row("SLOW=1", "\"SLOW=1\"");
    row("rubbish,slow", "\"slow\"");
    row("slow=", "\"slow=\"");
    row("slow=-1", "\"slow=-1\"");
    row("slow=1.5", "\"slow=1.5\"");
    row("slow=600001", "\"slow=600001\"");
    row("split=0", "\"split=0\"");
    row("split=1001", "\"split=1001\"");
    row("rubbish=1", "\"rubbish=1\"");
    row("close-at=0", "\"close-at=0\"");
    row("half-close-at=x", "\"half-close-at=x\"");
    row("close-after=99999999999999999999", "\"close-after=99999999999999999999\"");
}

void TestFaultPlan::refused()
{
    QFETCH(QString, text);
    QFETCH(QString, fault);
    FaultPlan plan;
    const QString error = addFaults(text, plan);
    QVERIFY2(error.startsWith(QStringLiteral("fault ") + fault + QStringLiteral(": ")),
             qPrintable(error));
}

void TestFaultPlan::descriptionsNameAll()
{
    const QString text = faultDescriptions().join(QLatin1Char('\n'));
    const QStringList forms{
        QStringLiteral("no-accept "),     QStringLiteral("refuse "),
        QStringLiteral("slow=MS "),       QStringLiteral("split[=N] "),
        QStringLiteral("close-after=N "), QStringLiteral("half-close-after=N "),
        QStringLiteral("close-at=N "),    QStringLiteral("half-close-at=N "),
        QStringLiteral("no-reply "),      QStringLiteral("rubbish "),
    };
    for (const QString& form : forms)
        QVERIFY2(text.contains(form), qPrintable(form));
    QCOMPARE(faultDescriptions().size(), forms.size());
}

QTEST_APPLESS_MAIN(TestFaultPlan)
#include "test_faultplan.moc"
