// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "segment.h"

#include "segmentduel.h"
#include "stdoutcapture.h"

#include <QtTest>

#include <limits>
#include <numeric>
#include <vector>

using appPlugins::SEGID;
using appPlugins::SegmentManager;

namespace {

const Uint32 Unknown = 0xFFFFFFFF;

QByteArray state(const SegmentManager& manager)
{
    return printed([&manager] { manager.debugSegment(); });
}

const char FreshState[] = "freeSegments: 1\n"
                          "Total free Space:1000\n"
                          " start:0 len:1000 ID:-1\n"
                          "usedSegments: 0\n"
                          "freeIDs:16\n";

} // namespace

class TestSegment : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void takesTheWholeMemory();
    void refusesMoreThanTheMemory();
    void runsOutOfIdentifiers();
    void asksForMemoryBeforeIdentifiers();
    void skipsHolesThatAreTooShort();
    void putsExactFitsInFront();
    void refusesWhatIsScattered();
    void reusesIdentifiersInOrder();
    void ignoresUnknownIdentifiers_data();
    void ignoresUnknownIdentifiers();
    void mergesFreedNeighbours();
    void keepsEmptySegmentsListed();
    void shrinks_data();
    void shrinks();
    void shrinksNextToFreeMemory();
    void compactsSamples();
    void compactsFullMemory();
    void formats();
    void knowsNothingOfFreedSegments();
    void countsToTheLargestMemory();
    void hasNoMemory();
    void followsTheReference_data();
    void followsTheReference();
};

void TestSegment::startsEmpty()
{
    const SegmentManager manager(1000);

    QCOMPARE(state(manager), QByteArray(FreshState));
    QCOMPARE(manager.getFreeSpace(), 1000u);
    QCOMPARE(manager.getFreeSegNum(), 1u);
    QCOMPARE(manager.getUsedSegNum(), 0u);
    QCOMPARE(manager.getFreeIDNum(), 16u);
}

void TestSegment::takesTheWholeMemory()
{
    SegmentManager manager(1000);
    QCOMPARE(manager.malloc(1000), 0);
    QCOMPARE(state(manager), QByteArray("freeSegments: 0\n"
                                        "Total free Space:0\n"
                                        "usedSegments: 1\n"
                                        " start:0 len:1000 ID:0\n"
                                        "freeIDs:15\n"));

    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(1); }), QByteArray("no enough memory!\n"));
    QCOMPARE(id, -3);
    QCOMPARE(printed([&] { id = manager.malloc(0); }), QByteArray("no enough memory!\n"));
    QCOMPARE(id, -3);
    QCOMPARE(manager.getFreeIDNum(), 15u);
}

void TestSegment::refusesMoreThanTheMemory()
{
    SegmentManager manager(1000);
    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(1001); }),
             QByteArray("len is greater than the maxSize(1000)\n"));
    QCOMPARE(id, -1);
    QCOMPARE(state(manager), QByteArray(FreshState));
}

void TestSegment::runsOutOfIdentifiers()
{
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 16; ++id)
        QCOMPARE(manager.malloc(10), id);

    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(10); }), QByteArray("no available id!\n"));
    QCOMPARE(id, -2);
    QCOMPARE(manager.getFreeSpace(), 840u);
    QCOMPARE(manager.getUsedSegNum(), 16u);
}

void TestSegment::asksForMemoryBeforeIdentifiers()
{
    SegmentManager manager(16);
    for (SEGID id = 0; id < 16; ++id)
        QCOMPARE(manager.malloc(1), id);

    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(17); }),
             QByteArray("len is greater than the maxSize(16)\n"));
    QCOMPARE(id, -1);
    QCOMPARE(printed([&] { id = manager.malloc(1); }), QByteArray("no available id!\n"));
    QCOMPARE(id, -2);
}

void TestSegment::skipsHolesThatAreTooShort()
{
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 3; ++id) {
        QCOMPARE(manager.malloc(100), id);
        QCOMPARE(manager.getStart(id), Uint32(100 * id));
    }
    manager.free(1);
    QCOMPARE(state(manager), QByteArray("freeSegments: 2\n"
                                        "Total free Space:800\n"
                                        " start:100 len:100 ID:1\n"
                                        " start:300 len:700 ID:-1\n"
                                        "usedSegments: 2\n"
                                        " start:0 len:100 ID:0\n"
                                        " start:200 len:100 ID:2\n"
                                        "freeIDs:14\n"));

    QCOMPARE(manager.malloc(150), 3);
    QCOMPARE(manager.getStart(3), 300u);
    QCOMPARE(manager.getLength(3), 150u);
    QCOMPARE(manager.getFreeSegNum(), 2u);
}

void TestSegment::putsExactFitsInFront()
{
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 3; ++id)
        QCOMPARE(manager.malloc(100), id);
    manager.free(1);

    QCOMPARE(manager.malloc(100), 3);
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:700\n"
                                        " start:300 len:700 ID:-1\n"
                                        "usedSegments: 3\n"
                                        " start:100 len:100 ID:3\n"
                                        " start:0 len:100 ID:0\n"
                                        " start:200 len:100 ID:2\n"
                                        "freeIDs:13\n"));
}

