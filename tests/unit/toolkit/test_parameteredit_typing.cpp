// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "numericeditor.h"

#include <QClipboard>

#include <QtTest>

#include <limits>

namespace {

const long long Largest = std::numeric_limits<long long>::max();

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// A number is typed and committed or given up.
class TestParameterEditTyping : public QObject
{
    Q_OBJECT

private slots:
    void commitsTypedNumber_data();
    void commitsTypedNumber();
    void showsWhatIsTyped();
    void sign_data();
    void sign();
    void signMeansNothingWithoutNegativeValues();
    void pointComesOnce();
    void enterOfKeypadBreaksNoLine();
    void backspaceStartsEmpty();
    void arrowsAndKnobRestWhileTyping();
    void cancelRestores();
    void cancelWithoutTypingDoesNothing();
    void foreignUnitKeyRestores();
    void sameNumberReportsNothing();
    void unitKeyWithoutTypingGivesUpFocus();
    void commitLogsItsKey();
    void keysWithoutTextType();
    void onScreenKeypadTypes();
    void nothingIsPasted();
    void keysFasterThanQueue();
    void foreignKeyFasterThanQueue();
};

void TestParameterEditTyping::commitsTypedNumber_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char* name, int type, double resolution, const char* typed, int key,
                        long long steps, const char* shown) {
        QTest::newRow(name) << type << resolution << text(typed) << key << steps << text(shown);
    };
    row("5 ms", UNIT_TIME, 1e-12, "5", QT_KEY_KM, 5000000000, "5.000000000m");
    row("5 s", UNIT_TIME, 1e-12, "5", QT_KEY_X1, 5000000000000, "5.000000000000");
    row("5 us", UNIT_TIME, 1e-12, "5", QT_KEY_MU, 5000000, "5.000000u");
    row("5 ns", UNIT_TIME, 1e-12, "5", QT_KEY_GN, 5000, "5.000n");
    row("2.350 us", UNIT_TIME, 1e-9, "2.350", QT_KEY_MU, 2350, "2.350u");
    row("cut, not rounded", UNIT_TIME, 1e-9, "1.23456789", QT_KEY_KM, 1234567, "1.234567m");
    row("cut to nothing", UNIT_TIME, 1e-9, "0.9", QT_KEY_GN, 0, "0.000000000");
    row("prefix changes at once", UNIT_TIME, 1e-12, "1500", QT_KEY_MU, 1500000000, "1.500000000m");
    row("fewer decimals", UNIT_TIME, 1e-12, "1.5", QT_KEY_KM, 1500000000, "1.500000000m");
    row("point at the end", UNIT_TIME, 1e-12, "7.", QT_KEY_KM, 7000000000, "7.000000000m");
    row("finer than the resolution", UNIT_TIME, 1e-7, "5000", QT_KEY_GN, 50, "5.0u");
    row("too fine for one step", UNIT_TIME, 1e-7, "5", QT_KEY_GN, 0, "0.0000000");
    row("too fine with a point", UNIT_TIME, 1e-7, "5.5", QT_KEY_GN, 0, "0.0000000");
    row("overflow", UNIT_TIME, 1e-12, "99999999999", QT_KEY_X1, Largest, "9223372.036854775807");
    row("largest by hand", UNIT_TIME, 1e-12, "9223372.036854775807", QT_KEY_X1, Largest,
        "9223372.036854775807");
    row("one more than the largest", UNIT_TIME, 1e-12, "9223372.036854775808", QT_KEY_X1, Largest,
        "9223372.036854775807");
    row("negative overflow", UNIT_VOLTAGE, 1e-4, "-99999999999999999999", QT_KEY_X1, Largest,
        "922337203685477.5807");
    row("smallest by hand", UNIT_VOLTAGE, 1e-4, "-922337203685477.5808", QT_KEY_X1, -Largest - 1,
        "-922337203685477.5808");
    row("Return keeps the prefix", UNIT_TIME, 1e-12, "8", Qt::Key_Return, 8000000000,
        "8.000000000m");
    row("so does the knob", UNIT_TIME, 1e-12, "8", QT_KEY_KNOB, 8000000000, "8.000000000m");
    row("3 V", UNIT_VOLTAGE, 1e-4, "3", QT_KEY_X1, 30000, "3.0000");
    row("3 mV", UNIT_VOLTAGE, 1e-4, "3", QT_KEY_KM, 30, "3.0m");
    row("-3 V", UNIT_VOLTAGE, 1e-4, "-3", QT_KEY_X1, -30000, "-3.0000");
    row("-0.05 V", UNIT_VOLTAGE, 1e-4, "-0.05", QT_KEY_X1, -500, "-50.0m");
    row("-0 V", UNIT_VOLTAGE, 1e-4, "-0", QT_KEY_X1, 0, "0.0000");
    row("2 GHz", UNIT_FREQUENCY, 1e-6, "2", QT_KEY_GN, 2000000000000000, "2.000000000000000G");
    row("2 MHz", UNIT_FREQUENCY, 1e-6, "2", QT_KEY_MU, 2000000000000, "2.000000000000M");
    row("2 kHz", UNIT_FREQUENCY, 1e-6, "2", QT_KEY_KM, 2000000000, "2.000000000k");
    row("2 Hz", UNIT_FREQUENCY, 1e-6, "2", QT_KEY_X1, 2000000, "2.000000");
    row("0.002 Hz", UNIT_FREQUENCY, 1e-6, "0.002", QT_KEY_X1, 2000, "2.000m");
    row("12.5 percent", UNIT_PERCENT, 0.01, "12.5", QT_KEY_X1, 1250, "12.50");
    row("1.2 GSa/s", UNIT_RATE, 1, "1.2", QT_KEY_GN, 1200000000, "1.200000000G");
    row("giga is the base rate", UNIT_RATE, 1, "1.2", QT_KEY_X1, 1200000000, "1.200000000G");
    row("45 degrees", UNIT_PHASE, 0.001, "45", QT_KEY_X1, 45000, "45.000");
    row("4 Mpoints", UNIT_POINTS, 1, "4", QT_KEY_MU, 4000000, "4.000000M");
    row("4 kpoints", UNIT_POINTS, 1, "4", QT_KEY_KM, 4000, "4.000k");
    row("4 points", UNIT_POINTS, 1, "4", QT_KEY_X1, 4, "4");
    row("7 of nothing", UNIT_EMPTY, 1, "7", QT_KEY_X1, 7, "7");
    row("7 thousand", UNIT_EMPTY, 1, "7", QT_KEY_KM, 7000, "7.000k");
}

