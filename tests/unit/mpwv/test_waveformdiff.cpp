// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformdiff.h"

#include <QtTest>

using appPlugins::WaveformFile;

class TestWaveformDiff : public QObject
{
    Q_OBJECT

private slots:
    void comparesHeaders();
    void comparesSamples();
    void comparesEdges();

private:
    static WaveformFile fileOf(const std::vector<qint16>& samples);
};

WaveformFile TestWaveformDiff::fileOf(const std::vector<qint16>& samples)
{
    WaveformFile file;
    file.samples = samples;
    file.header.points = Uint32(samples.size());
    return file;
}

void TestWaveformDiff::comparesHeaders()
{
    WaveformFile left = fileOf({});
    WaveformFile right = fileOf({1, 2});
    right.header.ampValue = 2.5;
    right.header.offsetValue = -1;
    right.header.hasThumbnail = 1;
    right.header.thumbnail[3] = 1;
    right.header.thumbnail[7] = 1;
    QCOMPARE(differingHeader(left, left), QStringList());
    QCOMPARE(
        differingHeader(left, right),
        (QStringList{QStringLiteral("points: 0 -> 2"), QStringLiteral("hasThumbnail: 0 -> 1"),
                     QStringLiteral("ampValue: 0 -> 2.5"), QStringLiteral("offsetValue: 0 -> -1"),
                     QStringLiteral("thumbnail: 2 of 206 columns differ")}));
}

void TestWaveformDiff::comparesSamples()
{
    const WaveformFile left = fileOf({1, 2, 3, 4});
    QCOMPARE(differingSamples(left, left), QStringList());
    QCOMPARE(differingSamples(left, fileOf({1, 2, 3})), QStringList());
    QCOMPARE(differingSamples(left, fileOf({1, 5, 3, -32768, 9})),
             QStringList(QStringLiteral("samples: 2 of 4 differ, the first at point 1, by 32772 at "
                                        "most")));
}

void TestWaveformDiff::comparesEdges()
{
    const WaveformFile left = fileOf({0, 9, 9, 0, 0, 0});
    const WaveformFile right = fileOf({0, 9, 0, 0, 9, 0});
    QCOMPARE(movedEdges(left, 0, left, 0), QStringList());
    QCOMPARE(movedEdges(left, 0, right, 0),
             (QStringList{QStringLiteral("edges: 2 -> 4"),
                          QStringLiteral("edge 2: point 3 -> 2, -1 points")}));
    // The same points further apart: edges move in time alone.
    QCOMPARE(movedEdges(left, 1e-9, left, 2e-9),
             (QStringList{QStringLiteral("edge 1: point 1 -> 1, +0 points, +1.000 ns"),
                          QStringLiteral("edge 2: point 3 -> 3, +0 points, +3.000 ns")}));
    QCOMPARE(movedEdges(left, 1e-9, right, 0),
             (QStringList{QStringLiteral("edges: 2 -> 4"),
                          QStringLiteral("edge 2: point 3 -> 2, -1 points")}));
}

QTEST_APPLESS_MAIN(TestWaveformDiff)
#include "test_waveformdiff.moc"
