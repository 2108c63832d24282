// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputwaveform.h"

#include "ranwith.h"
#include "trainsamples.h"

#include <QTemporaryDir>

#include <limits>

namespace {

const double Infinity = std::numeric_limits<double>::infinity();

appPlugins::WaveformFile fileOf(const std::vector<qint16>& samples, double amp, double offset)
{
    appPlugins::WaveformFile file;
    file.header.points = Uint32(samples.size());
    file.header.ampValue = amp;
    file.header.offsetValue = offset;
    file.samples = samples;
    return file;
}

} // namespace

class TestOutputWaveform : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }
    void period_data();
    void period();
    void positions();
    void file();
    void train_data();
    void train();
    void emptyTable();
    void zeroPeriod();
    void csv();
    void csvReadsBack();
};

void TestOutputWaveform::period_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("step");
    QTest::newRow("usual") << 8.0 << 4 << 2.0;
    QTest::newRow("no points") << 8.0 << 0 << 0.0;
    QTest::newRow("zero") << 0.0 << 4 << 0.0;
    QTest::newRow("negative") << -1.0 << 4 << 0.0;
    QTest::newRow("infinite") << Infinity << 4 << 0.0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 4 << 0.0;
}

void TestOutputWaveform::period()
{
    QFETCH(double, seconds);
    QFETCH(int, points);
    QFETCH(double, step);
    OutputWaveform waveform;
    waveform.volts.resize(size_t(points));
    waveform.setPeriod(seconds);
    QCOMPARE(waveform.step, step);
    QCOMPARE(waveform.hasTime(), step > 0);
}

void TestOutputWaveform::positions()
{
    OutputWaveform waveform;
    waveform.volts = {0, 1};
    QCOMPARE(waveform.position(2), 2.0);
    waveform.setPeriod(1);
    QCOMPARE(waveform.position(2), 1.0);
}

void TestOutputWaveform::file()
{
    const auto file = fileOf({-32764, 0, 32764}, 2, 0.5);
    const OutputWaveform matched = outputOfFile(file, LoadImpedance::Ohm50);
    QCOMPARE(matched.volts, std::vector<double>({-0.5, 0.5, 1.5}));
    QCOMPARE(matched.low, -0.5);
    QCOMPARE(matched.high, 1.5);
    QVERIFY(!matched.hasTime());

    const OutputWaveform open = outputOfFile(file, LoadImpedance::HighZ);
    QCOMPARE(open.volts, std::vector<double>({-1, 1, 3}));
    QCOMPARE(open.high, 3.0);
}

void TestOutputWaveform::train_data()
{
    QTest::addColumn<int>("slope");
    QTest::addColumn<int>("ohms");
    QTest::newRow("up into 50 ohm") << 0 << 50;
    QTest::newRow("down into 50 ohm") << 1 << 50;
    QTest::newRow("up into high impedance") << 0 << 10000;
    QTest::newRow("down into high impedance") << 1 << 10000;
}

// What is drawn and printed is what the file on the disk holds.
void TestOutputWaveform::train()
{
    QFETCH(int, slope);
    QFETCH(int, ohms);
    TestSetup setup = TestSetup::doublePulse();
    setup.slope = slope;
    setup.ohms = ohms;
    const PulseTrain train = setup.train();

    expectHeaderWarning(2);
    OutputWaveform output;
    QCOMPARE(outputOfTrain(train, output), QString());
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("run.mpwv"));
    QVERIFY(writeTrainWaveform(path.toUtf8().constData(), train));
    appPlugins::WaveformFile written;
    QCOMPARE(appPlugins::readWaveform(path, written), QString());
    QCOMPARE(output.volts, outputOfFile(written, train.load).volts);

    QCOMPARE(output.step, 34e-6 / 131070);
    QCOMPARE(output.low, -1.0);
    QCOMPARE(output.high, 1.0);
    QCOMPARE(output.volts.front(), slope == 0 ? -1.0 : 1.0);
}

// A constant waveform has nothing to normalise: its samples are zeros, and what is played is the
// offset.
void TestOutputWaveform::emptyTable()
{
    TestSetup setup;
    setup.offset = 0.25;
    expectHeaderWarning();
    OutputWaveform output;
    QCOMPARE(outputOfTrain(setup.train(), output), QString());
    QCOMPARE(output.volts, std::vector<double>(PointBudget, 0.25));
    QCOMPARE(output.low, -0.75);
}

void TestOutputWaveform::zeroPeriod()
{
    TestSetup setup;
    setup.delay = 0;
    expectHeaderWarning();
    OutputWaveform output;
    QCOMPARE(outputOfTrain(setup.train(), output), QString());
    QVERIFY(output.volts.empty());
    QVERIFY(!output.hasTime());
}

void TestOutputWaveform::csv()
{
    OutputWaveform waveform;
    QCOMPARE(csvOf(waveform), QByteArray("point,volts\n"));
    waveform.volts = {-1, 0.1, 1e-7};
    QCOMPARE(csvOf(waveform), QByteArray("point,volts\n0,-1\n1,0.1\n2,1e-07\n"));
    waveform.setPeriod(0.3);
    QCOMPARE(csvOf(waveform).split('\n').at(0), QByteArray("time_s,volts"));
    QCOMPARE(csvOf(waveform).split('\n').at(1), QByteArray("0,-1"));
}

void TestOutputWaveform::csvReadsBack()
{
    OutputWaveform waveform;
    for (int i = 0; i < 1000; ++i)
        waveform.volts.push_back(i / 3.0 - 77);
    waveform.setPeriod(34e-6);
    const QList<QByteArray> lines = csvOf(waveform).split('\n');
    QCOMPARE(lines.size(), 1002);
    for (int i = 0; i < 1000; ++i) {
        const QList<QByteArray> cells = lines.at(i + 1).split(',');
        QVERIFY(cells.at(0).toDouble() == waveform.position(i));
        QVERIFY(cells.at(1).toDouble() == waveform.volts[size_t(i)]);
    }
}

QTEST_APPLESS_MAIN(TestOutputWaveform)
#include "test_outputwaveform.moc"