void TestParameterEditTyping::commitsTypedNumber()
{
    QFETCH(int, type);
    QFETCH(double, resolution);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(long long, steps);

    const double first = type == UNIT_TIME ? 1e-3 : 1;
    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), first, resolution);
    numeric.focusOn(0);
    FrontPanel::type(typed);
    QCOMPARE(numeric.digits()->toPlainText(), typed);
    QCOMPARE(numeric.reported.count(), 0);

    FrontPanel::press(key);
    QCOMPARE(numeric.editor->getValue(), steps);
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.editor->getStringValue(), "shown");
    QCOMPARE(numeric.reports(), QVector<long long>{steps});
    QVERIFY(!numeric.digits()->hasFocus());
    QVERIFY(numeric.form.hasFocus());
    QVERIFY(numeric.underlined().isEmpty());
    // The next finger or knob begins at the first digit.
    QCOMPARE(numeric.digits()->textCursor().position(), steps < 0 ? 1 : 0);
}

void TestParameterEditTyping::showsWhatIsTyped()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(2);
    QCOMPARE(numeric.underlined(), QVector<int>{2});
    FrontPanel::type(text("2.3"));
    QCOMPARE(numeric.digits()->toPlainText(), text("2.3"));
    QVERIFY(numeric.underlined().isEmpty());
    QCOMPARE(numeric.digits()->alignment(), Qt::AlignRight | Qt::AlignVCenter);

    FrontPanel::press(Qt::Key_Backspace);
    QCOMPARE(numeric.digits()->toPlainText(), text("2."));
    FrontPanel::type(text("57"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(numeric.shown(), text("2.570000u"));
    QVERIFY(numeric.form.pressed == QVector<int>{QT_KEY_MU});
}

void TestParameterEditTyping::sign_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("first") << text("-") << text("-");
    QTest::newRow("twice") << text("--") << QString();
    QTest::newRow("before a number") << text("-3") << text("-3");
    QTest::newRow("behind a number") << text("12-") << text("-12");
    QTest::newRow("away again") << text("12--") << text("12");
    QTest::newRow("zero") << text("0.00-") << text("-0.00");
    QTest::newRow("zero, away again") << text("0.00--") << text("0.00");
    QTest::newRow("cursor stays at the sign") << text("12-3") << text("-312");
}

