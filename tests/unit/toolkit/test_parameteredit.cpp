// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "numericeditor.h"

#include <QtTest>

#include <limits>

namespace {

const long long Largest = std::numeric_limits<long long>::max();

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// What a numeric editor shows, and what a program does to it.
class TestParameterEdit : public QObject
{
    Q_OBJECT

private slots:
    void showsFirstValue_data();
    void showsFirstValue();
    void showsValueThatIsSet_data();
    void showsValueThatIsSet();
    void hasLookAndParts();
    void programIsSilentWithoutFocus();
    void programWithFocusReports();
    void sameValueDoesNothing();
    void disabledEditorIsSilent();
    void resolutionIsSetAlone();
    void cursorKeepsItsDigitWhileFocused();
    void cursorGoesFirstWithoutFocus();
    void valueThatIsSetEndsTyping();
};

void TestParameterEdit::showsFirstValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char* name, int type, double value, double resolution,
                        const char* shown) {
        QTest::newRow(name) << type << value << resolution << text(shown);
    };
    row("no seconds", UNIT_TIME, 0, 1e-12, "0.000000000000");
    row("a millisecond", UNIT_TIME, 1e-3, 1e-12, "1.000000000m");
    row("2 us to the nanosecond", UNIT_TIME, 2e-6, 1e-9, "2.000u");
    row("150 us to the nanosecond", UNIT_TIME, 0.00015, 1e-9, "150.000u");
    row("20 ns to the nanosecond", UNIT_TIME, 2e-8, 1e-9, "20n");
    row("below the smallest prefix", UNIT_TIME, 5e-10, 1e-12, "0.500n");
    row("above the largest prefix", UNIT_TIME, 1500, 1e-12, "1500.000000000000");
    row("a prefix finer than the resolution", UNIT_TIME, 1e-7, 1e-7, "100n");
    row("rounds up in single precision", UNIT_TIME, 999.999999e-6, 1e-12, "0.999999999m");
    row("more than 64 bits", UNIT_TIME, 1e10, 1e-12, "9223372.036854775807");
    row("no volts", UNIT_VOLTAGE, 0, 1e-4, "0.0000");
    row("half a volt", UNIT_VOLTAGE, 0.5, 1e-4, "500.0m");
    row("-50 mV", UNIT_VOLTAGE, -0.05, 1e-4, "-50.0m");
    row("-5 V", UNIT_VOLTAGE, -5, 1e-4, "-5.0000");
    row("half a millivolt", UNIT_VOLTAGE, 0.0005, 1e-4, "0.5m");
    row("minus half a millivolt", UNIT_VOLTAGE, -0.0005, 1e-4, "-0.5m");
    row("many volts", UNIT_VOLTAGE, 1234.5, 1e-4, "1234.5000");
    row("most negative", UNIT_VOLTAGE, -1e20, 1e-4, "-922337203685477.5808");
    row("no hertz", UNIT_FREQUENCY, 0, 1e-6, "0.000000");
    row("a gigahertz", UNIT_FREQUENCY, 1e9, 1e-6, "1.000000000000000G");
    row("80 MHz", UNIT_FREQUENCY, 80e6, 1e-6, "80.000000000000M");
    row("a millihertz", UNIT_FREQUENCY, 1e-3, 1e-6, "1.000m");
    row("2 uHz", UNIT_FREQUENCY, 2e-6, 1e-6, "2u");
    row("no percent", UNIT_PERCENT, 0, 0.01, "0.00");
    row("half", UNIT_PERCENT, 50, 0.01, "50.00");
    row("too many percent", UNIT_PERCENT, 1234.5, 0.01, "1234.50");
    row("no rate", UNIT_RATE, 0, 1, "0.000000000G");
    row("a gigasample", UNIT_RATE, 1e9, 1, "1.000000000G");
    row("5 megasamples", UNIT_RATE, 5e6, 1, "0.005000000G");
    row("a right angle", UNIT_PHASE, 90, 0.001, "90.000");
    row("no points", UNIT_POINTS, 0, 1, "0");
    row("5 points", UNIT_POINTS, 5, 1, "5");
    row("131072 points", UNIT_POINTS, 131072, 1, "131.072k");
    row("2 million points", UNIT_POINTS, 2e6, 1, "2.000000M");
    row("a plain number", UNIT_EMPTY, 2, 1, "2");
    row("a large plain number", UNIT_EMPTY, 1500, 1, "1.500k");
    row("no plain number", UNIT_EMPTY, 0, 1, "0");
    row("an unknown kind is plain", 99, 1500, 1, "1.500k");
}

