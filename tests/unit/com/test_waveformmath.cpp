// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"

#include <QtTest>

#include <cstddef>
#include <cstring>
#include <limits>
#include <vector>

using namespace appPlugins;

namespace {

using Volts = std::vector<double>;

QByteArray convert(float sample)
{
    WaveformThumbnailData in[4];
    WaveformThumbnailData out[2] = {0xAA, 0xAA};
    std::memcpy(in, &sample, sizeof in);
    CnvtDoubleWfmDataToShortWfmData(in, out);
    return QByteArray(1, char(out[0])) + char(out[1]);
}

} // namespace

Q_DECLARE_METATYPE(std::vector<double>)

class TestWaveformMath : public QObject
{
    Q_OBJECT

private slots:
    void headerIsLaidOutAsInTheFile();
    void scalarMath_data();
    void scalarMath();
    void normalize_data();
    void normalize();
    void normalizeOfNothing();
    void unNormalizeUndoes();
    void conversion_data();
    void conversion();
    void strokesStayConnected();
    void strokesSpanTheirColumn();
    void fewPointsHaveAColumnEach();
    void noPointsDrawNothing();
};

void TestWaveformMath::headerIsLaidOutAsInTheFile()
{
    QCOMPARE(sizeof(WaveformFileHeader), size_t(512));
    QCOMPARE(sizeof(WaveformFileHeader::byte), size_t(512));
    QCOMPARE(offsetof(WaveformInfo, magic), size_t(0));
    QCOMPARE(offsetof(WaveformInfo, version), size_t(16));
    QCOMPARE(offsetof(WaveformInfo, points), size_t(20));
    QCOMPARE(offsetof(WaveformInfo, hasThumbnail), size_t(24));
    QCOMPARE(offsetof(WaveformInfo, thumbnail), size_t(28));
    QCOMPARE(sizeof(WaveformInfo::thumbnail), size_t(412));
    QCOMPARE(offsetof(WaveformInfo, ampValue), size_t(440));
    QCOMPARE(offsetof(WaveformInfo, offsetValue), size_t(448));
}

void TestWaveformMath::strokesStayConnected()
{
    // One word a column but for the last: three heights, a jump up and a fall.
    std::vector<WaveformData> words(207, 10 * 64);
    std::fill(words.begin() + 50, words.begin() + 100, WaveformData(50 * 64 + 63));
    std::fill(words.begin() + 100, words.end(), WaveformData(5 * 64));
    quint8 thumbnail[412] = {};
    ThumbnailMake(207, words.data(), thumbnail);

    const auto pair = [&thumbnail](int column) {
        return qMakePair(int(thumbnail[2 * column]), int(thumbnail[2 * column + 1]));
    };
    QCOMPARE(pair(0), qMakePair(10, 10));
    QCOMPARE(pair(49), qMakePair(10, 10));
    QCOMPARE(pair(50), qMakePair(10, 50));
    QCOMPARE(pair(51), qMakePair(50, 50));
    QCOMPARE(pair(99), qMakePair(50, 50));
    QCOMPARE(pair(100), qMakePair(5, 50));
    QCOMPARE(pair(101), qMakePair(5, 5));
    QCOMPARE(pair(205), qMakePair(5, 5));
}

void TestWaveformMath::strokesSpanTheirColumn()
{
    // Ten words a column; bits 14 and 15 do not count.
    std::vector<WaveformData> words(2060, WaveformData(0xC000 + 100 * 64));
    words[15] = 0x4000 + 40 * 64;
    words[19] = 0x8000 + 200 * 64;
    words[2059] = 255 * 64 + 63;
    quint8 thumbnail[414] = {};
    thumbnail[412] = 0xA5;
    ThumbnailMake(2060, words.data(), thumbnail);

    QCOMPARE(int(thumbnail[0]), 100);
    QCOMPARE(int(thumbnail[1]), 100);
    QCOMPARE(int(thumbnail[2]), 40);
    QCOMPARE(int(thumbnail[3]), 200);
    QCOMPARE(int(thumbnail[4]), 100);
    QCOMPARE(int(thumbnail[5]), 100);
    QCOMPARE(int(thumbnail[410]), 100);
    QCOMPARE(int(thumbnail[411]), 255);
    QCOMPARE(int(thumbnail[412]), 0xA5);
}

void TestWaveformMath::fewPointsHaveAColumnEach()
{
    // Not masked: 0x8000 is 512 steps of 64, whose low byte is 0.
    std::vector<WaveformData> words = {0, 63, 64, 0x3FFF, 0x4000 + 64, 0x8000, 0xFFFF};
    quint8 thumbnail[412];
    std::fill(std::begin(thumbnail), std::end(thumbnail), quint8(0));
    ThumbnailMake(Uint32(words.size()), words.data(), thumbnail);
    const QByteArray expected("\0\0\0\0\1\1\xFF\xFF\1\1\0\0\xFF\xFF", 14);
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(thumbnail), 412).toHex(' '),
             (expected + QByteArray(398, '\0')).toHex(' '));
}

