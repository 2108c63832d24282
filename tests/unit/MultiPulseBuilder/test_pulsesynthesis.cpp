// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsesynthesis.h"

#include "pulsereference.h"

#include <QtTest>

#include <cstddef>
#include <limits>
#include <random>

// A generator built elsewhere fills these structures by their fields' order.
static_assert(offsetof(INFO_WFM, lAction) == 0, "INFO_WFM");
static_assert(offsetof(INFO_WFM, dblAmp) == 8, "INFO_WFM");
static_assert(offsetof(INFO_WFM, dblOffset) == 16, "INFO_WFM");
static_assert(offsetof(INFO_WFM, lStart) == 24, "INFO_WFM");
static_assert(offsetof(INFO_WFM, lStop) == 28, "INFO_WFM");
static_assert(offsetof(INFO_WFM, lSize) == 32, "INFO_WFM");
static_assert(sizeof(INFO_WFM) == 40, "INFO_WFM");
static_assert(offsetof(INFO_PULSE, dblCycle) == 0, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, dblPhase) == 8, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, l50Width) == 16, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lRiseTime) == 24, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lFallTime) == 32, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lDelay) == 40, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lDirect) == 44, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lRiseType) == 48, "INFO_PULSE");
static_assert(offsetof(INFO_PULSE, lFallType) == 52, "INFO_PULSE");
static_assert(sizeof(INFO_PULSE) == 56, "INFO_PULSE");

namespace {

using Samples = std::vector<double>;

const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();
const qint32 MinCount = std::numeric_limits<qint32>::min();
const qint32 MaxCount = std::numeric_limits<qint32>::max();

// Stands around every buffer; nobody may touch it.
const double Guard = 1.0e300;
const int GuardSize = 64;

struct Description
{
    INFO_WFM wfm;
    INFO_PULSE pulse;
};

// Ten points, a positive pulse of 0 V to 1 V without edges or delay, one cycle.
Description plain(int points = 10)
{
    Description d = {};
    d.wfm.dblAmp = 1;
    d.wfm.dblOffset = 0.5;
    d.wfm.lStop = points - 1;
    d.wfm.lSize = points;
    d.pulse.dblCycle = 1;
    return d;
}

Description pulse(int points, int delay, double width, double rise = 0, double fall = 0)
{
    Description d = plain(points);
    d.pulse.lDelay = delay;
    d.pulse.l50Width = width;
    d.pulse.lRiseTime = rise;
    d.pulse.lFallTime = fall;
    return d;
}

template<typename Change>
Description changed(Description description, Change change)
{
    change(description);
    return description;
}

Samples guarded(const Samples& inner)
{
    Samples buffer(GuardSize, Guard);
    buffer.insert(buffer.end(), inner.begin(), inner.end());
    buffer.insert(buffer.end(), GuardSize, Guard);
    return buffer;
}

// Runs the generator over a guarded copy of the buffer.
Samples generate(Description description, const Samples& before, bool& guardsIntact)
{
    Samples buffer = guarded(before);
    MakeWfmMultiPulses(&description.wfm, &description.pulse, buffer.data() + GuardSize);
    guardsIntact = std::all_of(buffer.begin(), buffer.begin() + GuardSize,
                               [](double value) { return value == Guard; }) &&
                   std::all_of(buffer.end() - GuardSize, buffer.end(),
                               [](double value) { return value == Guard; });
    return Samples(buffer.begin() + GuardSize, buffer.end() - GuardSize);
}

QString difference(const Samples& found, const Samples& expected, double tolerance)
{
    for (size_t i = 0; i < expected.size(); ++i) {
        if (!(std::fabs(found[i] - expected[i]) <= tolerance))
            return QStringLiteral("index %1: %2 instead of %3")
                .arg(i)
                .arg(found[i], 0, 'g', 17)
                .arg(expected[i], 0, 'g', 17);
    }
    return QString();
}

Description randomDescription(std::mt19937& random)
{
    const auto number = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    const auto count = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    const double cycles[] = {1, 1, 1, 2, 3, 0.5, 2.75};
    const double phases[] = {0, 0, 0, 90, -90, 359, 720.5, -1000};
    Description d = plain();
    d.wfm.lAction = count(0, 2);
    d.wfm.dblAmp = number(-5, 5);
    d.wfm.dblOffset = number(-3, 3);
    d.wfm.lStart = count(0, 30);
    d.wfm.lStop = d.wfm.lStart + count(3, 200);
    d.pulse.dblCycle = cycles[count(0, 6)];
    d.pulse.dblPhase = phases[count(0, 7)];
    d.pulse.l50Width = number(-20, 150);
    d.pulse.lRiseTime = count(0, 3) == 0 ? 0 : number(-5, 40);
    d.pulse.lFallTime = count(0, 3) == 0 ? 0 : number(-5, 40);
    d.pulse.lDelay = count(-20, 60);
    d.pulse.lDirect = count(-1, 1);
    d.pulse.lRiseType = count(0, 1);
    d.pulse.lFallType = count(0, 1);
    return d;
}

} // namespace

