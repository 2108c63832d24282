// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "input.h"

#include "commandrun.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(LoadImpedance)

class TestInput : public QObject
{
    Q_OBJECT

private slots:
    void parsesEngineering_data();
    void parsesEngineering();
    void parsesUnits_data();
    void parsesUnits();
    void refusesEngineering_data();
    void refusesEngineering();
    void printsEngineering_data();
    void printsEngineering();
    void parsesLoad();
    void refusesSetups_data();
    void refusesSetups();
    void takesSetups_data();
    void takesSetups();
    void tellsFilesFromSetups();
    void namesTheFile();
    void refusesFoldersAndMissingFiles();
    void refusesEndlessInput();
    void writesWholeFiles();
    void tellsWhyAnOutputIsNotWritten();
    void protectsTheInput();
    void keepsTextsOnOneLine();

private:
    QString reasonFor(const QByteArray& text, QJsonObject& document) const;
};

QString TestInput::reasonFor(const QByteArray& text, QJsonObject& document) const
{
    QBuffer in;
    in.setData(text);
    in.open(QIODevice::ReadOnly);
    Streams streams = {&in, nullptr, nullptr, false};
    return readSetup(QStringLiteral("-"), streams, document);
}

void TestInput::parsesEngineering_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("plain") << QStringLiteral("400") << 400.0;
    QTest::newRow("micro") << QStringLiteral("3u") << 3e-06;
    QTest::newRow("nano with decimals") << QStringLiteral("20.5n") << 20.5e-09;
    QTest::newRow("milli") << QStringLiteral("0.5m") << 0.0005;
    QTest::newRow("kilo") << QStringLiteral("1K") << 1000.0;
    QTest::newRow("small kilo") << QStringLiteral("2k") << 2000.0;
    QTest::newRow("micro sign") << QStringLiteral("2\u00B5") << 2e-6;
    QTest::newRow("Greek letter") << QStringLiteral("2\u03BC") << 2e-6;
    QTest::newRow("mega") << QStringLiteral("2M") << 2e6;
    QTest::newRow("giga") << QStringLiteral("2G") << 2e9;
    QTest::newRow("exponent") << QStringLiteral("2e-6") << 2e-06;
    QTest::newRow("exponent and prefix") << QStringLiteral("2e3u") << 0.002;
    QTest::newRow("negative") << QStringLiteral("-1u") << -1e-06;
    QTest::newRow("no digit before the point") << QStringLiteral(".5") << 0.5;
}

void TestInput::parsesEngineering()
{
    QFETCH(QString, text);
    double value = 0;
    QVERIFY(parseEngineering(text, value));
    QTEST(value, "value");
}

void TestInput::parsesUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("good");
    QTest::addColumn<double>("value");
    const auto row = [](const char* text, const char* unit, bool good, double value) {
        QTest::addRow("%s in %s", text, unit)
            << QString::fromUtf8(text) << QString::fromUtf8(unit) << good << value;
    };
    row("2us", "s", true, 2e-6);
    row("2\xC2\xB5s", "s", true, 2e-6);
    row("2s", "s", true, 2);
    row("400V", "V", true, 400);
    row("50uH", "H", true, 50e-6);
    row("10A", "A", true, 10);
    row("31.25kHz", "Hz", true, 31250);
    row("2e-6s", "s", true, 2e-6);
    row("2u", "s", true, 2e-6);
    row("2V", "s", false, 17);
    row("2uss", "s", false, 17);
    row("s", "s", false, 17);
    row("2 us", "s", false, 17);
    row("2US", "s", false, 17);
}

void TestInput::parsesUnits()
{
    QFETCH(QString, text);
    QFETCH(QString, unit);
    double value = 17;
    QTEST(parseEngineering(text, value, unit), "good");
    QTEST(value, "value");
}

void TestInput::refusesEngineering_data()
{
    QTest::addColumn<QString>("text");
    const char* const texts[] = {"",   "u",     "2us",  "2V",  "2 u", " 2",  "2u ",
                                 "u2", "2uu",   "0x10", "inf", "nan", "1,5", ".",
                                 "2h", "1e999", "2\nu", "--2", "1e"};
    for (const char* text : texts)
        QTest::newRow(qPrintable(QLatin1Char('"') + QLatin1String(text)))
            << QString::fromUtf8(text);
}

void TestInput::refusesEngineering()
{
    QFETCH(QString, text);
    double value = 17;
    QVERIFY(!parseEngineering(text, value));
    QCOMPARE(value, 17.0);
}

