// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"

#include "logcapture.h"
#include "thumbnailreference.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace appPlugins;

namespace {

const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

using Volts = std::vector<double>;

// Shows the stream that the class keeps to itself.
template<typename Base>
class Opened : public Base
{
public:
    std::FILE* stream() const { return this->fp; }
};

const QRegularExpression& headerWarning()
{
    static const QRegularExpression form(
        QStringLiteral("^headerWrite 0x[0-9a-f]+ \n 0x[0-9a-f]+$"));
    return form;
}

void expectHeaderWarning()
{
    QTest::ignoreMessage(QtWarningMsg, headerWarning());
}

QByteArray content(const QByteArray& path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

bool writeWaveform(QByteArray path, Volts& data, double amp = 2, double offset = 0)
{
    CWaveformFileWriter writer;
    return writer.write(path.data(), Uint32(data.size()), amp, offset, data.data());
}

Volts randomVolts(size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> level(-4.9, 5.0);
    Volts data(count);
    for (double& value : data)
        value = level(random);
    return data;
}

// The sample of a voltage between the waveform's bounds, one at a time.
qint16 expectedSample(double value, double low, double high)
{
    const double normalised = (value - (low + high) * 0.5) / ((high - low) * 0.5);
    return qint16(std::trunc(double(float(normalised)) * 32764.0));
}

QByteArray littleEndian(const std::vector<int>& samples)
{
    QByteArray bytes;
    for (const int sample : samples)
        bytes.append(char(sample & 0xFF)).append(char((sample >> 8) & 0xFF));
    return bytes;
}

bool isNear(const Volts& found, const Volts& expected, double tolerance)
{
    for (size_t i = 0; i < expected.size(); ++i) {
        if (!(std::fabs(found[i] - expected[i]) <= tolerance))
            return false;
    }
    return found.size() == expected.size();
}

} // namespace

Q_DECLARE_METATYPE(std::vector<double>)

class TestCFileBase : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void fileIsWrittenByteForByte();
    void fullLengthFile();
    void samplesAreWritten_data();
    void samplesAreWritten();
    void samplesOfRandomWaveforms_data();
    void samplesOfRandomWaveforms();
    void levelsAreStoredAsPassed_data();
    void levelsAreStoredAsPassed();
    void emptyFile();
    void callersSamplesAreRestored_data();
    void callersSamplesAreRestored();
    void headerWarningSpansTheWorkArray();
    void thumbnailOfTheFile_data();
    void thumbnailOfTheFile();

    void writeFails_data();
    void writeFails();
    void fullDevice_data();
    void fullDevice();
    void headerFailureClosesAndRestores();
    void dataFailureClosesAndRestores();

    void existence();
    void readOpen();
    void readOpenClosesWhatWasOpen();
    void writeOpenTruncates();
    void writeOpenClosesWhatWasOpen();
    void appendOpenAppends();
    void appendOpenKeepsAnOpenStream();
    void closeForgetsTheStream();

private:
    QByteArray path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name)).toUtf8();
    }
    QByteArray put(const char* name, const QByteArray& bytes) const
    {
        QFile file(QString::fromUtf8(path(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a test file");
        return path(name);
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestCFileBase::fileIsWrittenByteForByte()
{
    Volts data = {-1.25, 0, 1.25};
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), data, 2.5, 0.25));

    QByteArray expected("QRNKVX60K\0\0\0\0\0\0\0", 16);
    expected += QByteArray("\xC2\xF0\x31\x01", 4);
    expected += QByteArray("\x03\0\0\0", 4);
    expected += QByteArray("\x01\0\0\0", 4);
    // Exchanged, the samples are 0x0480, 0 and 0xFC7F: 18, 0 and the low byte of 1009.
    expected += QByteArray("\x12\x12\0\0\xF1\xF1", 6) + QByteArray(406, '\0');
    expected += QByteArray("\0\0\0\0\0\0\x04\x40", 8);
    expected += QByteArray("\0\0\0\0\0\0\xD0\x3F", 8);
    expected += QByteArray(56, '\0');
    expected += QByteArray("\x04\x80\0\0\xFC\x7F", 6);
    QCOMPARE(content(path("a.mpwv")), expected);
}

void TestCFileBase::fullLengthFile()
{
    Volts data(131072, -1.0);
    std::fill(data.begin() + 1000, data.begin() + 70000, 1.0);
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("long.mpwv"), data));

    const QByteArray bytes = content(path("long.mpwv"));
    QCOMPARE(bytes.size(), 512 + 262144);
    QCOMPARE(bytes.left(9), QByteArray("QRNKVX60K"));
    QCOMPARE(bytes.mid(9, 7), QByteArray(7, '\0'));
    QCOMPARE(bytes.mid(16, 4).toHex(), QByteArray("c2f03101"));
    QCOMPARE(bytes.mid(20, 4).toHex(), QByteArray("00000200"));
    QCOMPARE(bytes.mid(512 + 2 * 999, 4).toHex(), QByteArray("0480fc7f"));
    QCOMPARE(bytes.mid(512 + 2 * 69999, 4).toHex(), QByteArray("fc7f0480"));
}

