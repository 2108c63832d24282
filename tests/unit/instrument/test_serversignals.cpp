// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serversignals.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

class TestServerSignals : public QObject
{
    Q_OBJECT

private slots:
    void signalsArrive();
};

void TestServerSignals::signalsArrive()
{
    const ServerSignals endSignals;
    QSignalSpy spy(&endSignals, &ServerSignals::endRequested);
    std::raise(SIGTERM);
    QCOMPARE(spy.count(), 0);
    QVERIFY(spy.wait());
    std::raise(SIGINT);
    QTRY_COMPARE(spy.count(), 2);
}

QTEST_GUILESS_MAIN(TestServerSignals)
#include "test_serversignals.moc"