void TestWaveformMath::noPointsDrawNothing()
{
    quint8 thumbnail[412];
    std::fill(std::begin(thumbnail), std::end(thumbnail), quint8(0x5A));
    WaveformData word = 0xFFFF;
    ThumbnailMake(0, &word, thumbnail);
    QCOMPARE(int(std::count(std::begin(thumbnail), std::end(thumbnail), quint8(0x5A))), 412);
}

void TestWaveformMath::scalarMath_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<Volts>("expected");
    QTest::newRow("subtract") << 0 << Volts{-3, -4, 1.5, 96};
    QTest::newRow("divide") << 1 << Volts{0.25, 0, 1.375, 25};
    QTest::newRow("add") << 2 << Volts{5, 4, 9.5, 104};
    QTest::newRow("multiply") << 3 << Volts{4, 0, 22, 400};
    QTest::newRow("unknown") << 4 << Volts{1, 0, 5.5, 100};
    QTest::newRow("negative") << -1 << Volts{1, 0, 5.5, 100};
}

void TestWaveformMath::scalarMath()
{
    QFETCH(int, operation);
    QFETCH(Volts, expected);
    Volts data = {1, 0, 5.5, 100, 77};
    ScalarMath(operation, data.data(), 4, 4);
    expected.push_back(77);
    QCOMPARE(data, expected);
}

void TestWaveformMath::normalize_data()
{
    QTest::addColumn<Volts>("data");
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<Volts>("normalised");
    QTest::newRow("symmetric") << Volts{-2, 1, 2} << -2.0 << 2.0 << Volts{-1, 0.5, 1};
    QTest::newRow("off centre") << Volts{1, 3, 2} << 1.0 << 3.0 << Volts{-1, 1, 0};
    QTest::newRow("constant") << Volts{5, 5} << 5.0 << 5.0 << Volts{0, 0};
    QTest::newRow("constant zero") << Volts{0, 0} << 0.0 << 0.0 << Volts{0, 0};
    QTest::newRow("at the bound") << Volts{1000, 1000} << 1000.0 << 1000.0 << Volts{0, 0};
    QTest::newRow("above") << Volts{2000, 1500} << 1000.0 << 2000.0 << Volts{1, 0};
    QTest::newRow("below") << Volts{-2000, -1500} << -2000.0 << -1000.0 << Volts{-1, 0};
    QTest::newRow("wide") << Volts{-3000, 0, 3000} << -3000.0 << 3000.0 << Volts{-1, 0, 1};
}

void TestWaveformMath::normalize()
{
    QFETCH(Volts, data);
    QFETCH(Volts, normalised);
    double low = 0;
    double high = 0;
    Normalize(data.data(), Uint32(data.size()), low, high);
    QTEST(low, "low");
    QTEST(high, "high");
    QCOMPARE(data, normalised);
}

void TestWaveformMath::normalizeOfNothing()
{
    double untouched = 7;
    double low = 0;
    double high = 0;
    Normalize(&untouched, 0, low, high);
    QCOMPARE(low, 1000.0);
    QCOMPARE(high, -1000.0);
    QCOMPARE(untouched, 7.0);
}

void TestWaveformMath::unNormalizeUndoes()
{
    Volts data = {-1, 0.5, 1, 9};
    unNormalize(data.data(), 3, 1, 3);
    QCOMPARE(data, (Volts{1, 2.5, 3, 9}));
    // A constant waveform gets its level back, a symmetric one its height.
    Volts zeros = {0, 0};
    unNormalize(zeros.data(), 2, 5, 5);
    QCOMPARE(zeros, (Volts{5, 5}));
    Volts ends = {-1, 1};
    unNormalize(ends.data(), 2, -4, 4);
    QCOMPARE(ends, (Volts{-4, 4}));
}

void TestWaveformMath::conversion_data()
{
    QTest::addColumn<float>("sample");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, float sample, const char* hex) {
        QTest::newRow(name) << sample << QByteArray(hex);
    };
    row("zero", 0.0f, "0000");
    row("negative zero", -0.0f, "0000");
    row("full scale", 1.0f, "fc7f");
    row("negative full scale", -1.0f, "0480");
    row("half", 0.5f, "fe3f");
    row("cut toward zero", 0.9f / 32764.0f, "0000");
    row("cut toward zero below", -0.9f / 32764.0f, "0000");
    row("one and a half steps below", -1.5f / 32764.0f, "ffff");
    // 65528, 2^30 x 32764 and -3 x 32764: the low sixteen bits.
    row("twice full scale", 2.0f, "f8ff");
    row("minus three", -3.0f, "0c80");
    row("far beyond 32 bits", 1073741824.0f, "0000");
    row("beyond 64 bits", std::numeric_limits<float>::max(), "0000");
    row("not a number", std::numeric_limits<float>::quiet_NaN(), "0000");
    row("infinite", std::numeric_limits<float>::infinity(), "0000");
    row("minus infinite", -std::numeric_limits<float>::infinity(), "0000");
}

void TestWaveformMath::conversion()
{
    QFETCH(float, sample);
    QTEST(convert(sample).toHex(), "bytes");
}

QTEST_APPLESS_MAIN(TestWaveformMath)

#include "test_waveformmath.moc"