void TestCFileBase::samplesAreWritten_data()
{
    QTest::addColumn<Volts>("data");
    QTest::addColumn<QByteArray>("samples");
    const auto row = [](const char* name, const Volts& data, const std::vector<int>& samples) {
        QTest::newRow(name) << data << littleEndian(samples);
    };
    row("both ends", {-1.25, 1.25}, {-32764, 32764});
    row("ends of a one-sided waveform", {0, 3.3, 0}, {-32764, 32764, -32764});
    row("half of the way", {-1, 0.5, 1}, {-32764, 16382, 32764});
    row("cut toward zero", {-1, 1.0 / 3, -1.0 / 3, 1}, {-32764, 10921, -10921, 32764});
    // In double precision the sample is a hair below 8191, in single precision it is 8191.
    row("narrowed first", {-1, 0.25 - 1e-12, 1}, {-32764, 8191, 32764});
    row("constant", {3, 3, 3, 3}, {0, 0, 0, 0});
    row("constant zero", {0, 0}, {0, 0});
    row("one point", {-2}, {0});
    // The lower bound starts at 1000: data above it is placed between 1000 and its maximum.
    row("above the initial bounds", {2000, 1750, 1500}, {32764, 16382, 0});
    row("constant above the initial bounds", {1500, 1500}, {32764, 32764});
    row("below the initial bounds", {-2000, -1500}, {-32764, 0});
    row("not a number", {-1, NotANumber, 1}, {-32764, 0, 32764});
    row("infinite", {-1, Infinity, 1}, {0, 0, 0});
    // Seventeen values: one more than two vectors of eight.
    row("odd length", {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -1},
        {32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764, 32764,
         32764, 32764, 32764, -32764});
}

void TestCFileBase::samplesAreWritten()
{
    QFETCH(Volts, data);
    QFETCH(QByteArray, samples);
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), data));
    QCOMPARE(content(path("a.mpwv")).mid(512).toHex(' '), samples.toHex(' '));
}

void TestCFileBase::samplesOfRandomWaveforms_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {2, 7, 8, 9, 255, 256, 257, 4096, 131072})
        QTest::newRow(qPrintable(QString::number(points))) << points;
}

void TestCFileBase::samplesOfRandomWaveforms()
{
    QFETCH(int, points);
    const Volts data = randomVolts(size_t(points), 20050114u);
    Volts passed = data;
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), passed));

    const double low = *std::min_element(data.begin(), data.end());
    const double high = *std::max_element(data.begin(), data.end());
    std::vector<int> samples;
    for (const double value : data)
        samples.push_back(expectedSample(value, low, high));
    QVERIFY(content(path("a.mpwv")).mid(512) == littleEndian(samples));
}

void TestCFileBase::levelsAreStoredAsPassed_data()
{
    QTest::addColumn<double>("amp");
    QTest::addColumn<double>("offset");
    QTest::newRow("unlike the data") << 7.5 << -0.1;
    QTest::newRow("zero") << 0.0 << 0.0;
    QTest::newRow("negative") << -2.0 << -5.0;
    QTest::newRow("infinite") << Infinity << -Infinity;
}

void TestCFileBase::levelsAreStoredAsPassed()
{
    QFETCH(double, amp);
    QFETCH(double, offset);
    Volts data = {-0.5, 0.5};
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), data, amp, offset));

    QByteArray levels(16, '\0');
    std::memcpy(levels.data(), &amp, 8);
    std::memcpy(levels.data() + 8, &offset, 8);
    QCOMPARE(content(path("a.mpwv")).mid(440, 16).toHex(), levels.toHex());
}

