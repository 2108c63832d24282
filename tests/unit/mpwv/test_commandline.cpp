// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "commandrun.h"

#include <QtTest>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void readsOptionsAndArguments();
    void printsHelp();
    void complains_data();
    void complains();
    void replacesTheLoadOnly();
};

namespace {

class SomeLine : public CommandLine
{
public:
    SomeLine()
        : CommandLine(QStringLiteral("some"), QStringLiteral("Does something."))
    {
        addArgument(QStringLiteral("FILE"), QStringLiteral("A file."), QStringLiteral("FILE..."));
        addOption({QStringLiteral("n"), QStringLiteral("number")}, QStringLiteral("A number."),
                  QStringLiteral("NUMBER"));
        addLoadOption();
        addJsonOption();
    }
};

// Prints what was read; one or two arguments are wanted.
int runSome(const QStringList& arguments, Streams& streams)
{
    SomeLine line;
    if (const auto ended = line.parse(arguments, streams, 1, 2))
        return *ended;
    const QByteArray load = !line.load()                           ? "none"
                            : *line.load() == LoadImpedance::HighZ ? "z"
                                                                   : "50";
    streams.out->write(line.arguments().join(QLatin1Char('|')).toUtf8() + ' ' +
                       line.value(QStringLiteral("number")).toUtf8() + ' ' + load +
                       (line.isSet(QStringLiteral("json")) ? " json" : ""));
    return ExitOk;
}

} // namespace

void TestCommandLine::readsOptionsAndArguments()
{
    QCOMPARE(runWith(runSome, {QStringLiteral("a")}).out, QByteArray("a  none"));
    QCOMPARE(runWith(runSome, {QStringLiteral("a"), QStringLiteral("--json"), QStringLiteral("-n"),
                               QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("--load"),
                               QStringLiteral("50")})
                 .out,
             QByteArray("a|- - 50 json"));
    QCOMPARE(runWith(runSome, {QStringLiteral("--load=hi-z"), QStringLiteral("--number=7"),
                               QStringLiteral("--"), QStringLiteral("-x")})
                 .out,
             QByteArray("-x 7 z"));
}

void TestCommandLine::printsHelp()
{
    const CommandResult result = runWith(runSome, {QStringLiteral("--help")});
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(result.err, QByteArray());
    QVERIFY(result.out.startsWith(
        "Usage: mpwv some [options] FILE...\nDoes something.\n\nOptions:\n"
        "  -h, --help             Print this help.\n  -n, --number <NUMBER>  A number.\n"));
    for (const QByteArray& line : result.out.split('\n'))
        QVERIFY2(line.size() < 80, line.constData());
}

void TestCommandLine::complains_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* arguments, const char* complaint) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments).split(QLatin1Char(' '),
                                                                       Qt::SkipEmptyParts)
                                 << QByteArray(complaint);
    };
    row("", "too few arguments");
    row("a b c", "one argument too many: c");
    row("- -", "the standard input can be read once only");
    row("--odd a", "Unknown option 'odd'.");
    row("a -n", "Missing value after '-n'.");
    row("a --json=1", "Unexpected value after '--json'.");
    row("a --load 75", "--load: \"75\" is neither 50 nor hi-z");
    row("a --load=", "--load: \"\" is neither 50 nor hi-z");
}

void TestCommandLine::complains()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const CommandResult result = runWith(runSome, arguments);
    QCOMPARE(result.exitCode, int(ExitUsage));
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err,
             "mpwv: some: " + complaint + "\nmpwv: \"mpwv some --help\" tells how it is used\n");
}

void TestCommandLine::replacesTheLoadOnly()
{
    const QJsonObject document = withMember(defaultSetup(), SetupKey::LoadImpedance, 10000);
    QVERIFY(trainOf(document, std::nullopt).load == LoadImpedance::HighZ);
    const PulseTrain train = trainOf(document, LoadImpedance::Ohm50);
    QVERIFY(train.load == LoadImpedance::Ohm50);
    QCOMPARE(train.fileAmplitude(), 2.0);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "test_commandline.moc"
