// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformreader.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <limits>

using namespace appPlugins;

namespace {

const double Infinity = std::numeric_limits<double>::infinity();

template<typename Number>
void putNumber(QByteArray& bytes, int offset, Number number)
{
    std::memcpy(bytes.data() + offset, &number, sizeof number);
}

// A sound file of the given samples, put together without the writer.
QByteArray fileBytes(const std::vector<qint16>& samples, double amp = 2, double offset = 0.5)
{
    QByteArray bytes(512, '\0');
    std::memcpy(bytes.data(), "QRNKVX60K", 9);
    putNumber(bytes, 16, quint32(20050114));
    putNumber(bytes, 20, quint32(samples.size()));
    putNumber(bytes, 24, qint32(1));
    bytes[28] = 17;
    bytes[439] = 18;
    putNumber(bytes, 440, amp);
    putNumber(bytes, 448, offset);
    for (const qint16 sample : samples)
        bytes.append(char(sample & 0xFF)).append(char((sample >> 8) & 0xFF));
    return bytes;
}

const std::vector<qint16> ThreeSamples = {-32764, 0x0102, 32764};

template<typename Number>
QByteArray damaged(int offset, Number number)
{
    QByteArray bytes = fileBytes(ThreeSamples);
    putNumber(bytes, offset, number);
    return bytes;
}

} // namespace

class TestWaveformReader : public QObject
{
    Q_OBJECT

private slots:
    void parsesAFile();
    void parsesAnEmptyFile();
    void parsesTheLargestFile();
    void refusesDamage_data();
    void refusesDamage();
    void voltsFromTheHeader_data();
    void voltsFromTheHeader();
    void readsFromDisk();
    void readsWhatTheWriterWrites();
    void cannotRead_data();
    void cannotRead();
    void refusesAnEndlessFile();
};

void TestWaveformReader::parsesAFile()
{
    WaveformFile file;
    file.samples = {9, 9, 9, 9, 9};
    QCOMPARE(parseWaveform(fileBytes(ThreeSamples), file), QString());
    QCOMPARE(file.samples, ThreeSamples);
    QCOMPARE(file.header.points, 3u);
    QCOMPARE(file.header.version, 20050114u);
    QCOMPARE(file.header.hasThumbnail, 1);
    QCOMPARE(int(file.header.thumbnail[0]), 17);
    QCOMPARE(int(file.header.thumbnail[411]), 18);
    QCOMPARE(file.header.ampValue, 2.0);
    QCOMPARE(file.header.offsetValue, 0.5);
}

void TestWaveformReader::parsesAnEmptyFile()
{
    WaveformFile file;
    file.samples = {9};
    QCOMPARE(parseWaveform(fileBytes({}), file), QString());
    QVERIFY(file.samples.empty());
    QCOMPARE(file.header.points, 0u);
}

void TestWaveformReader::parsesTheLargestFile()
{
    WaveformFile file;
    std::vector<qint16> samples(1048576, 1);
    QCOMPARE(parseWaveform(fileBytes(samples), file), QString());
    QCOMPARE(file.samples.size(), size_t(1048576));

    samples.push_back(1);
    QVERIFY(parseWaveform(fileBytes(samples), file).startsWith(QLatin1String("points: 1048577 ")));
    QCOMPARE(file.samples.size(), size_t(1048576));
}

void TestWaveformReader::refusesDamage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("member");
    const auto row = [](const char* name, const QByteArray& bytes, const char* member) {
        QTest::newRow(name) << bytes << QString(QLatin1String(member));
    };
    const QByteArray sound = fileBytes(ThreeSamples);
    row("nothing", QByteArray(), "size");
    row("header cut short", sound.left(511), "size");
    row("sample missing", sound.left(sound.size() - 2), "size");
    row("half a sample missing", sound.left(sound.size() - 1), "size");
    row("a byte too many", sound + 'x', "size");
    row("points beyond the file", damaged(20, quint32(4)), "size");
    row("points short of the file", damaged(20, quint32(2)), "size");
    row("points overflow", damaged(20, quint32(0x80000003)), "points");
    row("most points", damaged(20, quint32(0xFFFFFFFF)), "points");
    row("magic", damaged(0, 'q'), "magic");
    row("magic's last letter", damaged(8, 'k'), "magic");
    row("magic's filling", damaged(15, '\x01'), "magic");
    row("version", damaged(16, quint32(20050115)), "version");
    row("amplitude", damaged(440, std::numeric_limits<double>::quiet_NaN()), "ampValue");
    row("infinite amplitude", damaged(440, Infinity), "ampValue");
    row("offset", damaged(448, std::numeric_limits<double>::quiet_NaN()), "offsetValue");
    row("infinite offset", damaged(448, -Infinity), "offsetValue");
}