Q_DECLARE_METATYPE(Description)
Q_DECLARE_METATYPE(Samples)

class TestPulseSynthesis : public QObject
{
    Q_OBJECT

private slots:
    void shapes_data();
    void shapes();
    void raisedSine();
    void actions_data();
    void actions();
    void agreesPointByPoint();
    void staysInsideTheStretch_data();
    void staysInsideTheStretch();
    void staysInsideTheWindow_data();
    void staysInsideTheWindow();
};

void TestPulseSynthesis::shapes_data()
{
    QTest::addColumn<Description>("description");
    QTest::addColumn<Samples>("expected");
    const auto row = [](const char* name, const Description& d, const Samples& expected) {
        QTest::newRow(name) << d << expected;
    };
    const auto inverted = [](Description& d) { d.pulse.lDirect = 1; };
    row("rectangle", pulse(8, 2, 3), {0, 0, 1, 1, 1, 0, 0, 0});
    row("no pulse", pulse(4, 0, 0), {0, 0, 0, 0});
    row("all pulse", pulse(4, 0, 4), {1, 1, 1, 1});
    row("cut at the end", pulse(4, 2, 9), {0, 0, 1, 1});
    row("delay behind the end", pulse(4, 9, 2), {0, 0, 0, 0});
    row("width rounds half up", pulse(5, 0, 2.5), {1, 1, 1, 0, 0});
    row("width rounds down", pulse(5, 0, 2.49), {1, 1, 0, 0, 0});
    row("negative width", pulse(4, 1, -3), {0, 0, 0, 0});
    row("negative delay", pulse(5, -2, 4), {1, 1, 0, 0, 0});
    row("inverted", changed(pulse(5, 1, 2), inverted), {1, 0, 0, 1, 1});
    row("any direction but 0 inverts",
        changed(pulse(5, 1, 2), [](Description& d) { d.pulse.lDirect = -7; }), {1, 0, 0, 1, 1});
    // Edges of 4 points are ramps of 5; the top is 10 - 2.5 - 2.5 = 5 points.
    row("linear edges", pulse(17, 1, 10, 4, 4),
        {0, 0, 0.2, 0.4, 0.6, 0.8, 1, 1, 1, 1, 1, 1, 0.8, 0.6, 0.4, 0.2, 0});
    row("linear edges inverted", changed(pulse(17, 1, 10, 4, 4), inverted),
        {1, 1, 0.8, 0.6, 0.4, 0.2, 0, 0, 0, 0, 0, 0, 0.2, 0.4, 0.6, 0.8, 1});
    // Ramps of 4 x 1.25 = 5 points, no top.
    row("edges wider than the pulse", pulse(12, 0, 2, 4, 4),
        {0, 0.2, 0.4, 0.6, 0.8, 1, 0.8, 0.6, 0.4, 0.2, 0, 0});
    row("leading edge alone", pulse(8, 0, 4, 3.2, 0), {0, 0.25, 0.5, 0.75, 1, 1, 0, 0});
    row("trailing edge alone", pulse(8, 0, 4, 0, 3.2), {1, 1, 1, 0.75, 0.5, 0.25, 0, 0});
    // A ramp of 2 x 1.25 = 2.5 points takes 3.
    row("ramp rounds half up", pulse(6, 0, 3.25, 2, 0), {0, 1.0 / 3, 2.0 / 3, 1, 1, 0});
    row("delay inside the ramp", pulse(7, -2, 4, 4, 0), {0.4, 0.6, 0.8, 1, 1, 0, 0});
    row("two cycles", changed(pulse(8, 1, 2), [](Description& d) { d.pulse.dblCycle = 2; }),
        {0, 1, 1, 0, 0, 1, 1, 0});
    // 10 / 3 points are 3.33, of which 3 are a cycle.
    row("three cycles", changed(pulse(10, 1, 1), [](Description& d) { d.pulse.dblCycle = 3; }),
        {0, 1, 0, 0, 1, 0, 0, 1, 0, 0});
    row("half a cycle", changed(pulse(6, 4, 4), [](Description& d) { d.pulse.dblCycle = 0.5; }),
        {0, 0, 0, 0, 1, 1});
    row("phase", changed(pulse(8, 2, 3), [](Description& d) { d.pulse.dblPhase = 90; }),
        {1, 1, 1, 0, 0, 0, 0, 0});
    row("phase beyond a turn",
        changed(pulse(8, 2, 3), [](Description& d) { d.pulse.dblPhase = 450; }),
        {1, 1, 1, 0, 0, 0, 0, 0});
    row("negative phase", changed(pulse(8, 2, 3), [](Description& d) { d.pulse.dblPhase = -90; }),
        {0, 0, 0, 0, 1, 1, 1, 0});
    row("part of the buffer",
        changed(pulse(8, 1, 2),
                [](Description& d) {
                    d.wfm.lStart = 3;
                    d.wfm.lStop = 6;
                }),
        {9, 9, 9, 0, 1, 1, 0, 9});
    row("levels",
        changed(pulse(3, 1, 1),
                [](Description& d) {
                    d.wfm.dblAmp = 5;
                    d.wfm.dblOffset = -1;
                }),
        {-3.5, 1.5, -3.5});
    row("empty stretch",
        changed(pulse(3, 0, 3),
                [](Description& d) {
                    d.wfm.lStart = 2;
                    d.wfm.lStop = 1;
                }),
        {9, 9, 9});
}

