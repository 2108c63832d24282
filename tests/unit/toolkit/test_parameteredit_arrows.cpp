// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "numericeditor.h"

#include <QScrollBar>
#include <QtTest>

#include <limits>

namespace {

const long long Largest = std::numeric_limits<long long>::max();
const int L = Qt::Key_Left;
const int R = Qt::Key_Right;

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

void press(const QVector<int>& keys)
{
    for (int key : keys)
        FrontPanel::press(key);
}

} // namespace

/// The cursor digit: arrows move it and change the prefix, the knob turns it.
class TestParameterEditArrows : public QObject
{
    Q_OBJECT

private slots:
    void powerOfPosition_data();
    void powerOfPosition();
    void arrows_data();
    void arrows();
    void specialRightArrow_data();
    void specialRightArrow();
    void knob_data();
    void knob();
    void knobTurnsGrownZero_data();
    void knobTurnsGrownZero();
    void knobCrossesZero();
    void knobOnSignIsIgnored();
    void knobLogsItsDetents();
    void everyDetentReports();
    void knobScrollsLongNumber();
    void fingerPicksDigit();
};

void TestParameterEditArrows::powerOfPosition_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("power");

    QTest::newRow("tens") << 12345LL << 3 << 0 << 1;
    QTest::newRow("units") << 12345LL << 3 << 1 << 0;
    QTest::newRow("before the point") << 12345LL << 3 << 2 << 0;
    QTest::newRow("first decimal") << 12345LL << 3 << 3 << -1;
    QTest::newRow("last decimal") << 12345LL << 3 << 5 << -3;
    QTest::newRow("sign") << -12345LL << 3 << 0 << 2;
    QTest::newRow("behind the sign") << -12345LL << 3 << 1 << 1;
    QTest::newRow("no point") << 123LL << 0 << 0 << 2;
    QTest::newRow("no point, units") << 123LL << 0 << 2 << 0;
}

// Without the focus the cursor stays where it is put.
void TestParameterEditArrows::powerOfPosition()
{
    QFETCH(long long, value);
    QFETCH(int, precision);
    QFETCH(int, position);

    const NumericEditor numeric(UNIT_VOLTAGE, 0, 1e-4);
    numeric.digits()->updateText(value, precision);
    QTextCursor cursor = numeric.digits()->textCursor();
    cursor.setPosition(position);
    numeric.digits()->setTextCursor(cursor);
    numeric.digits()->caculatePower();
    QTEST(numeric.digits()->cursorPower(), "power");
    QCOMPARE(numeric.digits()->textCursor().position(), position);
    QVERIFY(numeric.underlined().isEmpty());
}

void TestParameterEditArrows::arrows_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<int>("position");
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("underlined");
    QTest::addColumn<int>("power");

    const auto time = [](const char* name, long long steps, int position, const QVector<int>& keys,
                         const char* shown, int underlined, int power) {
        QTest::newRow(name) << int(UNIT_TIME) << 1e-12 << steps << position << keys << text(shown)
                            << underlined << power;
    };
    const auto volt = [](const char* name, long long steps, int position, const QVector<int>& keys,
                         const char* shown, int underlined, int power) {
        QTest::newRow(name) << int(UNIT_VOLTAGE) << 1e-4 << steps << position << keys << text(shown)
                            << underlined << power;
    };
    time("right by a digit", 123000000, 0, {R}, "123.000000u", 1, 1);
    time("right over the point", 123000000, 2, {R}, "123.000000u", 4, -1);
    time("left over the point", 123000000, 4, {L}, "123.000000u", 2, 0);
    time("right ends at the last digit", 123000000, 8, {R, R, R}, "123.000000u", 9, -6);
    time("left of three digits: larger prefix", 123000000, 2, {L}, "0.123000000m", 0, 0);
    time("and back: smaller prefix", 123000000, 2, {L, R}, "123.000000u", 0, 2);
    time("left at the start grows", 123000000, 0, {L}, "0123.000000u", 0, 3);
    time("left at the start grows again", 123000000, 0, {L, L}, "00123.000000u", 0, 4);
    time("right takes a grown zero away", 123000000, 0, {L, L, R}, "0123.000000u", 0, 3);
    time("right takes all away, then moves", 123000000, 0, {L, R, R}, "123.000000u", 1, 1);
    time("left of one digit grows", 1000000000, 0, {L}, "01.000000000m", 0, 1);
    time("no larger prefix", 123000000000000, 2, {L}, "123.000000000000", 2, 0);
    time("larger prefix twice", 123000, 2, {L, L}, "00.123000u", 0, 1);
    time("no smaller prefix: to the digit", 500, 0, {R}, "0.500n", 2, -1);
    time("zero goes to smaller prefixes", 0, 0, {R, R, R}, "0.000n", 0, 0);
    time("and stays in the smallest", 0, 0, {R, R, R, R}, "0.000n", 2, -1);
    volt("smaller prefix of nothing", 0, 0, {R}, "0.0m", 0, 0);
    volt("negative right", -12300, 1, {R}, "-1.2300", 3, -1);
    volt("negative left", -12300, 3, {L}, "-1.2300", 1, 0);
    volt("negative grows behind its sign", -12300, 1, {L}, "-01.2300", 1, 1);
    volt("negative grows again", -12300, 1, {L, L}, "-001.2300", 1, 2);
    volt("negative loses what it grew", -12300, 1, {L, L, R, R}, "-1.2300", 1, 0);
    volt("negative at the tens: larger prefix", -1234, 2, {L}, "-0.1234", 1, 0);
    volt("negative below one moves right", -1234, 2, {L, R}, "-0.1234", 3, -1);
    volt("negative without larger prefix", -1230000, 2, {L}, "-123.0000", 2, 1);
    QTest::newRow("no decimals end at the units")
        << int(UNIT_TIME) << 1e-9 << 20LL << 0 << QVector<int>{R, R} << text("20n") << 1 << 0;
    QTest::newRow("two digits are no three")
        << int(UNIT_TIME) << 1e-9 << 20LL << 1 << QVector<int>{L} << text("20n") << 0 << 1;
    QTest::newRow("finer than the resolution")
        << int(UNIT_TIME) << 1e-7 << 5LL << 2 << QVector<int>{L, R} << text("500n") << 0 << 2;
}

