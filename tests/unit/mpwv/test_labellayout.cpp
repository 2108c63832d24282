// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "labellayout.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {

LabelSpace space(int rows = 3)
{
    return {0, 1000, rows, 5, true};
}

struct Box
{
    int row;
    double from;
    double to;
};

QVector<Box> boxesOf(const QVector<LabelRequest>& labels, const QVector<LabelPlace>& places)
{
    QVector<Box> boxes;
    for (int i = 0; i < labels.size(); ++i)
        if (places.at(i).row > 0)
            boxes.append(
                {places.at(i).row, places.at(i).left, places.at(i).left + labels.at(i).width});
    return boxes;
}

bool overlap(const Box& one, const Box& other)
{
    return one.row == other.row && one.from < other.to && other.from < one.to;
}

} // namespace

class TestLabelLayout : public QObject
{
    Q_OBJECT

private slots:
    void nothing();
    void insideItsLine();
    void justTooNarrow();
    void aboveItsLine();
    void staysWithinTheSpace();
    void collidingLeansAside();
    void leaderCrossesNoText();
    void leadersTooClose();
    void narrowBesideWide();
    void noRoomLeft();
    void noTextsInside();
    void neverOverlaps();
};

void TestLabelLayout::nothing()
{
    QVERIFY(placeLabels({}, space()).isEmpty());
    QVERIFY(allPlaced({}));
    QCOMPARE(rowsUsed({}), 0);
}

void TestLabelLayout::insideItsLine()
{
    const auto places = placeLabels({{100, 200, 90}}, space());
    QCOMPARE(places.at(0).row, 0);
    QCOMPARE(places.at(0).left, 105.0);
    QVERIFY(allPlaced(places));
    QCOMPARE(rowsUsed(places), 0);
}

void TestLabelLayout::justTooNarrow()
{
    const auto places = placeLabels({{100, 200, 90.5}}, space());
    QCOMPARE(places.at(0).row, 1);
    QCOMPARE(rowsUsed(places), 1);
}

void TestLabelLayout::aboveItsLine()
{
    const auto places = placeLabels({{100, 102, 40}}, space());
    QCOMPARE(places.at(0).row, 1);
    QCOMPARE(places.at(0).left, 81.0);
}

void TestLabelLayout::staysWithinTheSpace()
{
    const auto places = placeLabels({{0, 2, 40}, {998, 1000, 40}}, space());
    QCOMPARE(places.at(0).left, 0.0);
    QCOMPARE(places.at(1).left, 960.0);
}

void TestLabelLayout::collidingLeansAside()
{
    const auto places = placeLabels({{100, 102, 60}, {115, 117, 60}, {300, 302, 40}}, space());
    QCOMPARE(rowsUsed(places), 1);
    QVERIFY(allPlaced(places));
    QCOMPARE(places.at(0).left, 43.0);
    QCOMPARE(places.at(1).left, 114.0);
}

void TestLabelLayout::leaderCrossesNoText()
{
    // Each text stands to the left of the next one's leader.
    const auto places = placeLabels({{100, 102, 40}, {110, 112, 40}, {120, 122, 40}}, space());
    QCOMPARE(places.at(0).row, 1);
    QCOMPARE(places.at(0).left, 63.0);
    QCOMPARE(places.at(1).row, 2);
    QCOMPARE(places.at(1).left, 73.0);
    QCOMPARE(places.at(2).row, 3);
}

// What lies too close together for leaders side by side cannot all be named.
void TestLabelLayout::leadersTooClose()
{
    const auto places = placeLabels({{100, 101, 40}, {101, 102, 40}, {300, 301, 40}}, space());
    QVERIFY(!allPlaced(places));
    QCOMPARE(
        std::count_if(places.begin(), places.end(), [](auto place) { return place.row == -1; }),
        1L);
    QCOMPARE(places.at(2).row, 1);
}

void TestLabelLayout::narrowBesideWide()
{
    // In their order the first text would cover the place of the second one's leader.
    const auto places = placeLabels({{0, 60, 80}, {60, 60.5, 40}, {60.5, 120, 60}}, space());
    QVERIFY(allPlaced(places));
    QCOMPARE(places.at(1).row, 1);
}

void TestLabelLayout::noRoomLeft()
{
    const auto places = placeLabels({{100, 102, 40}, {103, 105, 40}}, space(1));
    QCOMPARE(places.at(0).row, 1);
    QCOMPARE(places.at(1).row, -1);
    QVERIFY(!allPlaced(places));
    QCOMPARE(rowsUsed(places), 1);
}

void TestLabelLayout::noTextsInside()
{
    LabelSpace above = space();
    above.inside = false;
    QCOMPARE(placeLabels({{0, 1000, 10}}, above).at(0).row, 1);
}

void TestLabelLayout::neverOverlaps()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(0, 990);
    std::uniform_real_distribution<double> width(1, 80);
    for (int round = 0; round < 200; ++round) {
        QVector<LabelRequest> labels;
        for (int i = 0; i < 30; ++i) {
            const double from = place(random);
            labels.append({from, from + width(random) / 8, width(random)});
        }
        const auto places = placeLabels(labels, space(4));
        QCOMPARE(places.size(), labels.size());
        const QVector<Box> boxes = boxesOf(labels, places);
        QVERIFY(!boxes.isEmpty());
        for (int i = 0; i < boxes.size(); ++i) {
            QVERIFY(boxes.at(i).from >= 0 && boxes.at(i).to <= 1000);
            for (int j = 0; j < i; ++j)
                QVERIFY(!overlap(boxes.at(i), boxes.at(j)));
        }
    }
}

QTEST_APPLESS_MAIN(TestLabelLayout)
#include "test_labellayout.moc"