void TestInput::printsEngineering_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    const QString s = QStringLiteral("s");
    QTest::newRow("micro") << 2e-06 << s << QStringLiteral("2.000 us");
    QTest::newRow("kilo") << 125000.0 << QStringLiteral("Hz") << QStringLiteral("125.000 kHz");
    QTest::newRow("pico") << 244.15e-12 << s << QStringLiteral("244.150 ps");
    QTest::newRow("below pico") << 1e-15 << s << QStringLiteral("0.001 ps");
    QTest::newRow("zero") << 0.0 << s << QStringLiteral("0.000 s");
    QTest::newRow("negative") << -5e-06 << s << QStringLiteral("-5.000 us");
    QTest::newRow("just below a thousand") << 999.9996e-06 << s << QStringLiteral("1.000 ms");
    QTest::newRow("negative below a thousand") << -999.9996e-06 << s << QStringLiteral("-1.000 ms");
    QTest::newRow("a thousand") << 1e-06 << s << QStringLiteral("1.000 us");
    QTest::newRow("beyond the prefixes") << 1e13 << s << QStringLiteral("1.000e+13 s");
    QTest::newRow("largest plain") << 999.9e9 << s << QStringLiteral("999.900 Gs");
    QTest::newRow("huge") << -1e300 << s << QStringLiteral("-1.000e+300 s");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << s
                              << QStringLiteral("inf s");
}

void TestInput::printsEngineering()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QTEST(engineeringText(value, unit), "text");
}

void TestInput::parsesLoad()
{
    LoadImpedance load = LoadImpedance::HighZ;
    QVERIFY(parseLoad(QStringLiteral("50"), load));
    QVERIFY(load == LoadImpedance::Ohm50);
    QVERIFY(parseLoad(QStringLiteral("hi-z"), load));
    QVERIFY(load == LoadImpedance::HighZ);
    load = LoadImpedance::Ohm50;
    QVERIFY(parseLoad(QStringLiteral("Hi-Z"), load));
    QVERIFY(load == LoadImpedance::HighZ);
    for (const char* text : {"", "HIZ", "10000", "50 ", "75"})
        QVERIFY2(!parseLoad(QLatin1String(text), load), text);
    QVERIFY(load == LoadImpedance::HighZ);
}

void TestInput::refusesSetups_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QString name = QStringLiteral("standard input: ");
    QTest::newRow("empty") << QByteArray()
                           << name + QLatin1String("not a JSON text: illegal value at line 1, "
                                                   "column 1");
    QTest::newRow("cut off") << QByteArray("{\n \"a\": 1,\n \"b\"")
                             << name + QLatin1String("not a JSON text: unterminated string at "
                                                     "line 3, column 5");
    QTest::newRow("array") << QByteArray("[1]")
                           << name + QLatin1String("not a setup: a JSON array where an object is "
                                                   "wanted");
    QTest::newRow("empty object") << QByteArray("{}")
                                  << name + QLatin1String("not a setup: the JSON object is empty");
    QTest::newRow("waveform file")
        << QByteArray("QRNKVX60K\0\0", 11)
        << name + QLatin1String("a waveform file where a setup is wanted");
    QTest::newRow("too deep") << QByteArray(100000, '[')
                              << name + QLatin1String("not a JSON text: too deeply nested document "
                                                      "at line 1, column 1026");
}

void TestInput::refusesSetups()
{
    QFETCH(QByteArray, text);
    QJsonObject document = {{QStringLiteral("kept"), 1}};
    QTEST(reasonFor(text, document), "reason");
    QCOMPARE(document.size(), 1);
}

void TestInput::takesSetups_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("any member") << QByteArray("{\"a\":1}");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF{\"a\":1}");
    QTest::newRow("blanks around") << QByteArray("\n {\"a\":1} \n");
}

void TestInput::takesSetups()
{
    QFETCH(QByteArray, text);
    QJsonObject document;
    QCOMPARE(reasonFor(text, document), QString());
    QCOMPARE(document.value(QStringLiteral("a")).toInt(), 1);
}

