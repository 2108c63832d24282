// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "trainsamples.h"

#include "documents.h"
#include "logcapture.h"
#include "trainreference.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>

namespace {

const int Budget = 131072;
const double Guard = 1.0e300;
const int GuardSize = 512;

const char DefaultCells[] = "2.000u 10.000u, 2.000u 10.000u";

// A stretch of equal samples.
struct Level
{
    int points;
    double volts;
};
using Levels = QVector<Level>;

// What a train becomes, in a buffer with guards around it that was full of rubbish before.
struct Synthesis
{
    explicit Synthesis(const PulseTrain& train)
        : buffer(Budget + 2 * GuardSize, Guard)
    {
        const LogCapture log;
        points = ::synthesise(train, buffer.data() + GuardSize);
    }
    explicit Synthesis(const QJsonObject& document)
        : Synthesis(PulseTrain::fromDocument(document))
    {}

    double at(int index) const { return buffer[size_t(GuardSize + index)]; }
    // How many of the samples from first up to, not including, end have the value.
    int count(int first, int end, double value) const
    {
        const auto zero = buffer.begin() + GuardSize;
        return int(std::count(zero + first, zero + end, value));
    }
    bool guardsIntact() const
    {
        return count(-GuardSize, 0, Guard) == GuardSize &&
               count(Budget, Budget + GuardSize, Guard) == GuardSize;
    }

    std::vector<double> buffer;
    Uint32 points = 0;
};

// Where the samples differ from the levels in order; empty where they do not.
QString difference(const Synthesis& found, const Levels& expected)
{
    int index = 0;
    for (const Level& level : expected) {
        for (const int end = index + level.points; index < end; ++index) {
            if (found.at(index) != level.volts)
                return QStringLiteral("index %1: %2 instead of %3")
                    .arg(index)
                    .arg(found.at(index))
                    .arg(level.volts);
        }
    }
    if (found.points != Uint32(index))
        return QStringLiteral("%1 points instead of %2").arg(found.points).arg(index);
    return QString();
}

QByteArray writtenFile(const QString& path, const QJsonObject& document, bool& written)
{
    const LogCapture log;
    written = writeTrainWaveform(path.toUtf8().constData(), PulseTrain::fromDocument(document));
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

double numberAt(const QByteArray& file, int offset)
{
    double number = 0;
    std::memcpy(&number, file.constData() + offset, sizeof number);
    return number;
}

} // namespace

Q_DECLARE_METATYPE(Levels)

class TestTrainSamples : public QObject
{
    Q_OBJECT

private slots:
    void levels_data();
    void levels();
    void edgesAreRamps();
    void stretchesOfATrain();
    void stretchesOfAnEmptyTrain();
    void pointsAreKeptInTheBudget_data();
    void pointsAreKeptInTheBudget();
    void agreesWithASecondCalculation();
    void nothingLeavesTheBuffer_data();
    void nothingLeavesTheBuffer();
    void fileOfATrain();
    void fileOfAnOpenLoad();
    void fileOfAZeroPeriod();
    void fileOfAnEmptyTable();
    void fileFromGivenBuffer();
    void fileCannotBeWritten_data();
    void fileCannotBeWritten();
    void eachGroupIsLogged();
};

void TestTrainSamples::levels_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<Levels>("expected");
    // Levels of 2 V and 0.5 V offset: 1.5 V and -0.5 V.
    QTest::newRow("half and half")
        << Documents::train("1.000u 1.000u", "0") << Levels{{65536, 1.5}, {65536, -0.5}};
    QTest::newRow("default")
        << Documents::train(DefaultCells)
        << Levels{{38550, -0.5}, {7710, 1.5}, {38550, -0.5}, {7710, 1.5}, {38550, -0.5}};
    QTest::newRow("inverted") << Documents::train("1.000u 1.000u", "0", "\"trigger slope\": 1")
                              << Levels{{65536, -0.5}, {65536, 1.5}};
    QTest::newRow("any slope but 0 inverts")
        << Documents::train("1.000u 1.000u", "0", "\"trigger slope\": -3")
        << Levels{{65536, -0.5}, {65536, 1.5}};
    QTest::newRow("open load") << Documents::train("1.000u 1.000u", "0",
                                                   "\"load impedance\": 10000")
                               << Levels{{65536, 0.75}, {65536, -0.25}};
    QTest::newRow("no gap") << Documents::train("1.000u 0.000u", "0") << Levels{{Budget, 1.5}};
    QTest::newRow("no width") << Documents::train("0.000u 1.000u", "0") << Levels{{Budget, -0.5}};
    QTest::newRow("empty table") << Documents::train("") << Levels{{Budget, -0.5}};
    QTest::newRow("unreadable cells") << Documents::train("2.000us x") << Levels{{Budget, -0.5}};
    QTest::newRow("zero period") << Documents::train("", "0") << Levels{};
    QTest::newRow("zero period with rows") << Documents::train("0.000u 0.000u", "0") << Levels{};
    QTest::newRow("a row of no duration") << Documents::train("0.000u 0.000u, 1.000u 1.000u", "0")
                                          << Levels{{65536, 1.5}, {65536, -0.5}};
    QTest::newRow("no levels") << Documents::fromText("{\"width/gap\": [{\"width\": \"1u\"}]}")
                               << Levels{{Budget, 0.0}};
    QTest::newRow("foreign document") << QJsonObject() << Levels{};
}

