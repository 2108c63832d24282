// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "burstaccount.h"

#include "ranwith.h"

#include <cmath>

namespace {

// A file of 34 points, one a microsecond, as a setup of two pulses asks for.
OutputWaveform filePlayed()
{
    OutputWaveform waveform;
    waveform.volts.assign(34, -1);
    std::fill_n(waveform.volts.begin() + 10, 2, 1);
    std::fill_n(waveform.volts.begin() + 22, 2, 1);
    waveform.low = -1;
    waveform.high = 1;
    waveform.setPeriod(34e-6);
    return waveform;
}

ChannelTrace traceOf(const OutputWaveform& waveform)
{
    return {waveform, 0};
}

BurstAccount account(const ChannelTrace& trace)
{
    return accountOf(TestSetup::doublePulse().train(), filePlayed(), trace);
}

} // namespace

class TestBurstAccount : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { silenceInformation(); }
    void playedAsItIs();
    void textOfAgreement();
    void oneSampleLate();
    void twoSamplesLate();
    void tooWide();
    void startsLate();
    void slowClock();
    void pulseMissing();
    void pulseTooMany();
    void wrongVolts_data();
    void wrongVolts();
    void fileRoundsDown();
    void fileLosesAPulse();
    void noPulses();
};

void TestBurstAccount::playedAsItIs()
{
    const BurstAccount same = account(traceOf(filePlayed()));
    QCOMPARE(same.fault, QString());
    QCOMPARE(same.rows.size(), 2);
    QCOMPARE(same.found, 2);
    QCOMPARE(same.rows.at(1).asked.start, 22e-6);
    QCOMPARE(same.rows.at(1).played->start, 22e-6);
    QCOMPARE(same.rows.at(1).played->width, 2e-6);
    QVERIFY(same.largestDifference() < 1e-6);
    QCOMPARE(same.low, -1.0);
    QCOMPARE(same.high, 1.0);
}

void TestBurstAccount::textOfAgreement()
{
    const QString expected = QStringLiteral(
        "pulse  start asked/us  played/us  differs/ns  samples  width asked/us  played/us  "
        "differs/ns  samples\n"
        "1             10.0000    10.0000       0.000     0.00          2.0000     2.0000       "
        "0.000     0.00\n"
        "2             22.0000    22.0000       0.000     0.00          2.0000     2.0000       "
        "0.000     0.00\n"
        "one sample: 1000.0000 ns\n"
        "volts: -1.0000 to 1.0000\n"
        "setup: agreeing to one sample\n"
        "file: played as it is, to one sample\n");
    QCOMPARE(accountText(account(traceOf(filePlayed()))), expected);
}

void TestBurstAccount::oneSampleLate()
{
    OutputWaveform waveform = filePlayed();
    waveform.volts[10] = -1;
    waveform.volts[12] = 1;
    const BurstAccount late = account(traceOf(waveform));
    QCOMPARE(late.fault, QString());
    QVERIFY(std::fabs(late.largestDifference() - 1) < 1e-6);
    QVERIFY(accountText(late).contains(QStringLiteral("setup: agreeing to one sample\n")));
    QVERIFY(accountText(late).contains(QRegularExpression(
        QStringLiteral("\n1 +10\\.0000 +11\\.0000 +\\+1000\\.000 +\\+1\\.00 "))));
}

void TestBurstAccount::twoSamplesLate()
{
    OutputWaveform waveform = filePlayed();
    std::rotate(waveform.volts.begin(), waveform.volts.end() - 2, waveform.volts.end());
    const BurstAccount late = account(traceOf(waveform));
    QCOMPARE(late.fault, QStringLiteral("pulse 1 is 2.0 samples from where the file has it"));
    const QString text = accountText(late);
    QVERIFY(text.contains(QStringLiteral("setup: up to 2.00 samples apart\n")));
    QVERIFY(text.endsWith(QStringLiteral(
        "file: not played as it is: pulse 1 is 2.0 samples from where the file has it\n")));
}

void TestBurstAccount::tooWide()
{
    OutputWaveform waveform = filePlayed();
    std::fill_n(waveform.volts.begin() + 22, 5, 1);
    QCOMPARE(account(traceOf(waveform)).fault,
             QStringLiteral("pulse 2 is 3.0 samples from where the file has it"));
}

void TestBurstAccount::startsLate()
{
    const BurstAccount late = account({filePlayed(), 5e-6});
    QCOMPARE(late.rows.at(0).played->start, 15e-6);
    QCOMPARE(late.fault, QStringLiteral("pulse 1 is 5.0 samples from where the file has it"));
}

