// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "renderplan.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestRenderPlan : public QObject
{
    Q_OBJECT

private slots:
    void namesWaveforms_data();
    void namesWaveforms();
    void plans_data();
    void plans();
    void seesThroughLinks();
};

void TestRenderPlan::namesWaveforms_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QString>("waveform");
    const auto row = [](const char* setup, const char* waveform) {
        QTest::newRow(setup) << QString::fromUtf8(setup) << QString::fromUtf8(waveform);
    };
    row("a.json", "a.mpwv");
    row("x.json/a.json", "x.json/a.mpwv");
    row("a.json.json", "a.json.mpwv");
    row("a.JSON", "a.JSON.mpwv");
    row("a", "a.mpwv");
    row(".json", ".mpwv");
}

void TestRenderPlan::namesWaveforms()
{
    QFETCH(QString, setup);
    QTEST(waveformName(setup), "waveform");
}

void TestRenderPlan::plans_data()
{
    QTest::addColumn<QStringList>("setups");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("outputs");
    QTest::addColumn<QString>("folder");
    const QString a = QStringLiteral("in/a.json");
    const QString b = QStringLiteral("in/b.json");
    const QString standard = QStringLiteral("-");
    QTest::newRow("beside") << QStringList{a, b} << QString()
                            << QStringList{QStringLiteral("in/a.mpwv"), QStringLiteral("in/b.mpwv")}
                            << QString();
    QTest::newRow("file") << QStringList{a} << QStringLiteral("out")
                          << QStringList{QStringLiteral("out")} << QString();
    QTest::newRow("new folder") << QStringList{a} << QStringLiteral("out/")
                                << QStringList{QStringLiteral("out/a.mpwv")}
                                << QStringLiteral("out/");
    QTest::newRow("folder for two")
        << QStringList{a, b} << QStringLiteral("out")
        << QStringList{QStringLiteral("out/a.mpwv"), QStringLiteral("out/b.mpwv")}
        << QStringLiteral("out");
    QTest::newRow("folder that exists") << QStringList{a} << QStringLiteral("/tmp")
                                        << QStringList{QStringLiteral("/tmp/a.mpwv")} << QString();
    QTest::newRow("stream to stream")
        << QStringList{standard} << QString() << QStringList{standard} << QString();
    QTest::newRow("file to stream")
        << QStringList{a} << standard << QStringList{standard} << QString();
    QTest::newRow("stream into a folder")
        << QStringList{standard} << QStringLiteral("/tmp")
        << QStringList{QStringLiteral("/tmp/stdin.mpwv")} << QString();
}

void TestRenderPlan::plans()
{
    QFETCH(QStringList, setups);
    QFETCH(QString, target);
    const RenderPlan plan = planRender(setups, target);
    QCOMPARE(plan.wrong, QString());
    QStringList outputs;
    for (const RenderJob& job : plan.jobs)
        outputs.append(job.output);
    QTEST(outputs, "outputs");
    QTEST(plan.folder, "folder");
}

void TestRenderPlan::seesThroughLinks()
{
    const QTemporaryDir folder;
    const QString setup = folder.filePath(QStringLiteral("a.json"));
    const QString link = folder.filePath(QStringLiteral("link"));
    QFile file(setup);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(setup, link));
    QCOMPARE(planRender({setup}, link).wrong,
             link + QLatin1String(" is a setup and would be overwritten"));

    const QString other = folder.filePath(QStringLiteral("other"));
    QVERIFY(QFile::link(folder.path(), other));
    const QString twin = other + QLatin1String("/a.json");
    QVERIFY(planRender({setup, twin}, QString()).wrong.contains(QLatin1String("both become")));
}

QTEST_APPLESS_MAIN(TestRenderPlan)
#include "test_renderplan.moc"