void TestTrainSamples::levels()
{
    QFETCH(QJsonObject, document);
    QFETCH(Levels, expected);
    const Synthesis found(document);
    const QString wrong = difference(found, expected);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(found.guardsIntact());
    QCOMPARE(found.count(int(found.points), Budget, 0.0), Budget - int(found.points));
}

void TestTrainSamples::edgesAreRamps()
{
    // 1 us delay, edges of 1 us and 0.5 us; of the first group's points 10082 are delay, 10082
    // leading edge, 30247 width, 5041 trailing edge. Ramps are a quarter longer: 12603 (of 12602.5)
    // and 6301; the top is 30247 - 6301.25 - 3150.625 = 20795.
    const Synthesis found(Documents::train("3.000u 2.000u, 1.000u 3.000u", "1e-06",
                                           "\"pulse leading\": 1e-06, \"pulse trailing\": 5e-07"));
    QCOMPARE(found.points, 131068u);
    QCOMPARE(found.at(10081), -0.5);
    QCOMPARE(found.at(10082), -0.5);
    QCOMPARE(found.at(10083), -0.5 + 2.0 / 12603);
    QCOMPARE(found.at(10082 + 12602), -0.5 + 2.0 * 12602 / 12603);
    QCOMPARE(found.at(10082 + 12603), 1.5);
    QCOMPARE(found.at(10082 + 12603 + 20795), 1.5);
    QCOMPARE(found.at(10082 + 12603 + 20795 + 1), -0.5 + 2.0 * (1 - 1.0 / 6301));
    QCOMPARE(found.at(10082 + 12603 + 20795 + 6300), -0.5 + 2.0 * (1 - 6300.0 / 6301));
    QCOMPARE(found.at(10082 + 12603 + 20795 + 6301), -0.5);
    // The second group has no delay: its edge starts where the first group ends.
    QCOMPARE(found.at(75616), -0.5);
    QCOMPARE(found.at(75617), -0.5 + 2.0 / 12603);
}

void TestTrainSamples::stretchesOfATrain()
{
    const LogCapture log;
    const std::vector<PulseStretch> stretches = pulseStretches(PulseTrain::fromDocument(
        Documents::train("3.000u 2.000u, 1.000u 3.000u", "1e-06",
                         "\"pulse leading\": 1e-06, \"pulse trailing\": 5e-07")));
    QCOMPARE(stretches.size(), size_t(2));
    const PulseStretch& first = stretches[0];
    QCOMPARE(first.start, qint64(0));
    QCOMPARE(first.points, qint64(75616));
    QCOMPARE(first.delay, 10082.0);
    QCOMPARE(first.leadingEdge, 10082.0);
    QCOMPARE(first.width, 30247.0);
    QCOMPARE(first.trailingEdge, 5041.0);
    QCOMPARE(first.gap, 20164.0);
    const PulseStretch& second = stretches[1];
    QCOMPARE(second.start, qint64(75616));
    QCOMPARE(second.points, qint64(55452));
    QCOMPARE(second.delay, 0.0);
    QCOMPARE(second.gap, 30247.0);
    QCOMPARE(waveformPoints(stretches), 131068u);
}

void TestTrainSamples::stretchesOfAnEmptyTrain()
{
    const LogCapture log;
    PulseTrain train;
    QCOMPARE(pulseStretches(train).size(), size_t(1));
    QCOMPARE(pulseStretches(train).front().points, qint64(0));
    QCOMPARE(waveformPoints(pulseStretches(train)), 0u);

    // The edges are not part of an empty train's period: the group exceeds the budget.
    train.delay = 1e-05;
    train.leadingEdge = 1e-06;
    train.trailingEdge = 2e-06;
    const std::vector<PulseStretch> stretches = pulseStretches(train);
    QCOMPARE(stretches.size(), size_t(1));
    QCOMPARE(stretches.front().delay, 131071.0);
    QCOMPARE(stretches.front().leadingEdge, 13107.0);
    QCOMPARE(stretches.front().trailingEdge, 26214.0);
    QCOMPARE(waveformPoints(stretches), 131072u);
}

