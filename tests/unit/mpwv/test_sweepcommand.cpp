// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"
#include "pulsetrain.h"

#include <QTemporaryDir>
#include <QtTest>

#define PREFIXES "; n, u, m, k, M and G may stand behind a number"

/// "mpwv sweep": the series of setups of a double-pulse test.
class TestSweepCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void makesWidths();
    void makesCurrents();
    void sweepsAnotherPulse();
    void keepsUnknownMembers();
    void refusesUse_data();
    void refusesUse();
    void refusesAMissingPulse();
    void writesAllOrNothing();
    void printsCsvAndJson();

private:
    QString series() const { return m_pFolder->filePath(QStringLiteral("series")); }
    CommandResult sweep(const QStringList& options) const;
    QJsonObject document(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

void TestSweepCommand::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(writeBytes(m_pFolder->filePath(QStringLiteral("base.json")), jsonText(defaultSetup())));
}

CommandResult TestSweepCommand::sweep(const QStringList& options) const
{
    return runWith(runSweep, QStringList{m_pFolder->filePath(QStringLiteral("base.json")),
                                         QStringLiteral("-o"), series()} +
                                 options);
}

QJsonObject TestSweepCommand::document(const char* name) const
{
    const QString path = series() + QLatin1Char('/') + QLatin1String(name);
    return QJsonDocument::fromJson(fileBytes(path)).object();
}

// The period is 32 us and the width: 34, 34.5 and 35 us.
void TestSweepCommand::makesWidths()
{
    const CommandResult result = sweep({QStringLiteral("--width"), QStringLiteral("2u:3u:500n")});
    QCOMPARE(result.err, QByteArray());
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(QDir(series()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             (QStringList{QStringLiteral("base_w2.000u.json"), QStringLiteral("base_w2.500u.json"),
                          QStringLiteral("base_w3.000u.json")}));
    QCOMPARE(document("base_w2.000u.json"), defaultSetup());
    QCOMPARE(document("base_w2.500u.json"),
             withRows(defaultSetup(), {{QStringLiteral("2.500u"), QStringLiteral("10.000u")},
                                       {QStringLiteral("2.000u"), QStringLiteral("10.000u")}}));
    const QByteArrayList lines = result.out.split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0).simplified(), QByteArray("file width_s played_s period_s frequency_Hz"));
    QVERIFY(lines.at(2).simplified().startsWith("base_w2.500u.json 2.5e-06 2.4998"));
    QVERIFY(lines.at(2).endsWith("3.45e-05  28985.507246"));
}

// 50 uH at 400 V: 1.25 us for each 10 A.
void TestSweepCommand::makesCurrents()
{
    const CommandResult result = sweep(
        {QStringLiteral("--current"), QStringLiteral("10A:100A:10A"), QStringLiteral("--voltage"),
         QStringLiteral("400V"), QStringLiteral("--inductance"), QStringLiteral("50\u00B5H")});
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(QDir(series()).entryList(QDir::Files).size(), 10);
    const PulseTrain first = PulseTrain::fromDocument(document("base_i010_w01.250u.json"));
    const PulseTrain last = PulseTrain::fromDocument(document("base_i100_w12.500u.json"));
    QVERIFY(qAbs(first.pulses.at(0).width - 1.25e-6) < 1e-15);
    QVERIFY(qAbs(last.pulses.at(0).width - 12.5e-6) < 1e-15);
    QVERIFY(result.out.startsWith("file                     current_A    width_s "));
}

void TestSweepCommand::sweepsAnotherPulse()
{
    QCOMPARE(sweep({QStringLiteral("--pulse"), QStringLiteral("2"), QStringLiteral("--width"),
                    QStringLiteral("20n")})
                 .exitCode,
             int(ExitOk));
    QCOMPARE(document("base_w0.020u.json"),
             withRows(defaultSetup(), {{QStringLiteral("2.000u"), QStringLiteral("10.000u")},
                                       {QStringLiteral("20.000n"), QStringLiteral("10.000u")}}));
}

void TestSweepCommand::keepsUnknownMembers()
{
    QJsonObject odd = withMember(defaultSetup(), QStringLiteral("odd"), QStringLiteral("kept"));
    odd.insert(QStringLiteral("other plug-in"), QJsonArray{1, 2});
    QVERIFY(writeBytes(m_pFolder->filePath(QStringLiteral("base.json")), jsonText(odd)));
    QCOMPARE(sweep({QStringLiteral("--width"), QStringLiteral("2u")}).exitCode, int(ExitOk));
    QCOMPARE(document("base_w2.000u.json"), odd);
}

