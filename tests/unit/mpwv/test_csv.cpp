// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"

#include "cfilebase.h"
#include "ranwith.h"

#include <QTemporaryDir>

#include <cstring>

namespace {

#define PREFIXES "; n, u, m, k, M and G may stand behind a number"

// A waveform file of four points at -1 V and 1 V.
QByteArray smallWaveform()
{
    appPlugins::WaveformFileHeader header = {};
    std::memcpy(header.info.magic, appPlugins::WaveformMagic, sizeof appPlugins::WaveformMagic - 1);
    header.info.version = appPlugins::WaveformVersion;
    header.info.points = 4;
    header.info.hasThumbnail = 1;
    header.info.ampValue = 2;
    QByteArray bytes(reinterpret_cast<const char*>(header.byte), sizeof header.byte);
    for (const qint16 sample : {-32764, 32764, 32764, -32764})
        bytes.append(char(sample & 0xFF)).append(char((sample >> 8) & 0xFF));
    return bytes;
}

} // namespace

class TestCsv : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }
    void setup();
    void load();
    void bareFile_data();
    void bareFile();
    void intoFile();
    void keepsItsInput();
    void usage_data();
    void usage();
    void refusedInput_data();
    void refusedInput();
    void outputFails();
    void help();
};

void TestCsv::setup()
{
    expectHeaderWarning();
    const Ran ran = ranWith(runCsv, {QStringLiteral("-")}, TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.err, QByteArray());
    const QList<QByteArray> lines = ran.out.split('\n');
    QCOMPARE(lines.size(), 131070 + 2);
    QCOMPARE(lines.at(0), QByteArray("time_s,volts"));
    QCOMPARE(lines.at(1), QByteArray("0,-1"));
    // The first pulse begins behind 38550 points of delay.
    QVERIFY(lines.at(38550).endsWith(",-1"));
    QVERIFY(lines.at(38551).endsWith(",1"));
    QCOMPARE(lines.at(38551).split(',').at(0).toDouble(), 38550 * (34e-6 / 131070));
}

void TestCsv::load()
{
    expectHeaderWarning();
    const Ran ran =
        ranWith(runCsv, {QStringLiteral("-"), QStringLiteral("--load"), QStringLiteral("hi-z")},
                TestSetup::doublePulse().json());
    QCOMPARE(ran.exitCode, int(ExitOk));
    // The levels of a setup are those at its load, whatever the load is.
    QVERIFY(ran.out.startsWith("time_s,volts\n0,-1\n"));
}

void TestCsv::bareFile_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("points") << QStringList() << QByteArray("point,volts\n0,-1\n1,1\n2,1\n3,-1\n");
    QTest::newRow("high impedance") << QStringList{QStringLiteral("--load"), QStringLiteral("hi-z")}
                                    << QByteArray("point,volts\n0,-2\n1,2\n2,2\n3,-2\n");
    QTest::newRow("period") << QStringList{QStringLiteral("--period"), QStringLiteral("2")}
                            << QByteArray("time_s,volts\n0,-1\n0.5,1\n1,1\n1.5,-1\n");
    QTest::newRow("period with prefix")
        << QStringList{QStringLiteral("--period"), QStringLiteral("4K")}
        << QByteArray("time_s,volts\n0,-1\n1000,1\n2000,1\n3000,-1\n");
    QTest::newRow("period with unit")
        << QStringList{QStringLiteral("--period"), QStringLiteral("4ks")}
        << QByteArray("time_s,volts\n0,-1\n1000,1\n2000,1\n3000,-1\n");
    QTest::newRow("frequency with unit")
        << QStringList{QStringLiteral("--frequency"), QStringLiteral("500mHz")}
        << QByteArray("time_s,volts\n0,-1\n0.5,1\n1,1\n1.5,-1\n");
    QTest::newRow("frequency") << QStringList{QStringLiteral("--frequency"), QStringLiteral("0.5")}
                               << QByteArray("time_s,volts\n0,-1\n0.5,1\n1,1\n1.5,-1\n");
}

