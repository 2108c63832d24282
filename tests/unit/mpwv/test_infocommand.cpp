// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"
#include "commandrun.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <vector>

/// "mpwv info": what a waveform file holds.
class TestInfoCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_pQuiet.reset(); }
    void printsText();
    void printsJson();
    void tellsOfAnEmptyWaveform();
    void refuses_data();
    void refuses();

private:
    QTemporaryDir m_folder;
    QString m_strPath;
    std::unique_ptr<WithoutLibraryLog> m_pQuiet;
};

// 412 points: two pulses of 100 and 12 points, two points to a column of the thumbnail.
void TestInfoCommand::initTestCase()
{
    m_pQuiet = std::make_unique<WithoutLibraryLog>();
    std::vector<double> volts(412, -1.0);
    std::fill_n(volts.begin() + 100, 100, 3.0);
    std::fill_n(volts.begin() + 300, 12, 3.0);
    m_strPath = m_folder.filePath(QStringLiteral("w.mpwv"));
    QByteArray path = QFile::encodeName(m_strPath);
    appPlugins::CWaveformFileWriter writer;
    QVERIFY(writer.write(path.data(), 412, 4, 1, volts.data()));
}

void TestInfoCommand::printsText()
{
    const CommandResult result = runWith(runInfo, {m_strPath});
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(result.err, QByteArray());
    const QList<QByteArray> lines = result.out.split('\n');
    const QList<QByteArray> head = {m_strPath.toUtf8(),
                                    "magic         QRNKVX60K",
                                    "version        20050114",
                                    "points              412",
                                    "hasThumbnail          1",
                                    "ampValue            4 V",
                                    "offsetValue         1 V",
                                    "high level          3 V",
                                    "low level          -1 V",
                                    "",
                                    "2 pulses upwards, in points",
                                    "pulse  start  width  gap     level",
                                    "1        100    100  100  3.0000 V",
                                    "2        300     12  100  3.0000 V",
                                    "",
                                    "thumbnail"};
    QCOMPARE(lines.mid(0, head.size()), head);
    QCOMPARE(lines.size(), head.size() + 8 + 1);
    QVERIFY(QString::fromUtf8(lines.at(head.size())).contains(QChar(0x2588)));
}

void TestInfoCommand::printsJson()
{
    const CommandResult result = runWith(runInfo, {QStringLiteral("--json"), m_strPath});
    QCOMPARE(result.exitCode, int(ExitOk));
    const QJsonObject info = QJsonDocument::fromJson(result.out).object();
    QCOMPARE(info.value(QStringLiteral("points")).toInt(), 412);
    QCOMPARE(info.value(QStringLiteral("version")).toInt(), 20050114);
    QCOMPARE(info.value(QStringLiteral("ampValue")).toDouble(), 4.0);
    QCOMPARE(info.value(QStringLiteral("highLevel")).toDouble(), 3.0);
    QCOMPARE(info.value(QStringLiteral("lowLevel")).toDouble(), -1.0);
    QCOMPARE(info.value(QStringLiteral("pulses")).toArray().size(), 2);
    const QJsonObject pulse = info.value(QStringLiteral("pulses")).toArray().at(1).toObject();
    QCOMPARE(pulse.value(QStringLiteral("start")).toInt(), 300);
    QCOMPARE(pulse.value(QStringLiteral("width")).toInt(), 12);
    QCOMPARE(pulse.value(QStringLiteral("level")).toDouble(), 3.0);
    const QJsonArray thumbnail = info.value(QStringLiteral("thumbnail")).toArray();
    QCOMPARE(thumbnail.size(), 206);
    const QByteArray header = fileBytes(m_strPath).mid(28, 412);
    for (int i = 0; i < 206; ++i)
        QCOMPARE(thumbnail.at(i).toArray(),
                 (QJsonArray{quint8(header.at(2 * i)), quint8(header.at(2 * i + 1))}));
}

void TestInfoCommand::tellsOfAnEmptyWaveform()
{
    const QString path = m_folder.filePath(QStringLiteral("empty.mpwv"));
    QByteArray name = QFile::encodeName(path);
    appPlugins::CWaveformFileWriter writer;
    QVERIFY(writer.write(name.data(), 0, 1, 0, nullptr));
    const CommandResult result = runWith(runInfo, {path});
    QCOMPARE(result.exitCode, int(ExitOk));
    QVERIFY(result.out.contains("\nno pulses\n"));
}

void TestInfoCommand::refuses_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray bytes = fileBytes(m_strPath);
    QTest::newRow("nothing") << QByteArray()
                             << QByteArray("not a JSON text: illegal value at line "
                                           "1, column 1");
    QTest::newRow("truncated") << bytes.left(1000)
                               << QByteArray("size: 1000 bytes instead of 1336 for 412 points");
    QTest::newRow("too long") << bytes + 'x'
                              << QByteArray("size: 1337 bytes instead of 1336 for 412 points");
    QByteArray version = bytes;
    version[16] = 0;
    QTest::newRow("version") << version << QByteArray("version: 20049920 instead of 20050114");
    QByteArray huge = bytes;
    huge[23] = '\xff';
    QTest::newRow("points") << huge
                            << QByteArray("points: 4278190492 are more than the 1048576 that a "
                                          "waveform may have");
    QByteArray level = bytes;
    level.replace(440, 8, QByteArray("\0\0\0\0\0\0\xf8\x7f", 8));
    QTest::newRow("level") << level << QByteArray("ampValue: not a finite number");
}

void TestInfoCommand::refuses()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, reason);
    const CommandResult result = runWith(runInfo, {QStringLiteral("-")}, input);
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err, "mpwv: standard input: " + reason + '\n');
    QCOMPARE(result.out, QByteArray());

    const CommandResult setup = runWith(runInfo, {QStringLiteral("-")}, "{\"a\":1}");
    QCOMPARE(setup.exitCode, int(ExitInput));
    QCOMPARE(setup.err, QByteArray("mpwv: -: a setup where a waveform file is wanted\n"));
}

QTEST_GUILESS_MAIN(TestInfoCommand)
#include "test_infocommand.moc"