void TestCFileBase::emptyFile()
{
    Volts none;
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), none, 1, 0));
    const QByteArray bytes = content(path("a.mpwv"));
    QCOMPARE(bytes.size(), 512);
    QCOMPARE(bytes.mid(20, 8).toHex(), QByteArray("0000000001000000"));
    QCOMPARE(bytes.mid(28, 412), QByteArray(412, '\0'));
}

void TestCFileBase::callersSamplesAreRestored_data()
{
    QTest::addColumn<Volts>("data");
    QTest::newRow("random") << randomVolts(5000, 7);
    QTest::newRow("constant") << Volts(500, 3.3);
    QTest::newRow("symmetric") << Volts{-2.5, 0.1, 2.5};
    QTest::newRow("above the initial bounds") << Volts{1200, 1300.5, 1999};
    QTest::newRow("below the initial bounds") << Volts{-1200, -1300.5, -1999};
}

void TestCFileBase::callersSamplesAreRestored()
{
    QFETCH(Volts, data);
    Volts passed = data;
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), passed));
    double largest = 0;
    for (const double value : data)
        largest = std::max(largest, std::fabs(value));
    // Two round trips of subtract, divide, multiply and add.
    QVERIFY(isNear(passed, data, 8 * largest * std::numeric_limits<double>::epsilon()));
}

void TestCFileBase::headerWarningSpansTheWorkArray()
{
    Volts data = randomVolts(1234, 1);
    QStringList messages;
    {
        const LogCapture log;
        QVERIFY(writeWaveform(path("a.mpwv"), data));
        messages = LogCapture::messages();
    }
    QCOMPARE(messages.size(), 1);
    const QRegularExpression form(
        QStringLiteral("^warning: headerWrite 0x([0-9a-f]+) \n 0x([0-9a-f]+)$"));
    const QRegularExpressionMatch match = form.match(messages.first());
    QVERIFY2(match.hasMatch(), qPrintable(messages.first()));
    QCOMPARE(match.captured(2).toULongLong(nullptr, 16) -
                 match.captured(1).toULongLong(nullptr, 16),
             2 * 1234ull);
}

void TestCFileBase::thumbnailOfTheFile_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {1, 100, 206, 207, 309, 411, 412, 1000, 2060, 65535, 131072})
        QTest::newRow(qPrintable(QString::number(points))) << points;
}

void TestCFileBase::thumbnailOfTheFile()
{
    QFETCH(int, points);
    // A pulse on a slow random slope: strokes of every height, rises and falls.
    Volts data = randomVolts(size_t(points), unsigned(points));
    for (size_t i = data.size() / 3; i < data.size() / 2; ++i)
        data[i] = 5.0;
    expectHeaderWarning();
    QVERIFY(writeWaveform(path("a.mpwv"), data));

    const QByteArray bytes = content(path("a.mpwv"));
    const QByteArray expected =
        ThumbnailReference::thumbnail(ThumbnailReference::exchangedWords(bytes.mid(512)));
    QCOMPARE(bytes.mid(28, 412).toHex(' '), expected.toHex(' '));
}

void TestCFileBase::writeFails_data()
{
    QTest::addColumn<QByteArray>("relative");
    QTest::newRow("no such folder") << QByteArray("missing/a.mpwv");
    QTest::newRow("a folder") << QByteArray(".");
    QTest::newRow("name too long") << QByteArray(300, 'x');
}

void TestCFileBase::writeFails()
{
    QFETCH(QByteArray, relative);
    Volts data = {-1, 1};
    // No header is made for a file that cannot be opened, hence no warning either.
    QVERIFY(!writeWaveform(path(relative.constData()), data));
    QCOMPARE(data, (Volts{-1, 1}));
}

void TestCFileBase::fullDevice_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("fits the stream's buffer") << 10;
    QTest::newRow("header alone") << 0;
    QTest::newRow("more than the buffer") << 131072;
}

void TestCFileBase::fullDevice()
{
    QFETCH(int, points);
    const Volts data = randomVolts(size_t(points), 3);
    Volts passed = data;
    expectHeaderWarning();
    QVERIFY(!writeWaveform("/dev/full", passed));
    QVERIFY(isNear(passed, data, 1e-14));
}