void TestPulseSynthesis::shapes()
{
    QFETCH(Description, description);
    QFETCH(Samples, expected);
    bool guardsIntact = false;
    const Samples found = generate(description, Samples(expected.size(), 9), guardsIntact);
    const QString wrong = difference(found, expected, 1e-12);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(guardsIntact);
}

void TestPulseSynthesis::raisedSine()
{
    // 4 points from 10 % to 90 % are 8.2955 in all: ramps of 8, a top of 16 - 8.2955 + 0.5 = 8.
    Description d = pulse(26, 0, 16, 4, 4);
    d.pulse.lRiseType = 1;
    d.pulse.lFallType = 5;
    bool guardsIntact = false;
    const Samples found = generate(d, Samples(26, 9), guardsIntact);
    const double eighth = 0.125 - 0.70710678 / 6.28318531;
    const double quarter = 0.25 - 1 / 6.28318531;
    const double threeEighths = 0.375 - 0.70710678 / 6.28318531;
    const Samples expected = {0,           eighth,
                              quarter,     threeEighths,
                              0.5,         1 - threeEighths,
                              1 - quarter, 1 - eighth,
                              1,           1,
                              1,           1,
                              1,           1,
                              1,           1,
                              1,           1 - eighth,
                              1 - quarter, 1 - threeEighths,
                              0.5,         threeEighths,
                              quarter,     eighth,
                              0,           0};
    const QString wrong = difference(found, expected, 1e-7);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    QVERIFY(guardsIntact);
}