void TestParameterEditArrows::arrows()
{
    QFETCH(int, type);
    QFETCH(double, resolution);
    QFETCH(long long, steps);
    QFETCH(int, position);
    QFETCH(QVector<int>, keys);
    QFETCH(int, underlined);

    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), 0, resolution);
    numeric.editor->setValue(steps);
    numeric.focusOn(position);
    press(keys);
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.editor->getStringValue(), "shown");
    QCOMPARE(numeric.underlined(), QVector<int>{underlined});
    QTEST(numeric.digits()->cursorPower(), "power");
    QCOMPARE(numeric.editor->getValue(), steps);
    QCOMPARE(numeric.reported.count(), 0);
    QVERIFY(numeric.form.pressed.isEmpty());
}

void TestParameterEditArrows::specialRightArrow_data()
{
    QTest::addColumn<long long>("steps");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("shown");

    QTest::newRow("0.000123") << 123LL << 6 << text("0.123");
    QTest::newRow("0.000") << 0LL << 3 << text("000");
    QTest::newRow("0.123") << 123LL << 3 << text("123");
    QTest::newRow("1.123") << 1123LL << 3 << text("1.123");
    QTest::newRow("-0.000123") << -123LL << 6 << text("-0.123");
    QTest::newRow("-0.123") << -123LL << 3 << text("-123");
    QTest::newRow("-1.123") << -1123LL << 3 << text("-1.123");
}

void TestParameterEditArrows::specialRightArrow()
{
    QFETCH(long long, steps);
    QFETCH(int, precision);

    NumericEditor numeric(UNIT_VOLTAGE, 0, 1e-4);
    numeric.digits()->updateText(steps, precision);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    numeric.digits()->rightArrowClicked(&event, true);
    QTEST(numeric.digits()->toPlainText(), "shown");
    QVERIFY(LogCapture::messages().contains(
        text("debug: ParameterTextEdit::rightArrowClicked, e->count()=1, specialDealWith=true")));
}

