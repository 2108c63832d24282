// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandrun.h"

#include <QtTest>

/// "mpwv timing": what the point budget makes of each time.
class TestTimingCommand : public QObject
{
    Q_OBJECT

private slots:
    void printsText();
    void printsJson();
    void copesWithoutAPeriod();
    void keepsHugeNumbersShort();
    void refuses();
};

namespace {

// 1 us of delay and four times 1 us: a period of 5 us, shared out in fifths.
QByteArray fifths()
{
    QJsonObject delay = {{SetupKey::Value, 1e-6}};
    const SetupRow row = {QStringLiteral("1.000u"), QStringLiteral("1.000u")};
    return jsonText(
        withRows(withMember(defaultSetup(), SetupKey::TriggerDelay, delay), {row, row}));
}

} // namespace

// Three fifths of 131072 are 78643.2 points, of which each time gets 26214; the same two fifths
// give 52428.8 and twice 26214. 131070 points are left.
void TestTimingCommand::printsText()
{
    const CommandResult result = runWith(runTiming, {QStringLiteral("-")}, fifths());
    QCOMPARE(result.err, QByteArray());
    QCOMPARE(result.exitCode, int(ExitOk));
    QCOMPARE(result.out, QByteArray("period        5.000 us\n"
                                    "frequency  200.000 kHz\n"
                                    "points          131070\n"
                                    "spacing      38.148 ps\n"
                                    "\n"
                                    "time        asked       got  points  error/ns  error/%\n"
                                    "delay    1.000 us  1.000 us   26214    +0.000   +0.000\n"
                                    "width 1  1.000 us  1.000 us   26214    +0.000   +0.000\n"
                                    "gap 1    1.000 us  1.000 us   26214    +0.000   +0.000\n"
                                    "width 2  1.000 us  1.000 us   26214    +0.000   +0.000\n"
                                    "gap 2    1.000 us  1.000 us   26214    +0.000   +0.000\n"));
}

void TestTimingCommand::printsJson()
{
    const CommandResult result =
        runWith(runTiming, {QStringLiteral("--json"), QStringLiteral("-")}, fifths());
    const QJsonObject timing = QJsonDocument::fromJson(result.out).object();
    QCOMPARE(timing.value(QStringLiteral("points")).toInt(), 131070);
    QCOMPARE(timing.value(QStringLiteral("frequency")).toDouble(), 200000.0);
    QCOMPARE(timing.value(QStringLiteral("spacing")).toDouble(),
             timing.value(QStringLiteral("period")).toDouble() / 131070);
    const QJsonObject gap = timing.value(QStringLiteral("pulses"))
                                .toArray()
                                .at(1)
                                .toObject()
                                .value(QStringLiteral("gap"))
                                .toObject();
    QCOMPARE(gap.value(QStringLiteral("points")).toInt(), 26214);
    QVERIFY(qAbs(gap.value(QStringLiteral("asked")).toDouble() - 1e-6) < 1e-15);
    QVERIFY(qAbs(gap.value(QStringLiteral("got")).toDouble() - 1e-6) < 1e-15);
}

void TestTimingCommand::copesWithoutAPeriod()
{
    const CommandResult text = runWith(runTiming, {QStringLiteral("-")}, "{\"a\":1}");
    QCOMPARE(text.exitCode, int(ExitOk));
    QCOMPARE(text.out, QByteArray("period     0.000 s\n"
                                  "frequency   inf Hz\n"
                                  "points           0\n"
                                  "spacing          -\n"
                                  "\n"
                                  "time     asked  got  points  error/ns  error/%\n"
                                  "delay  0.000 s    -       0         -        -\n"));
    const CommandResult json =
        runWith(runTiming, {QStringLiteral("-"), QStringLiteral("--json")}, "{\"a\":1}");
    const QJsonObject timing = QJsonDocument::fromJson(json.out).object();
    QVERIFY(timing.value(QStringLiteral("spacing")).isNull());
    QVERIFY(timing.value(QStringLiteral("frequency")).isNull());
}

void TestTimingCommand::keepsHugeNumbersShort()
{
    const SetupRow row = {QStringLiteral("1e300"), QStringLiteral("1.000u")};
    const CommandResult text =
        runWith(runTiming, {QStringLiteral("-")}, jsonText(withRows(defaultSetup(), {row, row})));
    QCOMPARE(text.exitCode, int(ExitOk));
    QVERIFY2(text.out.contains("1.000e+300 s"), text.out.constData());
    for (const QByteArray& line : text.out.split('\n'))
        QVERIFY2(line.size() < 80, line.constData());
}

void TestTimingCommand::refuses()
{
    const CommandResult result = runWith(runTiming, {QStringLiteral("-")}, "{}");
    QCOMPARE(result.exitCode, int(ExitInput));
    QCOMPARE(result.err,
             QByteArray("mpwv: standard input: not a setup: the JSON object is empty\n"));
    QCOMPARE(runWith(runTiming, {}).exitCode, int(ExitUsage));
    QCOMPARE(runWith(runTiming, {QStringLiteral("a"), QStringLiteral("b")}).err,
             QByteArray("mpwv: timing: one argument too many: b\n"
                        "mpwv: \"mpwv timing --help\" tells how it is used\n"));
}

QTEST_GUILESS_MAIN(TestTimingCommand)
#include "test_timingcommand.moc"
