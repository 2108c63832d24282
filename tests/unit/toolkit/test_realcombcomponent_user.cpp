// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "realcombcomponent.h"

#include "realcomponent.h"
#include "testtranslator.h"

#include <QtTest>

#include <limits>

using namespace appPlugins;

namespace {

using Integer = RealComponentOf<IntegerCombComponent>;

struct TableReal : RealComponentOf<TabelRealCombComponent>
{
    TableReal()
        : RealComponentOf(UNIT_TIME, 2e-6, 2e-8, 0.00015, 1e-9)
    {}
};

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// What a user does with real components in forms and in cells.
class TestRealCombComponentUser : public QObject
{
    Q_OBJECT

private slots:
    void typedValue_data();
    void typedValue();
    void knobReportsEachDetent();
    void knobStopsAtLimit();
    void integerCounts();
    void focusIsReported();
    void tapFromOneToTheOther();
    void tapOnTitleGivesFocus();
    void disabledTakesNothing();
    void tableKnobReportsOnce_data();
    void tableKnobReportsOnce();
    void tableTypedReportsAtOnce();
    void tableKnobThenTyped();
    void tableKnobBeyondLimitIsIllegal();
    void tableKnobWhileTyping();
    void tableKeysFasterThanQueue();
    void tableDisabledUnderTurnedKnob();
    void tableInputTakesTheWidth();
};

void TestRealCombComponentUser::typedValue_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QVector<double>>("changes");
    QTest::addColumn<QVector<double>>("illegal");
    QTest::addColumn<double>("held");
    QTest::addColumn<QString>("shown");

    using Values = QVector<double>;
    const auto row = [](const char* typed, int key, const Values& changes, const Values& illegal,
                        double held, const char* shown) {
        QTest::addRow("%s by %d", typed, key)
            << text(typed) << key << changes << illegal << held << text(shown);
    };
    row("3", QT_KEY_X1, {3}, {}, 3, "3.0000");
    row("-250", QT_KEY_KM, {-0.25}, {}, -0.25, "-250.0m");
    row("5", QT_KEY_X1, {5}, {}, 5, "5.0000");
    row("5.00009", QT_KEY_X1, {5}, {}, 5, "5.0000");
    row("5.0001", QT_KEY_X1, {}, {5.0001}, 5, "5.0000");
    row("12", QT_KEY_X1, {}, {12}, 5, "5.0000");
    row("-7.25", QT_KEY_X1, {}, {-7.25}, -5, "-5.0000");
    row("0", QT_KEY_X1, {0}, {}, 0, "0.0000");
    row("99999999999999999999", QT_KEY_X1, {}, {922337203685000}, 5, "5.0000");
    row("-99999999999999999999", QT_KEY_X1, {}, {922337203685000}, 5, "5.0000");
    row("1", QT_KEY_X1, {}, {}, 1, "1.0000");
    row("4", QT_KEY_GN, {}, {}, 1, "1.0000");
    row("-", QT_KEY_X1, {}, {}, 1, "1.0000");
}

void TestRealCombComponentUser::typedValue()
{
    QFETCH(QString, typed);
    QFETCH(int, key);

    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    real.focusOn(0);
    FrontPanel::type(typed);
    QCOMPARE(real->get(), 1.0);
    FrontPanel::press(key);
    QTEST(real.changes(), "changes");
    QTEST(real.illegalValues(), "illegal");
    QTEST(real->get(), "held");
    QTEST(real.shown(), "shown");
    QTEST(real->getStringValue(), "shown");
}

void TestRealCombComponentUser::knobReportsEachDetent()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    real.focusOn(2);
    FrontPanel::knob(2);
    FrontPanel::knob(-1);
    QCOMPARE(real.changes(), (QVector<double>{1.1, 1.2, 1.1}));
    QVERIFY(LogCapture::messages().contains(text("warning: slt_editingFinished paraChanged 1.2")));
}

void TestRealCombComponentUser::knobStopsAtLimit()
{
    RealComponent real(UNIT_VOLTAGE, 4, -5, 5, 1e-4);
    real.focusOn(0);
    FrontPanel::knob(3);
    QCOMPARE(real.changes(), QVector<double>{5});
    QCOMPARE(real.illegalValues(), (QVector<double>{6, 6}));
    QCOMPARE(real->get(), 5.0);
    QCOMPARE(real.shown(), text("5.0000"));
    QVERIFY(real.digits()->hasFocus());
    FrontPanel::knob(-1);
    QCOMPARE(real.changes(), (QVector<double>{5, 4}));
}

void TestRealCombComponentUser::integerCounts()
{
    Integer count(UNIT_EMPTY, 2, 30, 2, 1);
    count.focusOn(0);
    FrontPanel::knob(-1);
    QCOMPARE(count.illegalValues(), QVector<double>{1});
    QCOMPARE(static_cast<int>(count->get()), 2);
    QCOMPARE(count.shown(), text("2"));
    QCOMPARE(count->get(), 2.0);

    FrontPanel::type(text("31"));
    FrontPanel::press(QT_KEY_X1);
    QCOMPARE(count.illegalValues(), (QVector<double>{1, 31}));
    QCOMPARE(count->get(), 30.0);
    QVERIFY(count.changes().isEmpty());

    count.focusOn(0);
    FrontPanel::type(text("7.9"));
    FrontPanel::press(Qt::Key_Return);
    QCOMPARE(count.changes(), QVector<double>{7});
    QCOMPARE(count.shown(), text("7"));
}

