// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tool.h"

#include "commandrun.h"

#include <QtTest>

class TestTool : public QObject
{
    Q_OBJECT

private slots:
    void runsTheCommand();
    void printsHelpAndVersion();
    void suggests_data();
    void suggests();
    void wantsACommand();
};

namespace {

int runEcho(const QStringList& arguments, Streams& streams)
{
    streams.out->write(arguments.join(QLatin1Char('|')).toUtf8());
    return ExitFound;
}

int runTools(const QStringList& arguments, Streams& streams)
{
    return runTool({{"render", "make files", runEcho},
                    {"check", "look at files", runEcho},
                    {"stop", "end it", runEcho}},
                   arguments, streams);
}

} // namespace

void TestTool::runsTheCommand()
{
    const CommandResult result = runWith(
        runTools, {QStringLiteral("check"), QStringLiteral("--help"), QStringLiteral("a b")});
    QCOMPARE(result.exitCode, int(ExitFound));
    QCOMPARE(result.out, QByteArray("--help|a b"));
    QCOMPARE(result.err, QByteArray());
}

void TestTool::printsHelpAndVersion()
{
    for (const char* option : {"--help", "-h", "help"}) {
        const CommandResult help = runWith(runTools, {QLatin1String(option)});
        QCOMPARE(help.exitCode, int(ExitOk));
        QVERIFY(help.out.startsWith("Usage: mpwv COMMAND [options] ...\n"));
        QVERIFY(help.out.contains("\n  render    make files\n  check     look at files\n"));
    }
    const CommandResult named = runWith(runTools, {QStringLiteral("help"), QStringLiteral("stop")});
    QCOMPARE(named.exitCode, int(ExitFound));
    QCOMPARE(named.out, QByteArray("--help"));
    const CommandResult unknown =
        runWith(runTools, {QStringLiteral("help"), QStringLiteral("stpo")});
    QCOMPARE(unknown.exitCode, int(ExitUsage));
    QCOMPARE(unknown.err,
             QByteArray("mpwv: there is no command \"stpo\"; do you mean \"stop\"?\n"));
    const CommandResult version = runWith(runTools, {QStringLiteral("--version")});
    QCOMPARE(version.exitCode, int(ExitOk));
    QVERIFY(QRegularExpression(QStringLiteral("\\Ampwv \\d+\\.\\d+\\.\\d+\\n\\z"))
                .match(QString::fromUtf8(version.out))
                .hasMatch());
}

void TestTool::suggests_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("err");
    const auto row = [](const char* name, const char* shown, const char* meant) {
        QTest::newRow(shown) << QString::fromUtf8(name)
                             << "mpwv: there is no command \"" + QByteArray(shown) +
                                    "\"; do you mean \"" + meant + "\"?\n";
    };
    row("redner", "redner", "render");
    row("chekc", "chekc", "check");
    row("stopp", "stopp", "stop");
    row("Render", "Render", "render");
    row("-check", "-check", "check");
    const auto none = [](const char* name, const char* shown) {
        QTest::newRow(shown) << QString::fromUtf8(name)
                             << "mpwv: there is no command \"" + QByteArray(shown) +
                                    "\"; \"mpwv --help\" lists them\n";
    };
    none("version", "version");
    none("--chek", "--chek");
    none("a\n", "a\\u000a");
}

void TestTool::suggests()
{
    QFETCH(QString, name);
    const CommandResult result = runWith(runTools, {name});
    QCOMPARE(result.exitCode, int(ExitUsage));
    QCOMPARE(result.out, QByteArray());
    QTEST(result.err, "err");
}

void TestTool::wantsACommand()
{
    const CommandResult result = runWith(runTools, {});
    QCOMPARE(result.exitCode, int(ExitUsage));
    QCOMPARE(result.err, QByteArray("mpwv: no command; \"mpwv --help\" lists them\n"));
}

QTEST_APPLESS_MAIN(TestTool)
#include "test_tool.moc"