void TestCFileBase::headerFailureClosesAndRestores()
{
    Opened<CWaveformFileWriter> writer;
    QByteArray full("/dev/full");
    QVERIFY(writer.writeOpen(full.data()));
    std::setvbuf(writer.stream(), nullptr, _IONBF, 0);
    Volts data = {1, 2, 4};
    expectHeaderWarning();
    QVERIFY(!writer.headerWrite(3, 1, 0, data.data()));
    QVERIFY(writer.stream() == nullptr);
    QVERIFY(isNear(data, {1, 2, 4}, 1e-14));
}

void TestCFileBase::dataFailureClosesAndRestores()
{
    Opened<CWaveformFileWriter> writer;
    QByteArray full("/dev/full");
    QVERIFY(writer.writeOpen(full.data()));
    std::setvbuf(writer.stream(), nullptr, _IONBF, 0);
    Volts data = {1, 2, 4};
    QVERIFY(!writer.dataWrite(3, data.data()));
    QVERIFY(writer.stream() == nullptr);
    QVERIFY(isNear(data, {1, 2, 4}, 1e-14));
}

void TestCFileBase::existence()
{
    QVERIFY(FileIsExist(put("here", "x").constData()));
    QVERIFY(FileIsExist(path(".").constData()));
    QVERIFY(!FileIsExist(path("missing").constData()));
    QVERIFY(!FileIsExist(""));
}

void TestCFileBase::readOpen()
{
    Opened<CFileBase> file;
    QVERIFY(file.readOpen(put("a", "first").data()));
    QCOMPARE(std::fgetc(file.stream()), int('f'));
    QCOMPARE(std::fputc('x', file.stream()), EOF);
}

void TestCFileBase::readOpenClosesWhatWasOpen()
{
    Opened<CFileBase> file;
    QVERIFY(file.readOpen(put("a", "first").data()));
    QVERIFY(file.readOpen(put("b", "second").data()));
    QCOMPARE(std::fgetc(file.stream()), int('s'));
    QVERIFY(!file.readOpen(path("missing").data()));
    QVERIFY(file.stream() == nullptr);
}

void TestCFileBase::writeOpenTruncates()
{
    Opened<CFileBase> file;
    QVERIFY(file.writeOpen(put("a", "first").data()));
    QCOMPARE(content(path("a")), QByteArray());
    QVERIFY(file.writeOpen(path("new").data()));
    QVERIFY(FileIsExist(path("new").constData()));
}

void TestCFileBase::writeOpenClosesWhatWasOpen()
{
    Opened<CFileBase> file;
    QVERIFY(file.writeOpen(path("a").data()));
    std::fputs("kept", file.stream());
    QVERIFY(file.writeOpen(path("b").data()));
    QCOMPARE(content(path("a")), QByteArray("kept"));
    QVERIFY(!file.writeOpen(path("missing/c").data()));
    QVERIFY(file.stream() == nullptr);
}

void TestCFileBase::appendOpenAppends()
{
    QByteArray name = put("a", "first ");
    {
        Opened<CFileBase> file;
        QVERIFY(file.appendOpen(name.data()));
        std::fputs("second", file.stream());
    }
    QCOMPARE(content(name), QByteArray("first second"));

    Opened<CFileBase> file;
    QVERIFY(file.appendOpen(path("new").data()));
    QVERIFY(FileIsExist(path("new").constData()));
    file.close();
    QVERIFY(!file.appendOpen(path("missing/c").data()));
}

void TestCFileBase::appendOpenKeepsAnOpenStream()
{
    Opened<CWaveformFileWriter> writer;
    QVERIFY(writer.writeOpen(path("a").data()));
    std::FILE* const stream = writer.stream();
    std::fputs("one ", stream);
    QVERIFY(writer.appendOpen(path("b").data()));
    QVERIFY(writer.stream() == stream);
    QVERIFY(!FileIsExist(path("b").constData()));
    std::fputs("two", stream);
    writer.close();
    QCOMPARE(content(path("a")), QByteArray("one two"));
}

void TestCFileBase::closeForgetsTheStream()
{
    Opened<CFileBase> file;
    file.close();
    QVERIFY(file.writeOpen(path("a").data()));
    file.close();
    QVERIFY(file.stream() == nullptr);
    file.close();
    QVERIFY(file.stream() == nullptr);
}

QTEST_APPLESS_MAIN(TestCFileBase)

#include "test_cfilebase.moc"