void TestPulseSynthesis::actions_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("size");
    QTest::addColumn<Samples>("expected");
    // Indices 2 to 4 of {10, 11 ... 19} become 0 V, 1 V, 0 V.
    QTest::newRow("overwrite") << 0 << 10 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
    QTest::newRow("overwrite 1") << 1 << 10 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
    QTest::newRow("overwrite -1") << -1 << 10 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
    QTest::newRow("overwrite 4") << 4 << 10 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
    QTest::newRow("add") << 2 << 10 << Samples{10, 11, 12, 14, 14, 15, 16, 17, 18, 19};
    // 10 - 4 - 1 = 5 values move from index 2 to index 5.
    QTest::newRow("insert") << 3 << 10 << Samples{10, 11, 0, 1, 0, 12, 13, 14, 15, 16};
    QTest::newRow("insert in part") << 3 << 7 << Samples{10, 11, 0, 1, 0, 12, 13, 17, 18, 19};
    QTest::newRow("insert at the end") << 3 << 5 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
    QTest::newRow("insert behind") << 3 << 2 << Samples{10, 11, 0, 1, 0, 15, 16, 17, 18, 19};
}

void TestPulseSynthesis::actions()
{
    QFETCH(int, action);
    QFETCH(int, size);
    QFETCH(Samples, expected);
    Description d = pulse(3, 1, 1);
    d.wfm.lAction = action;
    d.wfm.lStart = 2;
    d.wfm.lStop = 4;
    d.wfm.lSize = size;
    bool guardsIntact = false;
    const Samples found = generate(d, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19}, guardsIntact);
    QCOMPARE(found, expected);
    QVERIFY(guardsIntact);
}

void TestPulseSynthesis::agreesPointByPoint()
{
    std::mt19937 random(4711);
    for (int round = 0; round < 20000; ++round) {
        const Description d = randomDescription(random);
        const PulseReference reference(d.wfm, d.pulse);
        Samples expected(240, 0.75);
        for (qint64 i = d.wfm.lStart; i <= d.wfm.lStop; ++i) {
            double& sample = expected[size_t(i)];
            sample = d.wfm.lAction == 2 ? sample + reference.at(i) : reference.at(i);
        }
        bool guardsIntact = false;
        const Samples found = generate(d, Samples(240, 0.75), guardsIntact);
        const QString wrong = difference(found, expected, 0);
        QVERIFY2(reference.isDefined() && wrong.isEmpty() && guardsIntact,
                 qPrintable(QStringLiteral("round %1, %2").arg(round).arg(wrong)));
    }
}