void TestParameterEditTyping::sign()
{
    QFETCH(QString, typed);

    for (int key : {int(Qt::Key_Minus), int(QT_KEY_MINUS)}) {
        NumericEditor numeric(UNIT_VOLTAGE, 1, 1e-4);
        numeric.focusOn(0);
        for (const QChar character : typed)
            FrontPanel::press(character == QLatin1Char('-') ? key : character.unicode());
        QTEST(numeric.digits()->toPlainText(), "shown");
        QVERIFY(numeric.form.released.isEmpty());
    }
}

void TestParameterEditTyping::signMeansNothingWithoutNegativeValues()
{
    for (int key : {int(Qt::Key_Minus), int(QT_KEY_MINUS)}) {
        NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
        numeric.focusOn(0);
        FrontPanel::press(key);
        QCOMPARE(numeric.shown(), text("1.000000000m"));
        QCOMPARE(numeric.underlined(), QVector<int>{0});
        FrontPanel::knob(1);
        QCOMPARE(numeric.shown(), text("2.000000000m"));

        FrontPanel::type(text("4"));
        FrontPanel::press(key);
        QCOMPARE(numeric.digits()->toPlainText(), text("4"));
        FrontPanel::press(QT_KEY_KM);
        QCOMPARE(numeric.shown(), text("4.000000000m"));
    }
}

void TestParameterEditTyping::pointComesOnce()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("1.2.3."));
    QCOMPARE(numeric.digits()->toPlainText(), text("1.23"));

    FrontPanel::press(Qt::Key_Cancel);
    FrontPanel::type(text(".5"));
    QCOMPARE(numeric.digits()->toPlainText(), text(".5"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEditTyping::enterOfKeypadBreaksNoLine()
{
    for (const char* typed : {"", "12"}) {
        NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
        numeric.focusOn(2);
        FrontPanel::type(text(typed));
        const QString before = numeric.shown();
        FrontPanel::post(QEvent::KeyPress, Qt::Key_Enter);
        FrontPanel::settle();
        QCOMPARE(numeric.shown(), before);
        QVERIFY(numeric.digits()->hasFocus());
        QVERIFY(numeric.form.pressed.isEmpty());
    }
}

void TestParameterEditTyping::backspaceStartsEmpty()
{
    for (int key : {int(Qt::Key_Backspace), int(Qt::Key_Delete)}) {
        NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
        numeric.focusOn(3);
        FrontPanel::press(key);
        QCOMPARE(numeric.digits()->toPlainText(), QString());
        FrontPanel::press(QT_KEY_X1);
        QCOMPARE(numeric.shown(), text("5.0000"));

        numeric.focusOn(0);
        FrontPanel::press(key);
        FrontPanel::type(text("-"));
        FrontPanel::press(QT_KEY_X1);
        QCOMPARE(numeric.shown(), text("5.0000"));
        QCOMPARE(numeric.reported.count(), 0);
        QVERIFY(!numeric.form.pressed.contains(key));
    }
}

void TestParameterEditTyping::arrowsAndKnobRestWhileTyping()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("12"));
    for (int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
        FrontPanel::press(key);
    QCOMPARE(numeric.shown(), text("12m"));
    FrontPanel::type(text("3"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(numeric.shown(), text("123.000000u"));
    QCOMPARE(numeric.reports(), QVector<long long>{123000000});
}

void TestParameterEditTyping::cancelRestores()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(4);
    FrontPanel::type(text("77"));
    FrontPanel::press(Qt::Key_Cancel);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QVERIFY(numeric.digits()->hasFocus());
    QCOMPARE(numeric.underlined(), QVector<int>{0});
    QVERIFY(!numeric.form.released.contains(Qt::Key_Cancel));
    QCOMPARE(numeric.reported.count(), 0);

    FrontPanel::knob(1);
    QCOMPARE(numeric.shown(), text("2.000000000m"));
}

void TestParameterEditTyping::cancelWithoutTypingDoesNothing()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(4);
    FrontPanel::press(Qt::Key_Cancel);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.underlined(), QVector<int>{4});
    QVERIFY(numeric.digits()->hasFocus());
    QVERIFY(!numeric.form.released.contains(Qt::Key_Cancel));
}

