// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

/// The built program, and its man page beside it.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void listsItsCommands();
    void helpsWithEachCommand_data();
    void helpsWithEachCommand();
    void manPageKnowsEachOption_data();
    void manPageKnowsEachOption();
    void manPageKnowsNoOtherCommand();
    void rendersThroughPipes();
    void keepsItsErrorStreamClean();
    void tellsOfAFullOutput();
    void refusesUnknownCommands();
    void leavesNothingHalfDone_data();
    void leavesNothingHalfDone();

private:
    static CommandResult run(const QStringList& arguments, const QByteArray& input = QByteArray(),
                             const QString& output = QString());
    static QStringList commands();
    static void addCommandRows();
};

namespace {

QString manPage()
{
    const QString source = QString::fromLocal8Bit(qgetenv("MPB_SOURCE_DIR"));
    QString text = QString::fromUtf8(fileBytes(source + QLatin1String("/docs/mpwv.1")));
    return text.replace(QLatin1String("\\-"), QLatin1String("-"));
}

// The part of the man page that follows the heading of a command.
QString manSection(const QString& command)
{
    const QString text = manPage();
    const QRegularExpression heading(QStringLiteral("^\\.SS %1\\b.*$").arg(command),
                                     QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = heading.match(text);
    if (!match.hasMatch())
        return QString();
    const int end =
        text.indexOf(QRegularExpression(QStringLiteral("\\n\\.S[SH] ")), match.capturedEnd());
    return text.mid(match.capturedStart(), end - match.capturedStart());
}

QSet<QString> optionsIn(const QString& text, const QString& line)
{
    QSet<QString> options;
    QRegularExpressionMatchIterator lines =
        QRegularExpression(line, QRegularExpression::MultilineOption).globalMatch(text);
    while (lines.hasNext()) {
        static const QRegularExpression option(QStringLiteral("(?<![\\w-])--?[a-z][a-z-]*"));
        QRegularExpressionMatchIterator found = option.globalMatch(lines.next().captured(1));
        while (found.hasNext())
            options.insert(found.next().captured());
    }
    return options;
}

} // namespace

CommandResult TestProgram::run(const QStringList& arguments, const QByteArray& input,
                               const QString& output)
{
    QProcess process;
    if (!output.isEmpty())
        process.setStandardOutputFile(output);
    process.start(QString::fromLocal8Bit(qgetenv("MPB_BIN_DIR")) + QLatin1String("/mpwv"),
                  arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString().toUtf8()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QStringList TestProgram::commands()
{
    const QString help = QString::fromUtf8(run({QStringLiteral("--help")}).out);
    const QString list =
        help.section(QStringLiteral("Commands:\n"), 1, 1).section(QStringLiteral("\n\n"), 0, 0);
    QStringList names;
    for (const QString& line : list.split(QLatin1Char('\n')))
        names.append(line.simplified().section(QLatin1Char(' '), 0, 0));
    return names;
}

void TestProgram::addCommandRows()
{
    QTest::addColumn<QString>("command");
    for (const QString& command : commands())
        QTest::newRow(qPrintable(command)) << command;
}

void TestProgram::listsItsCommands()
{
    QCOMPARE(commands().join(QLatin1Char(' ')),
             QStringLiteral("render info check timing diff sweep plot csv commands play stop "
                            "identify"));
    const CommandResult version = run({QStringLiteral("--version")});
    QCOMPARE(version.exitCode, int(ExitOk));
    QVERIFY(version.out.startsWith("mpwv "));
}

void TestProgram::helpsWithEachCommand_data()
{
    addCommandRows();
}

void TestProgram::helpsWithEachCommand()
{
    QFETCH(QString, command);
    const CommandResult result = run({command, QStringLiteral("--help")});
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(result.err, QByteArray());
    QVERIFY(result.out.startsWith("Usage: mpwv " + command.toUtf8() + ' '));
    QVERIFY(result.out.contains("-h, --help"));
}

void TestProgram::manPageKnowsEachOption_data()
{
    addCommandRows();
}

void TestProgram::manPageKnowsEachOption()
{
    QFETCH(QString, command);
    const QString help = QString::fromUtf8(run({command, QStringLiteral("--help")}).out);
    QSet<QString> offered = optionsIn(help, QStringLiteral("^  (-.*?)(?:  |$)"));
    offered.remove(QStringLiteral("-h"));
    offered.remove(QStringLiteral("--help"));
    const QSet<QString> described =
        optionsIn(manSection(command), QStringLiteral("^\\.TP\\n\\.[BIR]+ (.*)$"));
    QCOMPARE(described, offered);

    // The usage line's arguments stand in the section's heading.
    const QString usage = help.section(QLatin1Char('\n'), 0, 0)
                              .remove(QStringLiteral("Usage: mpwv "))
                              .remove(QStringLiteral(" [options]"));
    QCOMPARE(manSection(command).section(QLatin1Char('\n'), 0, 0),
             QLatin1String(".SS ") + usage.trimmed());
}

void TestProgram::manPageKnowsNoOtherCommand()
{
    QStringList sections;
    QRegularExpressionMatchIterator found =
        QRegularExpression(QStringLiteral("^\\.SS (\\S+)"), QRegularExpression::MultilineOption)
            .globalMatch(manPage());
    while (found.hasNext())
        sections.append(found.next().captured(1));
    QCOMPARE(sections, commands());
}

void TestProgram::rendersThroughPipes()
{
    const CommandResult rendered =
        run({QStringLiteral("render"), QStringLiteral("-")}, jsonText(defaultSetup()));
    QCOMPARE(rendered.exitCode, int(ExitOk));
    QCOMPARE(rendered.err, QByteArray());
    QCOMPARE(rendered.out.size(), 512 + 2 * 131070);

    const CommandResult info =
        run({QStringLiteral("info"), QStringLiteral("-"), QStringLiteral("--json")}, rendered.out);
    QCOMPARE(info.exitCode, int(ExitOk));
    const QJsonObject header = QJsonDocument::fromJson(info.out).object();
    QCOMPARE(header.value(QStringLiteral("points")).toInt(), 131070);
    QCOMPARE(header.value(QStringLiteral("pulses")).toArray().size(), 2);
    const CommandResult check = run({QStringLiteral("check"), QStringLiteral("-")}, rendered.out);
    QCOMPARE(check.exitCode, int(ExitOk));
}

// The library's log and the toolkit's remarks are for developers.
void TestProgram::keepsItsErrorStreamClean()
{
    const QTemporaryDir folder;
    const QString setup = folder.filePath(QStringLiteral("a.json"));
    QVERIFY(writeBytes(setup, jsonText(defaultSetup())));
    const QString picture = folder.filePath(QStringLiteral("a.svg"));
    const CommandResult plot = run({QStringLiteral("plot"), setup, QStringLiteral("-o"), picture});
    QCOMPARE(plot.err, QByteArray());
    QCOMPARE(plot.exitCode, int(ExitOk));
    const CommandResult render = run({QStringLiteral("render"), setup});
    QCOMPARE(render.err, QByteArray());
}

void TestProgram::tellsOfAFullOutput()
{
    const CommandResult result = run({QStringLiteral("timing"), QStringLiteral("-")},
                                     jsonText(defaultSetup()), QStringLiteral("/dev/full"));
    QCOMPARE(result.exitCode, int(ExitOutput));
    QVERIFY2(result.err.startsWith("mpwv: standard output: "), result.err.constData());
}

void TestProgram::refusesUnknownCommands()
{
    const CommandResult result = run({QStringLiteral("plott")});
    QCOMPARE(result.exitCode, int(ExitUsage));
    QCOMPARE(result.err,
             QByteArray("mpwv: there is no command \"plott\"; do you mean \"plot\"?\n"));
}

void TestProgram::leavesNothingHalfDone_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
}

// Several threads are in the middle of their files when the signal comes.
void TestProgram::leavesNothingHalfDone()
{
    QFETCH(int, number);
    const QTemporaryDir folder;
    QStringList arguments = {QStringLiteral("render"), QStringLiteral("-j8"), QStringLiteral("-o"),
                             folder.filePath(QStringLiteral("out"))};
    for (int i = 0; i < 2000; ++i) {
        arguments.append(folder.filePath(QStringLiteral("%1.json").arg(i)));
        QVERIFY(writeBytes(arguments.last(), jsonText(defaultSetup())));
    }
    // A signal that is ignored, as in the background of a shell, would be ignored by the program
    // too.
    std::signal(number, SIG_DFL);
    QProcess process;
    process.start(QString::fromLocal8Bit(qgetenv("MPB_BIN_DIR")) + QLatin1String("/mpwv"),
                  arguments);
    QVERIFY(process.waitForStarted());
    const QDir out(folder.filePath(QStringLiteral("out")));
    QTRY_VERIFY(!out.entryList(QDir::Files).isEmpty());
    QCOMPARE(::kill(pid_t(process.processId()), number), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), number);
    QVERIFY(out.entryList(QDir::Files).size() < 2000);
    for (const QFileInfo& file : out.entryInfoList(QDir::Files | QDir::Hidden))
        QVERIFY2(file.suffix() == QLatin1String("mpwv") && file.size() == 512 + 2 * 131070,
                 qPrintable(file.fileName()));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "test_program.moc"