void TestParameterEdit::showsFirstValue()
{
    QFETCH(int, type);
    QFETCH(double, value);
    QFETCH(double, resolution);

    const NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), value, resolution);
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.editor->getStringValue(), "shown");
    QCOMPARE(numeric.editor->getTextLength(), numeric.digits()->toPlainText().size());
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEdit::showsValueThatIsSet_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("resolution");
    QTest::addColumn<long long>("steps");
    QTest::addColumn<QString>("shown");

    QTest::newRow("999.999999 us") << int(UNIT_TIME) << 1e-12 << 999999999LL << text("999.999999u");
    QTest::newRow("1 ms") << int(UNIT_TIME) << 1e-12 << 1000000000LL << text("1.000000000m");
    QTest::newRow("1 ps") << int(UNIT_TIME) << 1e-12 << 1LL << text("0.001n");
    QTest::newRow("largest") << int(UNIT_TIME) << 1e-12 << Largest << text("9223372.036854775807");
    QTest::newRow("1 step of 100 ns") << int(UNIT_TIME) << 1e-7 << 1LL << text("100n");
    QTest::newRow("-1 mV") << int(UNIT_VOLTAGE) << 1e-4 << -10LL << text("-1.0m");
    QTest::newRow("-1000 V") << int(UNIT_VOLTAGE) << 1e-4 << -10000000LL << text("-1000.0000");
    QTest::newRow("smallest") << int(UNIT_VOLTAGE) << 1e-4 << std::numeric_limits<long long>::min()
                              << text("-922337203685477.5808");
    QTest::newRow("1 kHz") << int(UNIT_FREQUENCY) << 1e-6 << 1000000000LL << text("1.000000000k");
}