void TestSweepCommand::refusesUse_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const char* options, const char* complaint) {
        QTest::newRow(name) << QString::fromUtf8(options).split(QLatin1Char(' '),
                                                                Qt::SkipEmptyParts)
                            << QByteArray(complaint);
    };
    row("neither", "", "give either --width or --current");
    row("both", "--width 2u --current 1", "give either --width or --current");
    row("range", "--width 2u:3u",
        "--width: \"2u:3u\" is no range FROM:TO:STEP such as 2u:20u:1u" PREFIXES);
    row("unit", "--width 2uV",
        "--width: \"2uV\" is no range FROM:TO:STEP such as 2u:20u:1u" PREFIXES);
    row("away", "--width 3u:2u:1u",
        "--width: \"3u:2u:1u\" is no range FROM:TO:STEP such as 2u:20u:1u" PREFIXES);
    row("standing", "--width 2u:3u:0",
        "--width: \"2u:3u:0\" is no range FROM:TO:STEP such as 2u:20u:1u" PREFIXES);
    row("short", "--width 19n:30n:1n", "a width of 19.000 ns is outside 20.000 ns to 150.000 us");
    row("long", "--width 150u:151u:1u", "a width of 151.000 us is outside 20.000 ns to 150.000 us");
    row("grid", "--width 2u:2.002u:0.5n", "a width of 2.0005e-06 s is not a multiple of 1 ns");
    row("many", "--width 20n:150u:1n", "more than 10000 setups");
    row("voltage", "--current 1", "--current wants --voltage");
    row("bad voltage", "--current 1 --voltage 400A",
        "--voltage: \"400A\" is no number above 0 such as 400 or 400V" PREFIXES);
    row("inductance", "--current 1 --voltage 400 --inductance 0",
        "--inductance: \"0\" is no number above 0 such as 50u or 50uH" PREFIXES);
    row("width with voltage", "--width 2u --voltage 400",
        "--voltage goes with --current, not with --width");
    row("width with inductance", "--width 2u --inductance 50u",
        "--inductance goes with --current, not with --width");
    row("standard output", "--width 2u -o -",
        "-o -: a series goes into a folder, not to the standard output");
    row("large current", "--current 10:10000:10 --voltage 400 --inductance 50u",
        "1210 A: a width of 151.250 us is outside 20.000 ns to 150.000 us");
    row("pulse", "--pulse 0 --width 2u", "--pulse: \"0\" is no number of a pulse, from 1 on");
    row("pulse by current", "--pulse 2 --current 10 --voltage 400 --inductance 50u",
        "--pulse 2 goes with --width: --current sweeps the first pulse");
}

void TestSweepCommand::refusesUse()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, complaint);
    const CommandResult result = sweep(options);
    QCOMPARE(result.err,
             "mpwv: sweep: " + complaint + "\nmpwv: \"mpwv sweep --help\" tells how it is used\n");
    QCOMPARE(result.exitCode, int(ExitUsage));
    QVERIFY(!QFile::exists(series()));
}

void TestSweepCommand::refusesAMissingPulse()
{
    const CommandResult result = sweep({QStringLiteral("--pulse"), QStringLiteral("3"),
                                        QStringLiteral("--width"), QStringLiteral("2u")});
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err, "mpwv: " + m_pFolder->filePath(QStringLiteral("base.json")).toUtf8() +
                             ": multiple pulses.width/gap: 2 rows, no pulse 3\n");
    QVERIFY(!QFile::exists(series()));
}

void TestSweepCommand::writesAllOrNothing()
{
    QVERIFY(QDir().mkpath(series()));
    const QString taken = series() + QLatin1String("/base_w2.500u.json");
    QVERIFY(writeBytes(taken, "mine"));
    const CommandResult result = sweep({QStringLiteral("--width"), QStringLiteral("2u:3u:500n")});
    QCOMPARE(result.exitCode, int(ExitOutput));
    QCOMPARE(result.err, "mpwv: " + taken.toUtf8() + ": exists already\n");
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(QDir(series()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("base_w2.500u.json")));
    QCOMPARE(fileBytes(taken), QByteArray("mine"));
}

void TestSweepCommand::printsCsvAndJson()
{
    const CommandResult csv =
        sweep({QStringLiteral("--width"), QStringLiteral("6u"), QStringLiteral("--csv")});
    QVERIFY(csv.out.startsWith("file,width_s,played_s,period_s,frequency_Hz\n"
                               "base_w6.000u.json,6e-06,"));
    QVERIFY(csv.out.endsWith(",3.8e-05,26315.789474\n"));

    const CommandResult json =
        sweep({QStringLiteral("--width"), QStringLiteral("7u:8u:1u"), QStringLiteral("--json")});
    const QJsonArray setups = QJsonDocument::fromJson(json.out).array();
    QCOMPARE(setups.size(), 2);
    QCOMPARE(setups.at(1).toObject().value(QStringLiteral("file")).toString(),
             QStringLiteral("base_w8.000u.json"));
    const CommandResult tenths = sweep(
        {QStringLiteral("--width"), QStringLiteral("0.1u:0.9u:0.1u"), QStringLiteral("--json")});
    QVERIFY2(tenths.out.contains("\"width\": 3e-07\n"), tenths.out.constData());
    QVERIFY2(tenths.out.contains("\"period\": 3.23e-05,\n"), tenths.out.constData());
    QVERIFY(qAbs(setups.at(1).toObject().value(QStringLiteral("period")).toDouble() - 40e-6) <
            1e-15);
}

QTEST_GUILESS_MAIN(TestSweepCommand)
#include "test_sweepcommand.moc"