void TestSegment::refusesWhatIsScattered()
{
    SegmentManager manager(300);
    for (SEGID id = 0; id < 3; ++id)
        QCOMPARE(manager.malloc(100), id);
    manager.free(0);
    manager.free(2);
    QCOMPARE(manager.getFreeSpace(), 200u);

    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(150); }), QByteArray("no enough memory!\n"));
    QCOMPARE(id, -3);
    QCOMPARE(manager.getFreeIDNum(), 15u);

    std::vector<double> data(300, 0.0);
    printed([&] { manager.defrag(data.data()); });
    QCOMPARE(manager.malloc(150), 3);
    QCOMPARE(manager.getStart(3), 100u);
}

void TestSegment::reusesIdentifiersInOrder()
{
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 14; ++id)
        QCOMPARE(manager.malloc(10), id);
    for (const SEGID id : {7, 2, 11})
        manager.free(id);

    for (const SEGID id : {14, 15, 7, 2, 11})
        QCOMPARE(manager.malloc(20), id);
}

void TestSegment::ignoresUnknownIdentifiers_data()
{
    QTest::addColumn<int>("id");

    QTest::newRow("below the range") << -1;
    QTest::newRow("above the range") << 16;
    QTest::newRow("not in use") << 3;
    QTest::newRow("lowest number") << std::numeric_limits<int>::min();
    QTest::newRow("highest number") << std::numeric_limits<int>::max();
}

void TestSegment::ignoresUnknownIdentifiers()
{
    QFETCH(int, id);
    SegmentManager manager(1000);
    QCOMPARE(manager.malloc(100), 0);
    QCOMPARE(manager.malloc(100), 1);
    manager.free(0);
    const QByteArray before = state(manager);

    manager.free(id);
    manager.shrink(id, 1);
    QCOMPARE(state(manager), before);
    QCOMPARE(manager.getStart(id), Unknown);
    QCOMPARE(manager.getLength(id), Unknown);
}

void TestSegment::mergesFreedNeighbours()
{
    SegmentManager manager(400);
    for (SEGID id = 0; id < 4; ++id)
        QCOMPARE(manager.malloc(100), id);
    manager.free(3);
    manager.free(0);
    QCOMPARE(manager.getFreeSegNum(), 2u);

    manager.free(1);
    // The merged stretch keeps the identifier of its last part.
    QCOMPARE(state(manager), QByteArray("freeSegments: 2\n"
                                        "Total free Space:300\n"
                                        " start:0 len:200 ID:1\n"
                                        " start:300 len:100 ID:3\n"
                                        "usedSegments: 1\n"
                                        " start:200 len:100 ID:2\n"
                                        "freeIDs:15\n"));

    manager.free(2);
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:400\n"
                                        " start:0 len:400 ID:3\n"
                                        "usedSegments: 0\n"
                                        "freeIDs:16\n"));
}

void TestSegment::keepsEmptySegmentsListed()
{
    SegmentManager manager(1000);
    QCOMPARE(manager.malloc(0), 0);
    QCOMPARE(manager.getStart(0), 0u);
    QCOMPARE(manager.getLength(0), 0u);
    QCOMPARE(manager.getFreeSpace(), 1000u);

    manager.free(0);
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:1000\n"
                                        " start:0 len:1000 ID:-1\n"
                                        "usedSegments: 1\n"
                                        " start:0 len:0 ID:0\n"
                                        "freeIDs:16\n"));

    manager.free(0);
    QCOMPARE(manager.getFreeIDNum(), 17u);
}

void TestSegment::shrinks_data()
{
    QTest::addColumn<uint>("length");
    QTest::addColumn<QByteArray>("freeLines");
    QTest::addColumn<uint>("left");

    const QByteArray end = " start:300 len:700 ID:-1\n";
    QTest::newRow("longer") << 101u << end << 100u;
    QTest::newRow("the same") << 100u << end << 100u;
    QTest::newRow("by one") << 99u << " start:199 len:1 ID:-1\n" + end << 99u;
    QTest::newRow("to one") << 1u << " start:101 len:99 ID:-1\n" + end << 1u;
    QTest::newRow("to nothing") << 0u << " start:100 len:100 ID:-1\n" + end << 0u;
}

void TestSegment::shrinks()
{
    QFETCH(uint, length);
    QFETCH(QByteArray, freeLines);
    QFETCH(uint, left);
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 3; ++id)
        QCOMPARE(manager.malloc(100), id);

    manager.shrink(1, length);
    QCOMPARE(manager.getStart(1), 100u);
    QCOMPARE(manager.getLength(1), left);
    QVERIFY(state(manager).contains("\n" + freeLines + "usedSegments: 3\n"));
    QCOMPARE(manager.getFreeSpace(), 800 - left);
    QCOMPARE(manager.getFreeIDNum(), 13u);
}