void TestParameterEdit::showsValueThatIsSet()
{
    QFETCH(int, type);
    QFETCH(double, resolution);
    QFETCH(long long, steps);

    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(type), 0, resolution);
    numeric.editor->setValue(steps);
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.editor->getStringValue(), "shown");
    QCOMPARE(numeric.editor->getValue(), steps);
    numeric.editor->setValue(0);
    QCOMPARE(numeric.editor->getValue(), 0LL);
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEdit::hasLookAndParts()
{
    const NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    const appPlugins::ParameterTextEdit* digits = numeric.digits();
    QCOMPARE(digits->objectName(), QStringLiteral("ParameterTextEdit"));
    QCOMPARE(digits->font().family(), QStringLiteral("Frutiger LT Com 55 Roman"));
    QCOMPARE(digits->font().pixelSize(), 16);
    QCOMPARE(digits->font().weight(), 75);
    QVERIFY(!digits->font().italic());
    for (const QWidget* widget :
         {static_cast<const QWidget*>(numeric.editor), static_cast<const QWidget*>(digits)}) {
        QCOMPARE(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(widget->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }
    QCOMPARE(digits->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(digits->cursorWidth(), 0);
    QCOMPARE(digits->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(digits->lineWrapMode(), QTextEdit::NoWrap);
    QCOMPARE(digits->wordWrapMode(), QTextOption::NoWrap);
    QVERIFY(!digits->acceptRichText());
    QVERIFY(!digits->tabChangesFocus());
    QCOMPARE(digits->inputMethodHints(), Qt::ImhFormattedNumbersOnly);
    QCOMPARE(digits->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(digits->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(numeric.editor->focusProxy(), digits);
    QCOMPARE(numeric.editor->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(numeric.editor->styleSheet(),
             QStringLiteral("QLabel{color: rgb(255,255,255); border: 2px solid rgb(255,255,255) "
                            ";border-radius : 0px;}"
                            "QLabel:disabled{color: rgb(146,146,146); border: 2px solid "
                            "rgb(146,146,146) ;border-radius : 0px;}"));
    QCOMPARE(
        digits->styleSheet(),
        QStringLiteral(
            "QTextEdit{background:transparent;border:none;color:rgb(255,255,255);}"
            "QTextEdit:disabled{background:transparent;border:none;color:rgb(146,146,146);}"
            "QTextEdit:focus{background:rgb(52,120,247);border:none;color:rgb(255,255,255);}"));
    QCOMPARE(QLatin1String(numeric.unit()->metaObject()->className()),
             QLatin1String("appPlugins::CTimeUnit"));

    const QLayout* row = numeric.editor->layout();
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->itemAt(1)->widget(), static_cast<QWidget*>(numeric.unit()));
    QCOMPARE(row->itemAt(1)->alignment(), Qt::AlignBottom);

    // Inside the frame.
    const double width = numeric.editor->contentsRect().width();
    QCOMPARE(width, numeric.editor->width() - 4.0);
    QCOMPARE(digits->width(), qRound(width * 133 / 156));
    QCOMPARE(numeric.unit()->width(), qRound(width * 23 / 156));
}

void TestParameterEdit::programIsSilentWithoutFocus()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.editor->setValue(2000000000);
    QCOMPARE(numeric.valueSet.count(), 1);
    QCOMPARE(numeric.reported.count(), 0);
    QCOMPARE(numeric.shown(), text("2.000000000m"));

    numeric.focusOn(0);
    QCOMPARE(numeric.reported.count(), 0);
    QCOMPARE(numeric.shown(), text("2.000000000m"));

    // It is the value that a change is measured by.
    FrontPanel::type(text("2"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.reported.count(), 0);
    numeric.focusOn(0);
    FrontPanel::type(text("1"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.reports(), (QVector<long long>{1000000000}));
}

void TestParameterEdit::programWithFocusReports()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    numeric.editor->setValue(2000000000);
    QCOMPARE(numeric.valueSet.count(), 1);
    QCOMPARE(numeric.reports(), (QVector<long long>{2000000000}));
}

void TestParameterEdit::sameValueDoesNothing()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.editor->setValue(1000000000);
    numeric.focusOn(0);
    numeric.editor->setValue(1000000000);
    QCOMPARE(numeric.valueSet.count(), 0);
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEdit::disabledEditorIsSilent()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    numeric.editor->setDisable(true);
    QVERIFY(!numeric.editor->isEnabled());
    QVERIFY(!numeric.digits()->isEnabled());
    QVERIFY(!numeric.unit()->isEnabled());
    QVERIFY(!numeric.digits()->hasFocus());

    numeric.editor->setValue(3000000000);
    QCOMPARE(numeric.shown(), text("3.000000000m"));
    FrontPanel::tap(numeric.digits()->viewport());
    FrontPanel::knob(1);
    FrontPanel::type(text("7"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("3.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);

    numeric.editor->setDisable(false);
    numeric.focusOn(0);
    FrontPanel::knob(1);
    QCOMPARE(numeric.reports(), (QVector<long long>{4000000000}));
}

void TestParameterEdit::resolutionIsSetAlone()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.editor->setResolution(1e-9);
    QCOMPARE(numeric.editor->getResolution(), 1e-9);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    numeric.editor->initialize();
    QCOMPARE(numeric.shown(), text("1.000000000"));
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEdit::cursorKeepsItsDigitWhileFocused()
{
    NumericEditor numeric(UNIT_VOLTAGE, 9, 1e-4);
    numeric.focusOn(3);
    QCOMPARE(numeric.digits()->cursorPower(), -2);
    numeric.editor->setValue(123456);
    QCOMPARE(numeric.shown(), text("12.3456"));
    QCOMPARE(numeric.digits()->cursorPower(), -2);
    QCOMPARE(numeric.underlined(), QVector<int>{4});
}

void TestParameterEdit::cursorGoesFirstWithoutFocus()
{
    NumericEditor numeric(UNIT_VOLTAGE, 9, 1e-4);
    numeric.focusOn(3);
    FrontPanel::tap(numeric.other->textEdit()->viewport());
    numeric.editor->setValue(-123456);
    QCOMPARE(numeric.shown(), text("-12.3456"));
    QCOMPARE(numeric.digits()->textCursor().position(), 0);
    QVERIFY(numeric.underlined().isEmpty());

    // With the focus it stands on a digit.
    numeric.editor->setFocus();
    FrontPanel::settle();
    QCOMPARE(numeric.underlined(), QVector<int>{1});
    QCOMPARE(numeric.digits()->cursorPower(), 1);
}

void TestParameterEdit::valueThatIsSetEndsTyping()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("12"));
    numeric.editor->setValue(7000000000);
    QCOMPARE(numeric.shown(), text("7.000000000m"));

    FrontPanel::type(text("3"));
    QCOMPARE(numeric.digits()->toPlainText(), text("3"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("3.000000000m"));
}

QTEST_MAIN(TestParameterEdit)
#include "test_parameteredit.moc"