void TestTrainSamples::pointsAreKeptInTheBudget_data()
{
    QTest::addColumn<int>("rows");
    for (const int rows : {1, 2, 3, 7, 29, 30, 100, 5000})
        QTest::newRow(qPrintable(QString::number(rows))) << rows;
}

void TestTrainSamples::pointsAreKeptInTheBudget()
{
    QFETCH(int, rows);
    QByteArray cells = "0.020u 0.021u";
    for (int i = 1; i < rows; ++i)
        cells += ", 0.0" + QByteArray::number(20 + i % 70) + "u 0.023u";
    const Synthesis found(Documents::train(cells));
    // Each group may lose six points to rounding down.
    QVERIFY(found.points <= Uint32(Budget));
    QVERIFY2(found.points + 6u * Uint32(rows) >= Uint32(Budget),
             qPrintable(QString::number(found.points)));
    QVERIFY(found.guardsIntact());
}

void TestTrainSamples::agreesWithASecondCalculation()
{
    for (unsigned seed = 1; seed <= 60; ++seed) {
        TrainReference reference = TrainReference::random(seed);
        const std::vector<double> expected = reference.samples();
        const Synthesis found(Documents::fromText(reference.members()));
        const auto first = found.buffer.begin() + GuardSize;
        const bool same = found.points == expected.size() &&
                          std::equal(expected.begin(), expected.end(), first) &&
                          found.guardsIntact();
        QVERIFY2(same, reference.members().constData());
    }
}

void TestTrainSamples::nothingLeavesTheBuffer_data()
{
    QTest::addColumn<QJsonObject>("document");
    const auto row = [](const char* name, const char* cells, const char* delay,
                        const char* more = "") {
        QTest::newRow(name) << Documents::train(cells, delay, more);
    };
    row("negative width", "-2.000u 1.000u, 2.000u 10.000u", "1e-05");
    row("first group before the buffer", "-9.000u -9.000u, 20.000u 10.000u", "1e-05");
    row("groups beyond the budget", "10.000u 10.000u, -15.000u 0.000u, 3u 3u", "0");
    row("negative period", "-9.000u -9.000u, 1.000u 1.000u", "0");
    row("negative delay", "2.000u 2.000u", "-1e-06");
    row("negative edges", "2.000u 2.000u", "1e-05",
        "\"pulse leading\": -1e-06, \"pulse trailing\": -5e-07");
    row("edges of seconds", "2.000u 2.000u, 2.000u 2.000u", "1e-05",
        "\"pulse leading\": 1, \"pulse trailing\": 2");
    row("huge edges", "2.000u 2.000u", "0", "\"pulse leading\": 1e308, \"pulse trailing\": 1e308");
    row("edges that cancel", "2.000u 2.000u", "0",
        "\"pulse leading\": 1e300, \"pulse trailing\": -1e300");
    row("edges of an empty table", "", "1e-10", "\"pulse leading\": 1, \"pulse trailing\": -7");
    row("huge cells", "9e300G 9e300G, 1u 1u", "0");
    row("huge against tiny", "9e200G 1n, 1n 1n, -9e200G 1n", "1e-05");
    row("endless cells", "inf inf, 1u 1u", "0");
    row("cells without value", "nan nan, 1u 1u", "1e-05");
    row("huge delay", "1u 1u, 1u 1u", "1e300");
    row("tiny period", "1n -1n, 2n -2n, 1n 0n", "0");
}

void TestTrainSamples::nothingLeavesTheBuffer()
{
    QFETCH(QJsonObject, document);
    const Synthesis found(document);
    QVERIFY(found.guardsIntact());
    QVERIFY(found.points <= Uint32(Budget));
    QCOMPARE(found.count(0, Budget, Guard), 0);
}

