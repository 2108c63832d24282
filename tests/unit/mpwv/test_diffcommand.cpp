// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"
#include "trainsamples.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// "mpwv diff": differences of setups and waveform files.
class TestDiffCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_pQuiet.reset(); }
    void findsNoDifference();
    void tellsMovedEdgesOfSetups();
    void tellsMovedEdgesOfFilesInPoints();
    void comparesASetupWithAFile();
    void comparesMembersThatNoSampleShows();
    void refuses();

private:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
    std::unique_ptr<WithoutLibraryLog> m_pQuiet;
};

namespace {

// The first pulse is longer by the time that its gap is shorter: one edge moves.
QJsonObject shifted()
{
    return withRows(defaultSetup(), {{QStringLiteral("4.000u"), QStringLiteral("8.000u")},
                                     {QStringLiteral("2.000u"), QStringLiteral("10.000u")}});
}

bool writeWaveform(const QString& path, const QJsonObject& document)
{
    return writeTrainWaveform(QFile::encodeName(path).constData(),
                              PulseTrain::fromDocument(document));
}

} // namespace

void TestDiffCommand::initTestCase()
{
    m_pQuiet = std::make_unique<WithoutLibraryLog>();
    QVERIFY(writeBytes(path("a.json"), jsonText(defaultSetup())));
    QVERIFY(writeBytes(path("b.json"), jsonText(shifted())));
    QVERIFY(writeWaveform(path("a.mpwv"), defaultSetup()));
    QVERIFY(writeWaveform(path("b.mpwv"), shifted()));
}

void TestDiffCommand::findsNoDifference()
{
    for (const char* name : {"a.json", "a.mpwv"}) {
        const CommandResult result = runWith(runDiff, {path(name), path(name)});
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.exitCode, int(ExitOk));
    }
}

// 34 us in 131072 points: 22 us get 84811 of them, 10 us of these 38550, 2 us 7710, 4 us 15420 and
// 8 us 30840. The shorter gap loses no half point more: both files have the same length.
void TestDiffCommand::tellsMovedEdgesOfSetups()
{
    const CommandResult result = runWith(runDiff, {path("a.json"), path("b.json")});
    QCOMPARE(result.exitCode, int(ExitFound));
    const QByteArrayList lines = result.out.split('\n');
    QCOMPARE(lines.at(0),
             QByteArray("multiple pulses.width/gap[0].gap: \"10.000u\" -> \"8.000u\""));
    QCOMPARE(lines.at(1),
             QByteArray("multiple pulses.width/gap[0].width: \"2.000u\" -> \"4.000u\""));
    QVERIFY(lines.at(2).startsWith("thumbnail: "));
    QCOMPARE(lines.at(3), QByteArray("samples: 7710 of 131070 differ, the first at point 46260, by "
                                     "65528 at most"));
    QCOMPARE(lines.at(4), QByteArray("edge 2: point 46260 -> 53970, +7710 points, +2.000 us"));
    QCOMPARE(lines.mid(5), QByteArrayList{QByteArray()});
}

void TestDiffCommand::tellsMovedEdgesOfFilesInPoints()
{
    const CommandResult result = runWith(runDiff, {path("b.mpwv"), path("a.mpwv")});
    QCOMPARE(result.exitCode, int(ExitFound));
    QVERIFY2(result.out.endsWith("\nedge 2: point 53970 -> 46260, -7710 points\n"),
             result.out.constData());
}

void TestDiffCommand::comparesASetupWithAFile()
{
    QCOMPARE(runWith(runDiff, {path("a.json"), path("a.mpwv")}).exitCode, int(ExitOk));
    QCOMPARE(runWith(runDiff, {QStringLiteral("-"), path("b.mpwv")}, jsonText(shifted())).exitCode,
             int(ExitOk));
    const CommandResult result = runWith(runDiff, {path("b.json"), path("a.mpwv")});
    QCOMPARE(result.exitCode, int(ExitFound));
    QVERIFY(result.out.endsWith("\nedge 2: point 53970 -> 46260, -7710 points\n"));
}

void TestDiffCommand::comparesMembersThatNoSampleShows()
{
    const QJsonObject other = withMember(defaultSetup(), SetupKey::TriggerSource, 2);
    const CommandResult result =
        runWith(runDiff, {path("a.json"), QStringLiteral("-")}, jsonText(other));
    QCOMPARE(result.out, QByteArray("multiple pulses.trigger source: 0 -> 2\n"));
    QCOMPARE(result.exitCode, int(ExitFound));
}

void TestDiffCommand::refuses()
{
    QCOMPARE(runWith(runDiff, {path("a.json")}).exitCode, int(ExitUsage));
    const CommandResult result = runWith(runDiff, {path("a.json"), path("missing")});
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err, "mpwv: " + path("missing").toUtf8() + ": No such file or directory\n");
    QCOMPARE(result.out, QByteArray());
}

QTEST_GUILESS_MAIN(TestDiffCommand)
#include "test_diffcommand.moc"