void TestSegment::shrinksNextToFreeMemory()
{
    SegmentManager manager(1000);
    QCOMPARE(manager.malloc(100), 0);

    manager.shrink(0, 40);
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:960\n"
                                        " start:40 len:960 ID:-1\n"
                                        "usedSegments: 1\n"
                                        " start:0 len:40 ID:0\n"
                                        "freeIDs:15\n"));
}

void TestSegment::compactsSamples()
{
    SegmentManager manager(1000);
    for (SEGID id = 0; id < 3; ++id)
        QCOMPARE(manager.malloc(100), id);
    manager.free(0);
    QCOMPARE(manager.malloc(300), 3);
    QCOMPARE(manager.malloc(100), 4);

    std::vector<double> data(1000);
    std::iota(data.begin(), data.end(), 0.0);
    QCOMPARE(printed([&] { manager.defrag(data.data()); }), QByteArray("Enter defrag!\n"));
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:400\n"
                                        " start:600 len:400 ID:-1\n"
                                        "usedSegments: 4\n"
                                        " start:0 len:100 ID:4\n"
                                        " start:100 len:100 ID:1\n"
                                        " start:200 len:100 ID:2\n"
                                        " start:300 len:300 ID:3\n"
                                        "freeIDs:12\n"));

    manager.free(1);
    printed([&] { manager.defrag(data.data()); });
    // The longest segment moves by less than its length, so source and destination overlap.
    for (Uint32 i = 0; i < 500; ++i)
        QCOMPARE(data[i], double(i < 100 ? i : i + 100));
    QCOMPARE(manager.getStart(3), 200u);
    QCOMPARE(manager.getFreeSpace(), 500u);
}

void TestSegment::compactsFullMemory()
{
    SegmentManager manager(200);
    QCOMPARE(manager.malloc(50), 0);
    QCOMPARE(manager.malloc(150), 1);
    std::vector<double> data(200, 1.0);
    printed([&] { manager.defrag(data.data()); });
    QCOMPARE(state(manager), QByteArray("freeSegments: 1\n"
                                        "Total free Space:0\n"
                                        " start:200 len:0 ID:-1\n"
                                        "usedSegments: 2\n"
                                        " start:0 len:50 ID:0\n"
                                        " start:50 len:150 ID:1\n"
                                        "freeIDs:14\n"));

    manager.free(1);
    QCOMPARE(manager.getFreeSegNum(), 1u);
    QCOMPARE(manager.malloc(150), 2);
}

void TestSegment::formats()
{
    SegmentManager manager(1000);
    for (int i = 0; i < 16; ++i)
        QCOMPARE(manager.malloc(10), i);
    manager.free(5);
    manager.shrink(3, 2);

    manager.format();
    QCOMPARE(state(manager), QByteArray(FreshState));
    for (SEGID id = 0; id < 16; ++id)
        QCOMPARE(manager.malloc(10), id);
}

void TestSegment::knowsNothingOfFreedSegments()
{
    SegmentManager manager(1000);
    QCOMPARE(manager.malloc(10), 0);
    QCOMPARE(manager.getLength(0), 10u);
    manager.free(0);
    QCOMPARE(manager.getStart(0), Unknown);
    QCOMPARE(manager.getLength(0), Unknown);
    QCOMPARE(manager.getStart(-1), Unknown);
}

void TestSegment::countsToTheLargestMemory()
{
    SegmentManager manager(Unknown);
    QCOMPARE(manager.malloc(0xFFFFFFF0u), 0);
    QCOMPARE(manager.malloc(15), 1);
    QCOMPARE(manager.getStart(1), 0xFFFFFFF0u);
    QCOMPARE(manager.getFreeSegNum(), 0u);
    manager.free(0);
    manager.free(1);
    QCOMPARE(manager.getFreeSegNum(), 1u);
    QCOMPARE(manager.getFreeSpace(), Unknown);
}

void TestSegment::hasNoMemory()
{
    SegmentManager manager(0);
    SEGID id = 0;
    QCOMPARE(printed([&] { id = manager.malloc(1); }),
             QByteArray("len is greater than the maxSize(0)\n"));
    QCOMPARE(id, -1);
    QCOMPARE(manager.malloc(0), 0);
    QCOMPARE(manager.getFreeSegNum(), 0u);
}

void TestSegment::followsTheReference_data()
{
    QTest::addColumn<uint>("seed");
    QTest::addColumn<uint>("size");

    QTest::newRow("small") << 1u << 24u;
    QTest::newRow("middle") << 2u << 100u;
    QTest::newRow("large") << 3u << 1000u;
}

void TestSegment::followsTheReference()
{
    QFETCH(uint, seed);
    QFETCH(uint, size);

    for (uint game = 0; game < 20; ++game) {
        SegmentDuel duel(seed * 1000 + game, size);
        for (int i = 0; i < 100; ++i) {
            QVERIFY2(duel.step(), "results or samples differ");
            QCOMPARE(duel.actual(), duel.expected());
        }
    }
}

QTEST_APPLESS_MAIN(TestSegment)
#include "test_segment.moc"