void TestTrainSamples::fileOfATrain()
{
    const QTemporaryDir folder;
    bool written = false;
    const QByteArray file = writtenFile(folder.filePath(QStringLiteral("a.mpwv")),
                                        Documents::train(DefaultCells), written);
    QVERIFY(written);
    QCOMPARE(file.size(), 512 + 2 * 131070);
    QCOMPARE(file.left(16), QByteArray("QRNKVX60K\0\0\0\0\0\0\0", 16));
    QCOMPARE(file.mid(20, 4).toHex(), QByteArray("feff0100"));
    QCOMPARE(numberAt(file, 440), 2.0);
    QCOMPARE(numberAt(file, 448), 0.5);
    QByteArray expected;
    const QVector<int> corners = {0, 38550, 46260, 84810, 92520, 131070};
    for (int i = 0; i + 1 < corners.size(); ++i) {
        expected += QByteArray(i % 2 == 0 ? "\x04\x80" : "\xFC\x7F", 2)
                        .repeated(corners.at(i + 1) - corners.at(i));
    }
    QVERIFY(file.mid(512) == expected);
}

void TestTrainSamples::fileOfAnOpenLoad()
{
    const QTemporaryDir folder;
    bool written = false;
    const QJsonObject matched = Documents::train(DefaultCells);
    const QJsonObject open = Documents::train(DefaultCells, "1e-05", "\"load impedance\": 10000");
    const QByteArray matchedFile =
        writtenFile(folder.filePath(QStringLiteral("matched.mpwv")), matched, written);
    const QByteArray openFile =
        writtenFile(folder.filePath(QStringLiteral("open.mpwv")), open, written);
    QCOMPARE(numberAt(openFile, 440), 1.0);
    QCOMPARE(numberAt(openFile, 448), 0.25);
    QCOMPARE(openFile.left(440), matchedFile.left(440));
    QCOMPARE(openFile.mid(456), matchedFile.mid(456));
}

void TestTrainSamples::fileOfAZeroPeriod()
{
    const QTemporaryDir folder;
    bool written = false;
    const QByteArray file =
        writtenFile(folder.filePath(QStringLiteral("a.mpwv")), Documents::train("", "0"), written);
    QVERIFY(written);
    QCOMPARE(file.size(), 512);
    QCOMPARE(file.mid(20, 4), QByteArray(4, '\0'));
    QCOMPARE(numberAt(file, 440), 2.0);
}

void TestTrainSamples::fileOfAnEmptyTable()
{
    const QTemporaryDir folder;
    bool written = false;
    const QByteArray file =
        writtenFile(folder.filePath(QStringLiteral("a.mpwv")), Documents::train(""), written);
    QVERIFY(written);
    // One level all the way is a constant waveform.
    QCOMPARE(file.mid(512), QByteArray(2 * Budget, '\0'));
}

void TestTrainSamples::fileFromGivenBuffer()
{
    const QTemporaryDir folder;
    bool written = false;
    const QJsonObject document = Documents::train(DefaultCells);
    const QByteArray expected =
        writtenFile(folder.filePath(QStringLiteral("a.mpwv")), document, written);

    std::vector<double> buffer(Budget, 99.0);
    const QByteArray path = folder.filePath(QStringLiteral("b.mpwv")).toUtf8();
    {
        const LogCapture log;
        QVERIFY(writeTrainWaveform(path.constData(), PulseTrain::fromDocument(document),
                                   buffer.data()));
    }
    QFile file(QString::fromUtf8(path));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll() == expected);
}

void TestTrainSamples::fileCannotBeWritten_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("no such folder") << QByteArray("/no/such/folder/a.mpwv");
    QTest::newRow("a folder") << QByteArray("/tmp");
    QTest::newRow("full device") << QByteArray("/dev/full");
}

void TestTrainSamples::fileCannotBeWritten()
{
    QFETCH(QByteArray, path);
    const LogCapture log;
    const PulseTrain train = PulseTrain::fromDocument(Documents::train(DefaultCells));
    QVERIFY(!writeTrainWaveform(path.constData(), train));
}

void TestTrainSamples::eachGroupIsLogged()
{
    const LogCapture log;
    std::vector<double> buffer(Budget);
    synthesise(PulseTrain::fromDocument(Documents::train(DefaultCells)), buffer.data());
    QCOMPARE(LogCapture::messages(),
             (QStringList{QStringLiteral("info: timeUnitConvertToPointsUnit tmp 84811 nTotalPoints "
                                         "84810 cycle 2.2e-05 dbTotalPeriod 3.4e-05"),
                          QStringLiteral("info: timeUnitConvertToPointsUnit tmp 46260 nTotalPoints "
                                         "46260 cycle 1.2e-05 dbTotalPeriod 3.4e-05")}));
}

QTEST_APPLESS_MAIN(TestTrainSamples)

#include "test_trainsamples.moc"