void TestParameterEditArrows::knob_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("detents");
    QTest::addColumn<long long>("result");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("underlined");

    const auto row = [](const char* name, int type, double resolution, long long steps,
                        int position, int detents, long long result, const char* shown,
                        int underlined) {
        QTest::newRow(name) << type << resolution << steps << position << detents << result
                            << text(shown) << underlined;
    };
    row("first decimal", UNIT_TIME, 1e-12, 1000000000, 2, 1, 1100000000, "1.100000000m", 2);
    row("units", UNIT_TIME, 1e-12, 1000000000, 0, 3, 4000000000, "4.000000000m", 0);
    row("tens", UNIT_TIME, 1e-12, 12000000000, 0, 1, 22000000000, "22.000000000m", 0);
    row("last digit down over the prefix", UNIT_TIME, 1e-12, 1000000000, 10, -1, 999999999,
        "999.999999u", 9);
    row("last digit up over the prefix", UNIT_TIME, 1e-12, 999999999, 9, 1, 1000000000,
        "1.000000000m", 10);
    row("carry makes room", UNIT_TIME, 1e-12, 9000000000, 0, 1, 10000000000, "10.000000000m", 1);
    row("on the point turns the first decimal", UNIT_TIME, 1e-12, 1000000000, 1, 1, 1100000000,
        "1.100000000m", 2);
    row("below zero", UNIT_VOLTAGE, 1e-4, 10000, 0, -2, -10000, "-1.0000", 1);
    row("negative away from zero", UNIT_VOLTAGE, 1e-4, -10000, 1, -1, -20000, "-2.0000", 1);
    row("negative towards zero", UNIT_VOLTAGE, 1e-4, -20000, 3, 1, -19000, "-1.9000", 3);
    row("largest stays", UNIT_TIME, 1e-12, Largest, 0, 1, Largest, "9223372.036854775807", 0);
    row("smallest stays", UNIT_VOLTAGE, 1e-4, -Largest, 1, -9, -Largest - 1,
        "-922337203685477.5808", 1);
    row("finer than the resolution", UNIT_TIME, 1e-7, 1, 2, 5, 1, "100n", 2);
    row("in zeros behind the steps", UNIT_TIME, 1e-7, 1, 0, 2, 3, "300n", 0);
    row("a count", UNIT_EMPTY, 1, 2, 0, 3, 5, "5", 0);
    row("last digit carries", UNIT_TIME, 1e-12, 1999999999, 10, 1, 2000000000, "2.000000000m", 10);
    row("units up over the prefix", UNIT_TIME, 1e-12, 999000000, 2, 1, 1000000000, "1.000000000m",
        3);
    row("no limit at zero", UNIT_TIME, 1e-12, 1000000000, 0, -2, -10000000000, "-10.000000000m", 2);
    row("last digit over zero", UNIT_VOLTAGE, 1e-4, 1, 2, -2, -1, "-0.1m", 3);
    row("last digit back over zero", UNIT_VOLTAGE, 1e-4, -1, 3, 2, 1, "0.1m", 2);
    row("percent", UNIT_PERCENT, 0.01, 5000, 3, -1, 4990, "49.90", 3);
    row("rate", UNIT_RATE, 1, 1000000000, 2, -1, 900000000, "0.900000000G", 2);
    row("phase over zero", UNIT_PHASE, 0.001, 1000, 0, -2, -1000, "-1.000", 1);
    row("points over the prefix", UNIT_POINTS, 1, 999, 2, 1, 1000, "1.000k", 4);
    row("frequency down over the prefix", UNIT_FREQUENCY, 1e-6, 1000000000, 10, -1, 999999999,
        "999.999999", 9);
}

void TestParameterEditArrows::knob()
{
    QFETCH(int, type);
    QFETCH(double, resolution);
    QFETCH(long long, steps);
    QFETCH(int, position);
    QFETCH(int, detents);
    QFETCH(int, underlined);

    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), 0, resolution);
    numeric.editor->setValue(steps);
    numeric.focusOn(position);
    FrontPanel::knob(detents);
    QTEST(numeric.editor->getValue(), "result");
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.editor->getStringValue(), "shown");
    QCOMPARE(numeric.underlined(), QVector<int>{underlined});
    QVERIFY(numeric.form.pressed.isEmpty());
}

void TestParameterEditArrows::knobTurnsGrownZero_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<int>("detents");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("underlined");

    QTest::newRow("up") << int(UNIT_TIME) << 1e-12 << 1000000000LL << 1 << text("11.000000000m")
                        << 0;
    QTest::newRow("down over zero")
        << int(UNIT_VOLTAGE) << 1e-4 << 10000LL << -1 << text("-9.0000") << 1;
    QTest::newRow("negative down")
        << int(UNIT_VOLTAGE) << 1e-4 << -10000LL << -1 << text("-11.0000") << 1;
    QTest::newRow("negative up over zero")
        << int(UNIT_VOLTAGE) << 1e-4 << -10000LL << 1 << text("9.0000") << 0;
}

void TestParameterEditArrows::knobTurnsGrownZero()
{
    QFETCH(int, type);
    QFETCH(double, resolution);
    QFETCH(long long, steps);
    QFETCH(int, detents);
    QFETCH(int, underlined);

    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), 0, resolution);
    numeric.editor->setValue(steps);
    numeric.focusOn(steps < 0 ? 1 : 0);
    FrontPanel::press(Qt::Key_Left);
    QCOMPARE(numeric.digits()->cursorPower(), 1);
    FrontPanel::knob(detents);
    QTEST(numeric.shown(), "shown");
    QCOMPARE(numeric.underlined(), QVector<int>{underlined});
    QCOMPARE(numeric.reports().size(), 1);
}