void TestWaveformReader::refusesDamage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, member);
    WaveformFile file;
    file.samples = {7};
    file.header.points = 1;
    const QString reason = parseWaveform(bytes, file);
    QVERIFY2(reason.startsWith(member + QLatin1String(": ")), qPrintable(reason));
    QCOMPARE(file.samples, (std::vector<qint16>{7}));
    QCOMPARE(file.header.points, 1u);
}

void TestWaveformReader::voltsFromTheHeader_data()
{
    QTest::addColumn<double>("amp");
    QTest::addColumn<double>("offset");
    QTest::addColumn<int>("sample");
    QTest::addColumn<double>("volts");
    QTest::newRow("high level") << 2.0 << 0.5 << 32764 << 1.5;
    QTest::newRow("low level") << 2.0 << 0.5 << -32764 << -0.5;
    QTest::newRow("middle") << 2.0 << 0.5 << 0 << 0.5;
    QTest::newRow("quarter") << 5.0 << 0.0 << 16382 << 1.25;
    QTest::newRow("most negative number") << 2.0 << 0.0 << -32768 << -32768.0 / 32764;
}

void TestWaveformReader::voltsFromTheHeader()
{
    QFETCH(double, amp);
    QFETCH(double, offset);
    QFETCH(int, sample);
    WaveformFile file;
    file.header.ampValue = amp;
    file.header.offsetValue = offset;
    QTEST(file.volts(qint16(sample)), "volts");
}

void TestWaveformReader::readsFromDisk()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("W\xC3\xA4rme.mpwv"));
    QFile target(path);
    QVERIFY(target.open(QIODevice::WriteOnly));
    target.write(fileBytes(ThreeSamples));
    target.close();

    WaveformFile file;
    QCOMPARE(readWaveform(path, file), QString());
    QCOMPARE(file.samples, ThreeSamples);
}

void TestWaveformReader::readsWhatTheWriterWrites()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.mpwv"));
    double data[] = {-1, 0.5, 1, -0.25};
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^headerWrite ")));
    CWaveformFileWriter writer;
    QVERIFY(writer.write(path.toUtf8().data(), 4, 2, 0, data));

    WaveformFile file;
    QCOMPARE(readWaveform(path, file), QString());
    QCOMPARE(file.samples, (std::vector<qint16>{-32764, 16382, 32764, -8191}));
    QCOMPARE(file.volts(file.samples.at(1)), 0.5);
}

void TestWaveformReader::cannotRead_data()
{
    QTest::addColumn<QString>("relative");
    QTest::newRow("missing") << QStringLiteral("missing.mpwv");
    QTest::newRow("a folder") << QStringLiteral(".");
}

void TestWaveformReader::cannotRead()
{
    QFETCH(QString, relative);
    const QTemporaryDir folder;
    WaveformFile file;
    file.samples = {7};
    QVERIFY(!readWaveform(folder.filePath(relative), file).isEmpty());
    QCOMPARE(file.samples, (std::vector<qint16>{7}));
}

void TestWaveformReader::refusesAnEndlessFile()
{
    WaveformFile file;
    QVERIFY(readWaveform(QStringLiteral("/dev/zero"), file).startsWith(QLatin1String("size: ")));
    QVERIFY(file.samples.empty());
}

QTEST_APPLESS_MAIN(TestWaveformReader)

#include "test_waveformreader.moc"
