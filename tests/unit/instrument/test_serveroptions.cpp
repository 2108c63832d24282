// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serveroptions.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

QStringList commandLine(const QByteArray& arguments)
{
    QStringList list{QStringLiteral("kvx-instrument")};
    for (const QByteArray& argument : arguments.split(' ')) {
        if (!argument.isEmpty())
            list.append(QString::fromUtf8(argument));
    }
    return list;
}

ServerOptions read(const QByteArray& arguments)
{
    ServerOptions options;
    const QString error = readServerOptions(commandLine(arguments), options);
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    return options;
}

} // namespace

class TestServerOptions : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void everyOption();
    void modes();
    void refused_data();
    void refused();
    void version();
    void manualHasEveryOption();
    void manualHasNoOther();
};

void TestServerOptions::defaults()
{
    const ServerOptions options = read("");
    QCOMPARE(options.mode, ServerOptions::Serve);
    QCOMPARE(int(options.port), 30000);
    QCOMPARE(options.userData, QStringLiteral("/mnt/user-data"));
    QCOMPARE(options.model, QStringLiteral("KVX7010X"));
    QCOMPARE(options.seed, 1U);
    QCOMPARE(options.faults.pieces, 1);
    QVERIFY(options.transcriptPath.isEmpty());
}

void TestServerOptions::everyOption()
{
    const ServerOptions options = read("--port 0 --user-data /x --model KVX705XX --fault slow=5 "
                                       "--fault rubbish,split --seed 4294967295 --transcript t");
    QCOMPARE(int(options.port), 0);
    QCOMPARE(options.userData, QStringLiteral("/x"));
    QCOMPARE(options.model, QStringLiteral("KVX705XX"));
    QCOMPARE(options.faults.slowMs, 5);
    QCOMPARE(options.faults.pieces, 3);
    QVERIFY(options.faults.rubbish);
    QCOMPARE(options.seed, 4294967295U);
    QCOMPARE(options.transcriptPath, QStringLiteral("t"));
}

void TestServerOptions::modes()
{
    const ServerOptions compare = read("--compare a b");
    QCOMPARE(compare.mode, ServerOptions::Compare);
    QCOMPARE(compare.firstPath, QStringLiteral("a"));
    QCOMPARE(compare.secondPath, QStringLiteral("b"));

    const ServerOptions replay = read("--replay a --model KVX7030X");
    QCOMPARE(replay.mode, ServerOptions::Replay);
    QCOMPARE(replay.replayPath, QStringLiteral("a"));
    QCOMPARE(replay.model, QStringLiteral("KVX7030X"));

    QCOMPARE(read("--help").mode, ServerOptions::ShowText);
}

void TestServerOptions::refused_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* arguments, const char* error) {
        QTest::newRow(arguments) << QByteArray(arguments) << QString::fromLatin1(error);
    };
    row("--nonsense", "Unknown option 'nonsense'.");
    row("--port", "Missing value after '--port'.");
    row("--port x", "--port x: not a whole number from 0 to 65535");
    row("--port 65536", "--port 65536: not a whole number from 0 to 65535");
    row("--port=-1", "--port -1: not a whole number from 0 to 65535");
    row("--seed 4294967296", "--seed 4294967296: not a whole number from 0 to 4294967295");
    row("--fault nonsense", "fault \"nonsense\": no such fault");
    row("--compare a", "--compare takes two files");
    row("--compare a b c", "--compare takes two files");
    row("a", "unexpected argument: a");
}

void TestServerOptions::refused()
{
    QFETCH(QByteArray, arguments);
    ServerOptions options;
    QTEST(readServerOptions(commandLine(arguments), options), "error");
}

void TestServerOptions::version()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("9.8.7"));
    QCOMPARE(read("--version").text, QStringLiteral("kvx-instrument 9.8.7\n"));
}

namespace {

QString manual()
{
    QFile file(qEnvironmentVariable("MPB_SOURCE_DIR") + QStringLiteral("/docs/kvx-instrument.1"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What @p pattern's only group matches in @p text.
QStringList allMatches(const QString& pattern, const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

} // namespace

void TestServerOptions::manualHasEveryOption()
{
    const QString help = read("--help").text;
    const QStringList options = allMatches(QStringLiteral("--([a-z-]+)[ ,]"), help);
    QVERIFY(options.size() >= 9);
    for (const QString& option : options)
        QVERIFY2(manual().contains(QStringLiteral(".It Fl -") + option), qPrintable(option));

    const QStringList faults =
        allMatches(QStringLiteral("\n([a-z-]+)[=[ ]"),
                   faultDescriptions().join(QLatin1Char('\n')).prepend(QLatin1Char('\n')));
    QCOMPARE(faults.size(), faultDescriptions().size());
    for (const QString& fault : faults)
        QVERIFY2(manual().contains(QStringLiteral(".It Cm ") + fault), qPrintable(fault));
}

void TestServerOptions::manualHasNoOther()
{
    const QString help = read("--help").text;
    const QStringList options = allMatches(QStringLiteral("\n\\.It Fl -([a-z-]+)"), manual());
    QVERIFY(!options.isEmpty());
    for (const QString& option : options)
        QVERIFY2(help.contains(QStringLiteral("--") + option), qPrintable(option));
    for (const QString& fault : allMatches(QStringLiteral("\n\\.It Cm ([a-z-]+)"), manual()))
        QVERIFY2(help.contains(QStringLiteral("\n  ") + fault), qPrintable(fault));
}

QTEST_GUILESS_MAIN(TestServerOptions)
#include "test_serveroptions.moc"