// The cursor keeps its distance from the right end, in characters: at the point it changes its
// digit.
void TestParameterEditArrows::knobCrossesZero()
{
    NumericEditor numeric(UNIT_VOLTAGE, 0.02, 1e-4);
    numeric.focusOn(0);
    FrontPanel::knob(-1);
    QCOMPARE(numeric.shown(), text("10.0m"));
    QCOMPARE(numeric.underlined(), QVector<int>{0});
    FrontPanel::knob(-1);
    QCOMPARE(numeric.shown(), text("0.0000"));
    QCOMPARE(numeric.underlined(), QVector<int>{2});
    FrontPanel::knob(-1);
    QCOMPARE(numeric.shown(), text("-100.0m"));
    QCOMPARE(numeric.underlined(), QVector<int>{2});
    QCOMPARE(numeric.reports(), (QVector<long long>{100, 0, -1000}));
}

void TestParameterEditArrows::knobOnSignIsIgnored()
{
    NumericEditor numeric(UNIT_VOLTAGE, -1, 1e-4);
    QCOMPARE(numeric.digits()->textCursor().position(), 0);
    for (int key : {Qt::Key_Up, Qt::Key_Down})
        QCoreApplication::postEvent(numeric.editor,
                                    new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    FrontPanel::settle();
    QCOMPARE(numeric.editor->getValue(), -10000LL);

    FrontPanel::tap(numeric.digits()->viewport(), QPoint(1, 10));
    QCOMPARE(numeric.underlined(), QVector<int>{1});
    FrontPanel::knob(1);
    QCOMPARE(numeric.editor->getValue(), 0LL);
}

void TestParameterEditArrows::knobLogsItsDetents()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::knob(1);
    FrontPanel::knob(-1);
    const QStringList log = LogCapture::messages();
    QVERIFY(log.contains(
        text("debug: arameterTextWithOrderOfMagnitude::knobRotateClockwise, e->count()=1")));
    QVERIFY(log.contains(
        text("debug: ParameterTextWithOrderOfMagnitude::knobRotateCouterClockwise, e->count()=1")));
}

void TestParameterEditArrows::everyDetentReports()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(2);
    FrontPanel::knob(2);
    FrontPanel::knob(-1);
    QCOMPARE(numeric.reports(), (QVector<long long>{1100000000, 1200000000, 1100000000}));
    QCOMPARE(numeric.valueSet.count(), 3);
}

// More digits than there is room for: the first ones come into view with the cursor among them, a
// step more of the others behind.
void TestParameterEditArrows::knobScrollsLongNumber()
{
    NumericEditor numeric(UNIT_TIME, 0, 1e-12);
    numeric.editor->setFixedWidth(90);
    numeric.editor->setValue(1234567890123456789);
    FrontPanel::settle();
    QScrollBar* bar = numeric.digits()->horizontalScrollBar();
    QVERIFY(bar->maximum() > 5 * bar->singleStep());
    for (int position : {0, 4, 5, 12}) {
        numeric.focusOn(position);
        numeric.editor->redraw();
        const int before = bar->value();
        FrontPanel::knob(1);
        QCOMPARE(numeric.underlined(), QVector<int>{position});
        const int stepOn = qMin(before + bar->singleStep(), bar->maximum());
        QCOMPARE(bar->value(), position <= 4 ? bar->minimum() : stepOn);
    }

    // Also when there is nothing to add.
    numeric.editor->setValue(Largest);
    numeric.focusOn(0);
    bar->setValue(bar->maximum());
    FrontPanel::knob(1);
    QCOMPARE(numeric.editor->getValue(), Largest);
    QCOMPARE(bar->value(), bar->minimum());
}

void TestParameterEditArrows::fingerPicksDigit()
{
    NumericEditor numeric(UNIT_TIME, 0.0123, 1e-9);
    QCOMPARE(numeric.shown(), text("12.300000m"));
    FrontPanel::tap(numeric.digits()->viewport());
    for (int position : {0, 1, 3, 5, 8}) {
        QTextCursor cursor(numeric.digits()->document());
        cursor.setPosition(position);
        const QRect left = numeric.digits()->cursorRect(cursor);
        FrontPanel::tap(numeric.digits()->viewport(), left.center() + QPoint(2, 0));
        QCOMPARE(numeric.underlined(), QVector<int>{position});
    }
    FrontPanel::knob(1);
    QCOMPARE(numeric.shown(), text("12.300001m"));
}

QTEST_MAIN(TestParameterEditArrows)
#include "test_parameteredit_arrows.moc"
