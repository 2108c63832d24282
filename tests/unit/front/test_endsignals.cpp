// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "endsignals.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

class TestEndSignals : public QObject
{
    Q_OBJECT

private slots:
    void signalsArrive();
};

void TestEndSignals::signalsArrive()
{
    const EndSignals endSignals;
    QSignalSpy spy(&endSignals, &EndSignals::endRequested);
    std::raise(SIGTERM);
    QCOMPARE(spy.count(), 0);
    QVERIFY(spy.wait());
    std::raise(SIGINT);
    QTRY_COMPARE(spy.count(), 2);
}

QTEST_GUILESS_MAIN(TestEndSignals)
#include "test_endsignals.moc"