void TestInput::tellsFilesFromSetups()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("named.mpwv"));
    Streams streams = {nullptr, nullptr, nullptr, false};
    Input input;

    QVERIFY(writeBytes(path, "{\"a\":1}"));
    QCOMPARE(readInput(path, streams, input), QString());
    QCOMPARE(input.kind, Input::Setup);

    QVERIFY(writeBytes(path, QByteArray(600, 'x')));
    QCOMPARE(readInput(path, streams, input), path + QLatin1String(": magic: not a waveform file"));

    QVERIFY(writeBytes(path, "QRNKVX60K"));
    QCOMPARE(readInput(path, streams, input),
             path + QLatin1String(": size: 9 bytes are less than the header's 512"));
}

void TestInput::namesTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a\nb.json"));
    QVERIFY(writeBytes(path, "{}"));
    Streams streams = {nullptr, nullptr, nullptr, false};
    QJsonObject document;
    const QString reason = readSetup(path, streams, document);
    QVERIFY2(reason.endsWith(QLatin1String("a\\u000ab.json: not a setup: the JSON object is "
                                           "empty")),
             qPrintable(reason));
}

void TestInput::refusesFoldersAndMissingFiles()
{
    const QTemporaryDir folder;
    Streams streams = {nullptr, nullptr, nullptr, false};
    QByteArray bytes;
    QCOMPARE(readBytes(folder.path(), streams, bytes),
             folder.path() + QLatin1String(": is a folder"));
    const QString missing = folder.filePath(QStringLiteral("missing"));
    QCOMPARE(readBytes(missing, streams, bytes),
             missing + QLatin1String(": No such file or directory"));
}

void TestInput::refusesEndlessInput()
{
    Streams streams = {nullptr, nullptr, nullptr, false};
    QByteArray bytes;
    QCOMPARE(readBytes(QStringLiteral("/dev/zero"), streams, bytes),
             QStringLiteral("/dev/zero: size: more than the 67108864 bytes that are read"));
}

void TestInput::writesWholeFiles()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out"));
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    Streams streams = {nullptr, &out, nullptr, false};
    QVERIFY(writeBytes(path, "a longer old text"));
    QCOMPARE(writeOutput(path, "new", streams), QString());
    QCOMPARE(fileBytes(path), QByteArray("new"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);

    QCOMPARE(writeOutput(QStringLiteral("-"), "bytes", streams), QString());
    QCOMPARE(out.data(), QByteArray("bytes"));
}

void TestInput::tellsWhyAnOutputIsNotWritten()
{
    Streams streams = {nullptr, nullptr, nullptr, false};
    QCOMPARE(writeOutput(QStringLiteral("/nowhere/out"), "x", streams),
             QStringLiteral("/nowhere/out: No such file or directory"));
    QCOMPARE(writeOutput(QStringLiteral("/dev/full"), "x", streams),
             QStringLiteral("/dev/full: No space left on device"));
    QCOMPARE(writeOutput(QStringLiteral("/tmp"), "x", streams),
             QStringLiteral("/tmp: is a folder"));
}

void TestInput::protectsTheInput()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a"));
    const QString link = folder.filePath(QStringLiteral("b"));
    const QString other = folder.filePath(QStringLiteral("c"));
    QVERIFY(writeBytes(path, "x"));
    QVERIFY(writeBytes(other, "x"));
    QVERIFY(QFile::link(path, link));
    QCOMPARE(overwriteReason(path, path), path + QLatin1String(" is the input and would be "
                                                               "overwritten"));
    QVERIFY(!overwriteReason(folder.path() + QLatin1String("/./a"), path).isEmpty());
    QVERIFY(!overwriteReason(path, link).isEmpty());
    QCOMPARE(overwriteReason(path, other), QString());
    QCOMPARE(overwriteReason(path, folder.filePath(QStringLiteral("new"))), QString());
    QCOMPARE(overwriteReason(QStringLiteral("-"), QStringLiteral("-")), QString());
    const QString device = QStringLiteral("/dev/null");
    QCOMPARE(overwriteReason(device, device), QString());
}

void TestInput::keepsTextsOnOneLine()
{
    QCOMPARE(printable(QStringLiteral("plain \u00b5s")), QStringLiteral("plain \u00b5s"));
    QCOMPARE(printable(QStringLiteral("a\n\u001b[31m")), QStringLiteral("a\\u000a\\u001b[31m"));
    QCOMPARE(printable(QStringLiteral("\u2028\u202e")), QStringLiteral("\\u2028\\u202e"));
    QCOMPARE(printable(QString(500, QLatin1Char('x'))).size(), 203);
}

QTEST_APPLESS_MAIN(TestInput)
#include "test_input.moc"
