// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "fakebench.h"

#include <QProcess>
#include <QtTest>

#include <csignal>

class TestPanelProgram : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit()); }
    void version();
    void help();
    void wrongUse();
    void noTexts();
    void readyAndAskedToEnd_data();
    void readyAndAskedToEnd();
    void notReadyWithoutScreen();

private:
    static void run(QProcess& program, const QStringList& arguments);

    QTemporaryDir m_folder;
};

void TestPanelProgram::run(QProcess& program, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("96"));
    program.setProcessEnvironment(environment);
    program.start(qEnvironmentVariable("MPB_BIN_DIR") + QStringLiteral("/kvx-panel"), arguments);
    QVERIFY(program.waitForStarted());
}

void TestPanelProgram::version()
{
    QProcess program;
    run(program, {QStringLiteral("--version")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString text = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(QRegularExpression(QStringLiteral("^kvx-panel \\d+\\.\\d+\\.\\d+\n$"))
                 .match(text)
                 .hasMatch(),
             qPrintable(text));
}

// Needs no display.
void TestPanelProgram::help()
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none"));
    program.setProcessEnvironment(environment);
    run(program, {QStringLiteral("--help")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(program.readAllStandardOutput().contains("--instrument-port"));
}

void TestPanelProgram::wrongUse()
{
    QProcess program;
    run(program, {QStringLiteral("--screen-port"), QStringLiteral("x")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 2);
    QCOMPARE(program.readAllStandardError(),
             QByteArray("kvx-panel: --screen-port x: not a whole number from 1 to 65535\n"));
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
}

void TestPanelProgram::noTexts()
{
    QTemporaryDir empty;
    QProcess program;
    run(program, {QStringLiteral("--no-settings"), QStringLiteral("--translations"), empty.path()});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 2);
    QVERIFY(program.readAllStandardError().contains(empty.path().toUtf8()));
}

void TestPanelProgram::readyAndAskedToEnd_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void TestPanelProgram::readyAndAskedToEnd()
{
    QFETCH(int, signal);
    FakeBench bench;
    const PanelOptions options = bench.options();
    QProcess program;
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("front.png"));
    run(program,
        {QStringLiteral("--no-settings"), QStringLiteral("--language"), QStringLiteral("de"),
         QStringLiteral("--keypad"), options.keypadPath, QStringLiteral("--picture"), picture,
         QStringLiteral("--screen-port"), QString::number(options.screenPort),
         QStringLiteral("--instrument-port"), QString::number(options.instrumentPort)});
    QTRY_VERIFY(program.canReadLine());
    QCOMPARE(program.readLine(), QByteArray("ready\n"));
    ::kill(pid_t(program.processId()), signal);
    QTRY_COMPARE(program.state(), QProcess::NotRunning);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
    QCOMPARE(QImage(picture).size(), QSize(1280, 860));
}

// It waits for all three to come.
void TestPanelProgram::notReadyWithoutScreen()
{
    QTemporaryDir folder;
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress(QHostAddress::LocalHost)));
    const QString silent = QString::number(taken.serverPort());
    QProcess program;
    run(program, {QStringLiteral("--no-settings"), QStringLiteral("--keypad"),
                  folder.filePath(QStringLiteral("none")), QStringLiteral("--screen-port"), silent,
                  QStringLiteral("--instrument-port"), silent});
    QVERIFY(!program.waitForFinished(1000));
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
    ::kill(pid_t(program.processId()), SIGTERM);
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestPanelProgram)
#include "test_panelprogram.moc"
