// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"
#include "trainsamples.h"

#include <QTemporaryDir>
#include <QtTest>

/// "mpwv check": findings, one a line, and the exit code.
class TestCheckCommand : public QObject
{
    Q_OBJECT

private slots:
    void passesGoodFiles();
    void printsFindings();
    void tellsDamagedFilesFromUnreadableOnes();
    void readsStandardInput();
};

void TestCheckCommand::passesGoodFiles()
{
    const WithoutLibraryLog quiet;
    const QTemporaryDir folder;
    const QString setup = folder.filePath(QStringLiteral("a.json"));
    const QString waveform = folder.filePath(QStringLiteral("a.mpwv"));
    QVERIFY(writeBytes(setup, jsonText(defaultSetup())));
    QVERIFY(writeTrainWaveform(QFile::encodeName(waveform).constData(),
                               PulseTrain::fromDocument(defaultSetup())));
    const CommandResult result = runWith(runCheck, {setup, waveform});
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err, QByteArray());
    QCOMPARE(result.exitCode, int(ExitOk));
}

void TestCheckCommand::printsFindings()
{
    const QTemporaryDir folder;
    const QString good = folder.filePath(QStringLiteral("good.json"));
    const QString odd = folder.filePath(QStringLiteral("odd.json"));
    QVERIFY(writeBytes(good, jsonText(defaultSetup())));
    QVERIFY(
        writeBytes(odd, jsonText(withMember(withMember(defaultSetup(), SetupKey::TriggerSource, 7),
                                            QStringLiteral("odd"), 1))));
    const CommandResult result = runWith(runCheck, {odd, good});
    QCOMPARE(result.out, odd.toUtf8() + ": multiple pulses.trigger source: 7 is outside 0 to 2\n" +
                             odd.toUtf8() + ": multiple pulses.odd: unknown member\n");
    QCOMPARE(result.err, QByteArray());
    QCOMPARE(result.exitCode, int(ExitFound));
}

void TestCheckCommand::tellsDamagedFilesFromUnreadableOnes()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.mpwv"));
    const QString text = folder.filePath(QStringLiteral("x.json"));
    QVERIFY(writeBytes(path, "QRNKVX60K"));
    QVERIFY(writeBytes(text, "{]"));

    const CommandResult damaged = runWith(runCheck, {path});
    QCOMPARE(damaged.out, path.toUtf8() + ": size: 9 bytes are less than the header's 512\n");
    QCOMPARE(damaged.exitCode, int(ExitFound));

    const CommandResult both = runWith(runCheck, {text, path});
    QCOMPARE(both.out, damaged.out);
    QCOMPARE(both.err, "mpwv: " + text.toUtf8() +
                           ": not a JSON text: unterminated object at line 1, column 3\n");
    QCOMPARE(both.exitCode, int(ExitInput));
}

void TestCheckCommand::readsStandardInput()
{
    const CommandResult result =
        runWith(runCheck, {QStringLiteral("-")}, "{\"multiple pulses\":{}}");
    QVERIFY(result.out.startsWith("-: multiple pulses.pulse numbers: missing, reads as 0"));
    QCOMPARE(result.exitCode, int(ExitFound));
}

QTEST_GUILESS_MAIN(TestCheckCommand)
#include "test_checkcommand.moc"