void TestRealCombComponentUser::focusIsReported()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    real.focusOn(0);
    QCOMPARE(real.focusIn.count(), 1);
    QCOMPARE(real.focusIn.first().first().toString(), text("HighLevel"));
    QCOMPARE(real.focusOut.count(), 0);
    FrontPanel::press(QT_KEY_X1);
    QCOMPARE(real.focusIn.count(), 1);
    QCOMPARE(real.focusOut.count(), 1);
}

void TestRealCombComponentUser::tapFromOneToTheOther()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    real.focusOn(0);
    FrontPanel::type(text("3"));
    auto* otherDigits = real.other->findChild<ParameterTextEdit*>();
    FrontPanel::tap(otherDigits->viewport());
    QVERIFY(otherDigits->hasFocus());
    QCOMPARE(real.shown(), text("1.0000"));
    QVERIFY(real.isSilent());
    FrontPanel::type(text("3"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(real.other->get(), 0.003);
    QCOMPARE(real.shown(), text("1.0000"));
}

void TestRealCombComponentUser::tapOnTitleGivesFocus()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    FrontPanel::tap(real.component, QPoint(5, real->height() / 2));
    QVERIFY(real.digits()->hasFocus());
    QVERIFY(real->hasFocus());
}

void TestRealCombComponentUser::disabledTakesNothing()
{
    RealComponent real(UNIT_VOLTAGE, 1, -5, 5, 1e-4);
    real.focusOn(0);
    FrontPanel::type(text("3"));
    real->setDisable(true);
    QCOMPARE(real.shown(), text("1.0000"));
    FrontPanel::tap(real.digits()->viewport());
    QVERIFY(!real.digits()->hasFocus());
    FrontPanel::type(text("3"));
    FrontPanel::press(QT_KEY_X1);
    FrontPanel::knob(2);
    QCOMPARE(real->get(), 1.0);
    QVERIFY(real.isSilent());
}

void TestRealCombComponentUser::tableKnobReportsOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("knob") << int(QT_KEY_KNOB);
    QTest::newRow("return") << int(Qt::Key_Return);
}

void TestRealCombComponentUser::tableKnobReportsOnce()
{
    QFETCH(int, key);

    TableReal cell;
    cell.focusOn(0);
    FrontPanel::knob(5);
    QCOMPARE(cell->get(), 7e-6);
    QCOMPARE(cell.shown(), text("7.000u"));
    QVERIFY(cell.isSilent());
    QVERIFY(LogCapture::messages().contains(
        text("warning: slt_editingFinished don't emit paraChanged 7e-06 m_bKnobRotating true")));
    FrontPanel::press(key);
    QCOMPARE(cell.changes(), QVector<double>{7e-6});
    QVERIFY(LogCapture::messages().contains(text("warning: eventFilter knob press")));

    cell.focusOn(0);
    FrontPanel::press(key);
    QCOMPARE(cell.changes().size(), 1);
}

void TestRealCombComponentUser::tableTypedReportsAtOnce()
{
    TableReal cell;
    cell.focusOn(0);
    FrontPanel::type(text("2.35"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(cell.changes(), QVector<double>{2.35e-6});
    QCOMPARE(cell.shown(), text("2.350u"));
}

void TestRealCombComponentUser::tableKnobThenTyped()
{
    TableReal cell;
    cell.focusOn(0);
    FrontPanel::knob(1);
    FrontPanel::type(text("9"));
    QVERIFY(cell.isSilent());
    FrontPanel::press(QT_KEY_KNOB);
    QCOMPARE(cell.changes(), QVector<double>{9e-6});
}

void TestRealCombComponentUser::tableKnobBeyondLimitIsIllegal()
{
    TableReal cell;
    QVERIFY(cell->set(0.00015));
    cell.focusOn(0);
    FrontPanel::knob(1);
    QCOMPARE(cell.illegalValues(), QVector<double>{0.00025});
    QCOMPARE(cell.shown(), text("150.000u"));
    QVERIFY(cell.changes().isEmpty());
    FrontPanel::press(QT_KEY_KNOB);
    QCOMPARE(cell.changes(), QVector<double>{0.00015});
}

void TestRealCombComponentUser::tableKnobWhileTyping()
{
    TableReal cell;
    cell.focusOn(0);
    FrontPanel::type(text("5"));
    FrontPanel::knob(1);
    FrontPanel::press(QT_KEY_KNOB);
    QCOMPARE(cell.changes(), QVector<double>{5e-6});
    QCOMPARE(cell.shown(), text("5.000u"));
}

void TestRealCombComponentUser::tableKeysFasterThanQueue()
{
    TableReal cell;
    cell.focusOn(0);
    FrontPanel::burst({Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, QT_KEY_KNOB});
    QCOMPARE(cell.changes(), QVector<double>{7e-6});
    QCOMPARE(cell.shown(), text("7.000u"));
}

void TestRealCombComponentUser::tableDisabledUnderTurnedKnob()
{
    TableReal cell;
    cell.focusOn(0);
    FrontPanel::knob(1);
    FrontPanel::post(QEvent::KeyPress, QT_KEY_KNOB);
    cell->setDisable(true);
    FrontPanel::settle();
    QVERIFY(cell.isSilent());
    QCOMPARE(cell.shown(), text("3.000u"));
}

void TestRealCombComponentUser::tableInputTakesTheWidth()
{
    TableReal cell;
    cell->setCombComponentsHorLayout(0, 1, 0, 0);
    cell->layout()->activate();
    QCOMPARE(cell->findChild<ParameterTextWithOrderOfMagnitude*>()->width(), cell->width());
    for (int item : {0, 2}) {
        const QSizePolicy policy = cell->layout()->itemAt(item)->widget()->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Ignored);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Expanding);
    }
}

QTEST_MAIN(TestRealCombComponentUser)
#include "test_realcombcomponent_user.moc"