void TestCsv::bareFile()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, expected);
    const Ran ran = ranWith(runCsv, QStringList(QStringLiteral("-")) + options, smallWaveform());
    QCOMPARE(ran.err, QByteArray());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, expected);
}

void TestCsv::intoFile()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    const Ran ran =
        ranWith(runCsv, {QStringLiteral("-"), QStringLiteral("-o"), path}, smallWaveform());
    QCOMPARE(ran.exitCode, int(ExitOk));
    QCOMPARE(ran.out, QByteArray());
    QCOMPARE(contentOf(path), QByteArray("point,volts\n0,-1\n1,1\n2,1\n3,-1\n"));
}

void TestCsv::keepsItsInput()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    writeFile(path, TestSetup::doublePulse().json());
    const Ran ran = ranWith(runCsv, {path, QStringLiteral("-o"), path});
    QCOMPARE(ran.exitCode, int(ExitUsage));
    QVERIFY(ran.err.startsWith("mpwv: csv: " + path.toUtf8() + " is the input and would be "));
    QCOMPARE(contentOf(path), TestSetup::doublePulse().json());
}

void TestCsv::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("complaint");
    const auto row = [](const char* name, const QStringList& arguments, const char* complaint) {
        QTest::newRow(name) << arguments << QByteArray(complaint);
    };
    const QString dash = QStringLiteral("-");
    row("nothing", {}, "csv: too few arguments");
    row("two inputs", {dash, QStringLiteral("b")}, "csv: one argument too many: b");
    row("period and frequency",
        {dash, QStringLiteral("--period=1"), QStringLiteral("--frequency=1")},
        "csv: --period and --frequency exclude each other");
    row("period zero", {dash, QStringLiteral("--period=0")},
        "csv: --period: \"0\" is no positive number such as 34u or 34us" PREFIXES);
    row("period negative", {dash, QStringLiteral("--period=-1")},
        "csv: --period: \"-1\" is no positive number such as 34u or 34us" PREFIXES);
    row("period with another unit", {dash, QStringLiteral("--period=2uV")},
        "csv: --period: \"2uV\" is no positive number such as 34u or 34us" PREFIXES);
    row("frequency no number", {dash, QStringLiteral("--frequency=fast")},
        "csv: --frequency: \"fast\" is no positive number such as 29.412k or 29.412kHz" PREFIXES);
}

void TestCsv::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, complaint);
    const Ran ran = ranWith(runCsv, arguments, smallWaveform());
    QCOMPARE(ran.exitCode, int(ExitUsage));
    QCOMPARE(ran.out, QByteArray());
    QCOMPARE(ran.err.split('\n').at(0), "mpwv: " + complaint);
}

void TestCsv::refusedInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{\"multiple pulses\":");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("header cut short") << smallWaveform().left(511);
    QTest::newRow("samples cut short") << smallWaveform().left(519);
    QTest::newRow("too long") << smallWaveform() + "xx";
}

void TestCsv::refusedInput()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    const Ran ran = ranWith(runCsv, {QStringLiteral("-"), QStringLiteral("-o"), path}, bytes);
    QCOMPARE(ran.exitCode, int(ExitInput));
    QVERIFY2(ran.err.startsWith("mpwv: standard input: "), ran.err.constData());
    QVERIFY(!QFile::exists(path));
}

void TestCsv::outputFails()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/out.csv"));
    const Ran ran =
        ranWith(runCsv, {QStringLiteral("-"), QStringLiteral("-o"), path}, smallWaveform());
    QCOMPARE(ran.exitCode, int(ExitOutput));
    QVERIFY2(ran.err.startsWith("mpwv: " + path.toUtf8() + ": "), ran.err.constData());
}

void TestCsv::help()
{
    const Ran ran = ranWith(runCsv, {QStringLiteral("--help")});
    QCOMPARE(ran.exitCode, int(ExitOk));
    for (const char* option : {"--load", "--period", "--frequency", "--output"})
        QVERIFY2(ran.out.contains(option), option);
}

QTEST_GUILESS_MAIN(TestCsv)
#include "test_csv.moc"
