// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"

#include "ranwith.h"

#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>

class TestPlotCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }
    void png();
    void svgOnStandardOutput();
    void titleIsTheName();
    void usage_data();
    void usage();
    void refusedInput();
    void keepsItsInput();
    void outputFails();
};

void TestPlotCommand::png()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plot.PNG"));
    expectHeaderWarning();
    const Ran ran =
        ranWith(runPlot,
                {QStringLiteral("-"), QStringLiteral("-o"), path, QStringLiteral("--size=640x320")},
                TestSetup::doublePulse().json());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, QByteArray());
    QCOMPARE(QImage(path).size(), QSize(640, 320));
}

void TestPlotCommand::svgOnStandardOutput()
{
    expectHeaderWarning();
    const Ran ran = ranWith(
        runPlot, {QStringLiteral("-"), QStringLiteral("-o-"), QStringLiteral("--format=svg")},
        TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(QSvgRenderer(ran.out).defaultSize(), QSize(1200, 600));
    QVERIFY(ran.out.contains("<title>standard input</title>"));
}

void TestPlotCommand::titleIsTheName()
{
    QTemporaryDir folder;
    const QString setup = folder.filePath(QStringLiteral("my.setup.json"));
    const QString picture = folder.filePath(QStringLiteral("plot.svg"));
    writeFile(setup, TestSetup::doublePulse().json());
    expectHeaderWarning();
    QCOMPARE(ranWith(runPlot, {setup, QStringLiteral("-o"), picture}).exitCode, int(ExitOk));
    QVERIFY(contentOf(picture).contains("<title>my.setup</title>"));
}

void TestPlotCommand::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const QStringList& arguments, const char* complaint) {
        QTest::newRow(name) << arguments << QByteArray(complaint);
    };
    const QString dash = QStringLiteral("-");
    const QString output = QStringLiteral("-ofile.svg");
    row("no input", {output}, "plot: too few arguments");
    row("no output", {dash}, "plot: -o FILE is missing");
    row("no format", {dash, QStringLiteral("-ofile")},
        "plot: -o file: the name ends neither in .svg nor in .png, and there is no --format");
    row("other format", {dash, output, QStringLiteral("--format=pdf")},
        "plot: --format: \"pdf\" is neither svg nor png");
    row("size", {dash, output, QStringLiteral("--size=big")},
        "plot: --size: \"big\" is no size such as 1200x600 with sides from 200 to 10000");
    row("load", {dash, output, QStringLiteral("--load=75")},
        "plot: --load: \"75\" is neither 50 nor hi-z");
    row("period of a setup", {dash, output, QStringLiteral("--period=1m")},
        "plot: -: a setup has a time base of its own");
}

void TestPlotCommand::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const Ran ran = ranWith(runPlot, arguments, TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitUsage));
    QCOMPARE(ran.err.split('\n').at(0), "mpwv: " + complaint);
    QVERIFY(!QFile::exists(QStringLiteral("file.svg")));
}

void TestPlotCommand::refusedInput()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plot.svg"));
    const Ran ran = ranWith(runPlot, {QStringLiteral("-"), QStringLiteral("-o"), path}, "[]");
    QCOMPARE(ran.exitCode, int(ExitInput));
    QVERIFY2(ran.err.startsWith("mpwv: standard input: "), ran.err.constData());
    QVERIFY(!QFile::exists(path));
}

void TestPlotCommand::keepsItsInput()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.mpwv"));
    writeFile(path, TestSetup::doublePulse().json());
    const Ran ran =
        ranWith(runPlot, {path, QStringLiteral("-o"), path, QStringLiteral("--format=png")});
    QCOMPARE(ran.exitCode, int(ExitUsage));
    QVERIFY(ran.err.startsWith("mpwv: plot: " + path.toUtf8() + " is the input and would be "));
    QCOMPARE(contentOf(path), TestSetup::doublePulse().json());
}

void TestPlotCommand::outputFails()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/plot.svg"));
    expectHeaderWarning();
    const Ran ran = ranWith(runPlot, {QStringLiteral("-"), QStringLiteral("-o"), path},
                            TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitOutput));
    QVERIFY2(ran.err.startsWith("mpwv: " + path.toUtf8() + ": "), ran.err.constData());
}

QTEST_MAIN(TestPlotCommand)
#include "test_plotcommand.moc"
