// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "progressbar.h"

#include <QBuffer>
#include <QtTest>

class TestProgressBar : public QObject
{
    Q_OBJECT

private slots:
    void drawsAndVanishes();
    void drawsWhatChangesOnly();
    void staysSilent_data();
    void staysSilent();
};

void TestProgressBar::drawsAndVanishes()
{
    QBuffer terminal;
    terminal.open(QIODevice::WriteOnly);
    {
        ProgressBar bar(&terminal, true, 4);
        bar.show(1);
        bar.clear();
        bar.clear();
        bar.show(4);
    }
    QCOMPARE(terminal.data(), "\r[" + QByteArray(10, '#') + QByteArray(30, ' ') +
                                  "] 1/4\r\033[K\r[" + QByteArray(40, '#') + "] 4/4\r\033[K");
}

void TestProgressBar::drawsWhatChangesOnly()
{
    QBuffer terminal;
    terminal.open(QIODevice::WriteOnly);
    ProgressBar bar(&terminal, true, 1000000);
    for (int i = 1; i <= 1000000; ++i)
        bar.show(i);
    QCOMPARE(terminal.data().count('['), 1001);
}

void TestProgressBar::staysSilent_data()
{
    QTest::addColumn<bool>("isTerminal");
    QTest::addColumn<int>("total");
    QTest::newRow("no terminal") << false << 100;
    QTest::newRow("one job") << true << 1;
    QTest::newRow("no job") << true << 0;
}

void TestProgressBar::staysSilent()
{
    QFETCH(bool, isTerminal);
    QFETCH(int, total);
    QBuffer terminal;
    terminal.open(QIODevice::WriteOnly);
    {
        ProgressBar bar(&terminal, isTerminal, total);
        if (total > 0)
            bar.show(1);
    }
    QCOMPARE(terminal.data(), QByteArray());
}

QTEST_APPLESS_MAIN(TestProgressBar)
#include "test_progressbar.moc"
