// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsefinder.h"

#include <QtTest>

using Samples = std::vector<qint16>;
Q_DECLARE_METATYPE(Samples)

class TestPulseFinder : public QObject
{
    Q_OBJECT

private slots:
    void findsEdges_data();
    void findsEdges();
    void findsPulses_data();
    void findsPulses();
    void tellsTheLevel();
};

void TestPulseFinder::findsEdges_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<QVector<int>>("edges");
    QTest::newRow("none") << Samples() << QVector<int>();
    QTest::newRow("one point") << Samples{5} << QVector<int>();
    QTest::newRow("constant") << Samples{7, 7, 7} << QVector<int>();
    QTest::newRow("step") << Samples{-9, -9, 9} << QVector<int>{2};
    QTest::newRow("ramp") << Samples{-32764, -16382, 0, 16382, 32764} << QVector<int>{3};
    QTest::newRow("not centred") << Samples{100, 100, 110, 100} << QVector<int>{2, 3};
    QTest::newRow("whole range") << Samples{-32768, 32767, -32768} << QVector<int>{1, 2};
}

void TestPulseFinder::findsEdges()
{
    QFETCH(Samples, samples);
    QTEST(findEdges(samples), "edges");
}

void TestPulseFinder::findsPulses_data()
{
    QTest::addColumn<Samples>("samples");
    QTest::addColumn<bool>("downwards");
    QTest::addColumn<QVector<int>>("numbers"); // start, width, gap of each
    QTest::newRow("none") << Samples() << false << QVector<int>();
    QTest::newRow("constant") << Samples{0, 0} << false << QVector<int>();
    QTest::newRow("two") << Samples{0, 1, 1, 0, 1, 0, 0, 0} << false
                         << QVector<int>{1, 2, 1, 4, 1, 3};
    QTest::newRow("from the first point")
        << Samples{1, 1, 0, 0, 0} << false << QVector<int>{0, 2, 3};
    QTest::newRow("downwards") << Samples{1, 0, 0, 1} << true << QVector<int>{1, 2, 1};
    QTest::newRow("downwards from the first point")
        << Samples{0, 1, 1} << true << QVector<int>{0, 1, 2};
}

void TestPulseFinder::findsPulses()
{
    QFETCH(Samples, samples);
    const FoundPulses found = findPulses(samples);
    QVector<int> numbers;
    for (const FoundPulse& pulse : found.pulses)
        numbers += {pulse.start, pulse.width, pulse.gap};
    QTEST(numbers, "numbers");
    QTEST(found.downwards, "downwards");
}

void TestPulseFinder::tellsTheLevel()
{
    QCOMPARE(int(findPulses({-10, 5, 9, 7, -10}).pulses.at(0).level), 9);
    QCOMPARE(int(findPulses({10, -5, -9, -7, 10}).pulses.at(0).level), -9);
}

QTEST_APPLESS_MAIN(TestPulseFinder)
#include "test_pulsefinder.moc"