void TestPulseSynthesis::staysInsideTheStretch_data()
{
    QTest::addColumn<Description>("description");
    const auto row = [](const char* name, auto change) {
        QTest::newRow(name) << changed(pulse(100, 5, 20, 3, 3), change);
    };
    const double huge = std::numeric_limits<double>::max();
    row("huge width", [=](Description& d) { d.pulse.l50Width = huge; });
    row("endless width", [](Description& d) { d.pulse.l50Width = Infinity; });
    row("width without value", [](Description& d) { d.pulse.l50Width = NotANumber; });
    row("very negative width", [=](Description& d) { d.pulse.l50Width = -huge; });
    row("huge edges", [=](Description& d) { d.pulse.lRiseTime = d.pulse.lFallTime = huge; });
    row("endless edges", [](Description& d) { d.pulse.lRiseTime = d.pulse.lFallTime = Infinity; });
    row("negative edges", [](Description& d) { d.pulse.lRiseTime = d.pulse.lFallTime = -1e18; });
    row("edges without value",
        [](Description& d) { d.pulse.lRiseTime = d.pulse.lFallTime = NotANumber; });
    row("longest delay", [](Description& d) { d.pulse.lDelay = MaxCount; });
    row("most negative delay", [](Description& d) { d.pulse.lDelay = MinCount; });
    row("most negative delay, huge edges", [=](Description& d) {
        d.pulse.lDelay = MinCount;
        d.pulse.lRiseTime = d.pulse.l50Width = d.pulse.lFallTime = huge;
    });
    row("no cycle", [](Description& d) { d.pulse.dblCycle = 0; });
    row("negative cycles", [](Description& d) { d.pulse.dblCycle = -3; });
    row("cycles without number", [](Description& d) { d.pulse.dblCycle = NotANumber; });
    row("more cycles than points", [](Description& d) { d.pulse.dblCycle = 1e9; });
    row("tiny cycle", [](Description& d) { d.pulse.dblCycle = 1e-300; });
    row("huge phase", [=](Description& d) { d.pulse.dblPhase = huge; });
    row("very negative phase", [](Description& d) { d.pulse.dblPhase = -1e15; });
    row("phase without value", [](Description& d) { d.pulse.dblPhase = NotANumber; });
    row("levels without value", [](Description& d) { d.wfm.dblAmp = NotANumber; });
}

void TestPulseSynthesis::staysInsideTheStretch()
{
    QFETCH(Description, description);
    for (const int action : {0, 2, 3}) {
        description.wfm.lAction = action;
        description.wfm.lStart = 20;
        description.wfm.lStop = 49;
        description.wfm.lSize = 50;
        bool guardsIntact = false;
        const Samples found = generate(description, Samples(100, 7), guardsIntact);
        QVERIFY(guardsIntact);
        QCOMPARE(int(std::count(found.begin(), found.begin() + 20, 7.0)), 20);
        QCOMPARE(int(std::count(found.begin() + 50, found.end(), 7.0)), 50);
    }
}

void TestPulseSynthesis::staysInsideTheWindow_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("stop");
    QTest::newRow("before") << -20 << -1;
    QTest::newRow("behind") << 10 << 40;
    QTest::newRow("across the start") << -4 << 5;
    QTest::newRow("across the end") << 5 << 14;
    QTest::newRow("around") << -300 << 300;
    QTest::newRow("to the largest index") << 3 << MaxCount;
    QTest::newRow("from the smallest index") << MinCount << 3;
    QTest::newRow("all indices") << MinCount << MaxCount;
}

void TestPulseSynthesis::staysInsideTheWindow()
{
    QFETCH(int, start);
    QFETCH(int, stop);
    Description d = pulse(1, 2, 5, 2, 2);
    // The cycle begins before the stretch.
    d.pulse.dblPhase = 180;
    d.wfm.lStart = start;
    d.wfm.lStop = stop;
    Samples buffer = guarded(Samples(10, 7));
    makePulseInWindow(d.wfm, d.pulse, buffer.data() + GuardSize, {0, 10});
    QCOMPARE(int(std::count(buffer.begin(), buffer.begin() + GuardSize, Guard)), GuardSize);
    QCOMPARE(int(std::count(buffer.end() - GuardSize, buffer.end(), Guard)), GuardSize);
    // What lies in the window is what the whole stretch would have there.
    d.wfm.lStop = std::min(stop, 1000);
    d.wfm.lStart = std::max(start, -1000);
    if (d.wfm.lStart != start || d.wfm.lStop != stop)
        return;
    const PulseReference reference(d.wfm, d.pulse);
    for (int i = 0; i < 10; ++i)
        QCOMPARE(buffer[size_t(GuardSize + i)], i < start || i > stop ? 7.0 : reference.at(i));
}

QTEST_APPLESS_MAIN(TestPulseSynthesis)

#include "test_pulsesynthesis.moc"
