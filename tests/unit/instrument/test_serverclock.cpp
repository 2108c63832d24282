// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverclock.h"

#include <QTest>

class TestServerClock : public QObject
{
    Q_OBJECT

private slots:
    void standsStillBetweenTicks();
    void neverGoesBack();
};

void TestServerClock::standsStillBetweenTicks()
{
    ServerClock clock;
    QCOMPARE(clock.now(), qint64(0));
    clock.tick();
    const qint64 first = clock.now();
    QVERIFY(first > 0);
    QCOMPARE(clock.now(), first);
    clock.tick();
    QVERIFY(clock.now() >= first);
}

void TestServerClock::neverGoesBack()
{
    ServerClock clock;
    clock.advanceTo(500);
    clock.advanceTo(400);
    QCOMPARE(clock.now(), qint64(500));
    clock.advanceTo(600);
    QCOMPARE(clock.now(), qint64(600));
}

QTEST_APPLESS_MAIN(TestServerClock)
#include "test_serverclock.moc"