void TestBurstAccount::slowClock()
{
    OutputWaveform waveform = filePlayed();
    waveform.setPeriod(2 * 34e-6);
    QCOMPARE(account(traceOf(waveform)).fault,
             QStringLiteral("pulse 1 is 5.0 samples from where the file has it"));
}

void TestBurstAccount::pulseMissing()
{
    OutputWaveform waveform = filePlayed();
    std::fill_n(waveform.volts.begin() + 10, 2, -1);
    const BurstAccount one = account(traceOf(waveform));
    QCOMPARE(one.fault, QStringLiteral("1 pulses where the file has 2"));
    // The second pulse keeps its row.
    QVERIFY(!one.rows.at(0).played);
    QCOMPARE(one.rows.at(1).played->start, 22e-6);
    QVERIFY(std::isinf(one.largestDifference()));
    const QString text = accountText(one);
    QVERIFY(text.contains(QStringLiteral("setup: 1 pulses where 2 are asked for\n")));
    QVERIFY(text.contains(
        QRegularExpression(QStringLiteral("\n1 +10\\.0000( +-){3} +2\\.0000( +-){3}\n"))));
}

void TestBurstAccount::pulseTooMany()
{
    OutputWaveform waveform = filePlayed();
    waveform.volts[30] = 1;
    const BurstAccount three = account(traceOf(waveform));
    QCOMPARE(three.fault, QStringLiteral("3 pulses where the file has 2"));
    QCOMPARE(three.rows.size(), 2);
    QCOMPARE(three.found, 3);
}

void TestBurstAccount::wrongVolts_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("offset");
    QTest::addColumn<bool>("good");
    QTest::newRow("same") << 1.0 << 0.0 << true;
    QTest::newRow("one step of a sample") << 1.0 << 2.0 / 65528 << true;
    QTest::newRow("load forgotten") << 2.0 << 0.0 << false;
    QTest::newRow("offset") << 1.0 << 0.001 << false;
    QTest::newRow("a bit small") << 0.999 << 0.0 << false;
}

void TestBurstAccount::wrongVolts()
{
    QFETCH(double, factor);
    QFETCH(double, offset);
    QFETCH(bool, good);
    OutputWaveform waveform = filePlayed();
    for (double& volts : waveform.volts)
        volts = volts * factor + offset;
    const QString fault = account(traceOf(waveform)).fault;
    QCOMPARE(fault.isEmpty(), good);
    QCOMPARE(fault.endsWith(QStringLiteral(" V where the file has -1.0000 V to 1.0000 V")), !good);
}

// The instrument is not to blame for what the file has rounded.
void TestBurstAccount::fileRoundsDown()
{
    TestSetup setup;
    for (int i = 0; i < 30; ++i)
        setup.rows.append(
            {QStringLiteral("%1u").arg(20.111 + i * 3.337), QStringLiteral("77.777u")});
    OutputWaveform file;
    expectHeaderWarning();
    QCOMPARE(outputOfTrain(setup.train(), file), QString());
    const BurstAccount rounded = accountOf(setup.train(), file, traceOf(file));
    QCOMPARE(rounded.fault, QString());
    QVERIFY(rounded.largestDifference() > 1.01);
    QVERIFY(rounded.largestDifference() < 60);
    QVERIFY(accountText(rounded).contains(
        QStringLiteral(" samples apart: the file rounds each time down to whole points\n")));
}

void TestBurstAccount::fileLosesAPulse()
{
    TestSetup setup;
    for (int i = 0; i < 30; ++i)
        setup.rows.append({i == 7 ? QStringLiteral("20.000n") : QStringLiteral("150.000u"),
                           QStringLiteral("150.000u")});
    OutputWaveform file;
    expectHeaderWarning();
    QCOMPARE(outputOfTrain(setup.train(), file), QString());
    const BurstAccount lost = accountOf(setup.train(), file, traceOf(file));
    QCOMPARE(lost.fault, QString());
    for (int i = 0; i < 30; ++i)
        QCOMPARE(lost.rows.at(i).played.has_value(), i != 7);
    QVERIFY(
        accountText(lost).contains(QStringLiteral("setup: 29 pulses where 30 are asked for: the "
                                                  "file rounds each time down to whole points\n")));
}

void TestBurstAccount::noPulses()
{
    TestSetup setup;
    OutputWaveform file;
    expectHeaderWarning();
    QCOMPARE(outputOfTrain(setup.train(), file), QString());
    const BurstAccount none = accountOf(setup.train(), file, traceOf(file));
    QCOMPARE(none.fault, QString());
    QVERIFY(none.rows.isEmpty());
    QCOMPARE(none.largestDifference(), 0.0);
}

QTEST_APPLESS_MAIN(TestBurstAccount)
#include "test_burstaccount.moc"
