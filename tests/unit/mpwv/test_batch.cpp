// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "batch.h"

#include <QVector>
#include <QtTest>

#include <atomic>
#include <numeric>

class TestBatch : public QObject
{
    Q_OBJECT

private slots:
    void reportsEachJobInOrder_data();
    void reportsEachJobInOrder();
    void makesOneWorkerForAThread();
    void staysNearTheReport();
};

void TestBatch::reportsEachJobInOrder_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("threads");
    QTest::newRow("none") << 0 << 4;
    QTest::newRow("one") << 1 << 4;
    QTest::newRow("one thread") << 100 << 1;
    QTest::newRow("more threads than jobs") << 3 << 8;
    QTest::newRow("many") << 5000 << 8;
}

void TestBatch::reportsEachJobInOrder()
{
    QFETCH(int, count);
    QFETCH(int, threads);
    std::vector<std::atomic<int>> runs(static_cast<size_t>(count));
    QVector<int> reported;
    bool ready = true;
    runBatch(
        count, threads, [&runs] { return [&runs](int job) { ++runs[static_cast<size_t>(job)]; }; },
        [&](int job) {
            ready = ready && runs[static_cast<size_t>(job)] == 1;
            reported.append(job);
        });
    QVERIFY(ready);
    QVector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    QCOMPARE(reported, expected);
}

void TestBatch::makesOneWorkerForAThread()
{
    std::atomic<int> workers(0);
    runBatch(
        100, 3,
        [&workers] {
            ++workers;
            return [](int) {};
        },
        [](int) {});
    QCOMPARE(workers.load(), 3);
}

// A report that is late holds the jobs back, so that their results do not pile up.
void TestBatch::staysNearTheReport()
{
    std::atomic<int> begun(0);
    int farthest = 0;
    runBatch(
        10000, 2, [&begun] { return [&begun](int) { ++begun; }; },
        [&](int job) { farthest = std::max(farthest, begun.load() - job); });
    QVERIFY2(farthest <= 2 * 16 + 1, qPrintable(QString::number(farthest)));
}

QTEST_APPLESS_MAIN(TestBatch)
#include "test_batch.moc"