void TestParameterEditTyping::foreignUnitKeyRestores()
{
    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    numeric.focusOn(2);
    FrontPanel::type(text("9"));
    FrontPanel::press(QT_KEY_GN);
    QCOMPARE(numeric.shown(), text("5.0000"));
    QCOMPARE(numeric.editor->getValue(), 50000LL);
    QVERIFY(!numeric.digits()->hasFocus());
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEditTyping::sameNumberReportsNothing()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("1000"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEditTyping::unitKeyWithoutTypingGivesUpFocus()
{
    for (int key : {int(QT_KEY_GN), int(QT_KEY_MU), int(QT_KEY_KM), int(QT_KEY_X1),
                    int(QT_KEY_KNOB), int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
        numeric.focusOn(3);
        FrontPanel::press(key);
        QCOMPARE(numeric.shown(), text("1.000000000m"));
        QVERIFY(!numeric.digits()->hasFocus());
        QVERIFY(numeric.form.hasFocus());
        QCOMPARE(numeric.reported.count(), 0);
    }
}

void TestParameterEditTyping::commitLogsItsKey()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-9);
    numeric.focusOn(0);
    FrontPanel::type(text("1.23456789"));
    FrontPanel::press(QT_KEY_KM);
    const QStringList log = LogCapture::messages();
    QVERIFY(log.contains(text("warning: eventFilter 713 released")));
    QVERIFY(!log.filter(QRegularExpression(text("^debug: .*-2.*1\\.23456789"))).isEmpty());
}

void TestParameterEditTyping::keysWithoutTextType()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    for (int key : {Qt::Key_4, Qt::Key_Period, Qt::Key_2}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(numeric.digits(), &press);
    }
    QCOMPARE(numeric.digits()->toPlainText(), text("4.2"));
}

void TestParameterEditTyping::onScreenKeypadTypes()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    for (const char* committed : {"6", ".", "x5 "}) {
        QInputMethodEvent event;
        event.setCommitString(text(committed));
        QCoreApplication::sendEvent(numeric.digits(), &event);
    }
    QCOMPARE(numeric.digits()->toPlainText(), text("6.5"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("6.500000000m"));
    QCOMPARE(numeric.reports(), QVector<long long>{6500000000});
}

void TestParameterEditTyping::nothingIsPasted()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    QGuiApplication::clipboard()->setText(text("42"));
    numeric.focusOn(0);
    numeric.digits()->paste();
    QTest::keySequence(numeric.form.windowHandle(), QKeySequence::Paste);
    FrontPanel::settle();
    QCOMPARE(numeric.shown(), text("1.000000000m"));
}

void TestParameterEditTyping::keysFasterThanQueue()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::burst({Qt::Key_Up, Qt::Key_Up, Qt::Key_4, Qt::Key_2, QT_KEY_KM});
    QCOMPARE(numeric.reports(), (QVector<long long>{2000000000, 3000000000, 42000000000}));
    QCOMPARE(numeric.shown(), text("42.000000000m"));

    // The detent comes out of the queue when the focus is gone.
    numeric.focusOn(0);
    FrontPanel::burst({Qt::Key_5, QT_KEY_KM, Qt::Key_Up});
    QCOMPARE(numeric.shown(), text("6.000000000m"));
    QCOMPARE(numeric.reports().mid(3), (QVector<long long>{5000000000, 6000000000}));
}

void TestParameterEditTyping::foreignKeyFasterThanQueue()
{
    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    numeric.focusOn(0);
    FrontPanel::burst({Qt::Key_Backspace, QT_KEY_GN, Qt::Key_Right});
    QCOMPARE(numeric.shown(), text("5.0000"));
    QCOMPARE(numeric.digits()->textCursor().position(), 2);
    QCOMPARE(ToolkitForm::unexpectedWarnings(), QStringList());
}

QTEST_MAIN(TestParameterEditTyping)
#include "test_parameteredit_typing.moc"
