// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "numericeditor.h"

#include <QtTest>

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// The focus comes and goes, and keys that are not the editor's go on to the dialog.
class TestParameterEditFocus : public QObject
{
    Q_OBJECT

private slots:
    void tapTakesFocus();
    void tapOnPrefixTakesFocus();
    void tapElsewhereGivesUpTyping();
    void programTakesFocusFromTyping();
    void otherWindowEndsTyping();
    void grownZerosGoWithFocus();
    void prefixThatWasChosenStays();
    void focusIsVisible();
    void foreignKeysReachDialog_data();
    void foreignKeysReachDialog();
    void ownReleasesAreSwallowed();
    void foreignKeysWithoutDialogAreDropped();
    void keysElsewhereChangeNothing();
};

void TestParameterEditFocus::tapTakesFocus()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    QVERIFY(numeric.underlined().isEmpty());
    FrontPanel::tap(numeric.digits()->viewport(), QPoint(1, 10));
    QVERIFY(numeric.digits()->hasFocus());
    QVERIFY(numeric.unit()->getBDisguiseFocus());
    QCOMPARE(numeric.focusIn.count(), 1);
    QCOMPARE(numeric.focusOut.count(), 0);
    QCOMPARE(numeric.underlined(), QVector<int>{0});

    FrontPanel::tap(numeric.other->textEdit()->viewport());
    QVERIFY(numeric.other->textEdit()->hasFocus());
    QVERIFY(!numeric.unit()->getBDisguiseFocus());
    QCOMPARE(numeric.focusIn.count(), 1);
    QCOMPARE(numeric.focusOut.count(), 1);
    QVERIFY(numeric.underlined().isEmpty());
}

void TestParameterEditFocus::tapOnPrefixTakesFocus()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    FrontPanel::tap(numeric.unit());
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(numeric.digits()));
    QVERIFY(numeric.unit()->getBDisguiseFocus());

    FrontPanel::type(text("4"));
    FrontPanel::tap(numeric.unit());
    QCOMPARE(numeric.digits()->toPlainText(), text("4"));
    FrontPanel::press(QT_KEY_MU);
    QCOMPARE(numeric.shown(), text("4.000000u"));
}

void TestParameterEditFocus::tapElsewhereGivesUpTyping()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("25"));
    FrontPanel::tap(numeric.other->textEdit()->viewport());
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);
    QVERIFY(numeric.other->textEdit()->hasFocus());

    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    numeric.focusOn(0);
    FrontPanel::type(text("6"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("6.000000000m"));
}

void TestParameterEditFocus::programTakesFocusFromTyping()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("25"));
    numeric.form.setFocus();
    FrontPanel::settle();
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);
}

void TestParameterEditFocus::otherWindowEndsTyping()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::type(text("25"));
    QDialog box;
    box.show();
    box.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QTRY_COMPARE(numeric.shown(), text("1.000000000m"));

    box.hide();
    numeric.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&numeric.form));
    QTRY_VERIFY(numeric.digits()->hasFocus());
    FrontPanel::type(text("3"));
    QCOMPARE(numeric.digits()->toPlainText(), text("3"));
}

void TestParameterEditFocus::grownZerosGoWithFocus()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    FrontPanel::press(Qt::Key_Left);
    QCOMPARE(numeric.shown(), text("01.000000000m"));
    FrontPanel::press(QT_KEY_X1);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.editor->getStringValue(), text("1.000000000m"));
}

void TestParameterEditFocus::prefixThatWasChosenStays()
{
    NumericEditor numeric(UNIT_TIME, 0.123, 1e-12);
    numeric.focusOn(2);
    FrontPanel::press(Qt::Key_Left);
    FrontPanel::tap(numeric.other->textEdit()->viewport());
    QCOMPARE(numeric.shown(), text("0.123000000000"));
}

void TestParameterEditFocus::focusIsVisible()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    const QColor blue(52, 120, 247);
    const auto digitsField = [&] {
        return numeric.form.grab().toImage().pixelColor(
            FrontPanel::inWindow(numeric.digits(), QPoint(3, 3)));
    };
    const auto prefixField = [&] {
        return numeric.form.grab().toImage().pixelColor(
            FrontPanel::inWindow(numeric.unit(), QPoint(numeric.unit()->width() - 4, 3)));
    };
    QVERIFY(digitsField() != blue);
    QVERIFY(prefixField() != blue);
    numeric.focusOn(0);
    QCOMPARE(digitsField(), blue);
    QCOMPARE(prefixField(), blue);
    FrontPanel::press(QT_KEY_X1);
    QVERIFY(digitsField() != blue);
    QVERIFY(prefixField() != blue);
}

void TestParameterEditFocus::foreignKeysReachDialog_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("output") << int(QT_KEY_CH1ON);
    QTest::newRow("default") << int(QT_KEY_DEFAULT);
    QTest::newRow("utility") << int(QT_KEY_UTLITY);
    QTest::newRow("manual") << int(QT_KEY_MANUAL);
    QTest::newRow("home") << int(QT_KEY_HOME);
    QTest::newRow("back") << int(QT_KEY_BACK);
    QTest::newRow("help") << int(QT_KEY_HELP);
    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("tab") << int(Qt::Key_Tab);
    QTest::newRow("letter") << int(Qt::Key_A);
    QTest::newRow("space") << int(Qt::Key_Space);
}

void TestParameterEditFocus::foreignKeysReachDialog()
{
    QFETCH(int, key);

    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    numeric.focusOn(0);
    for (bool typing : {false, true}) {
        if (typing)
            FrontPanel::type(text("12"));
        const QString before = numeric.shown();
        FrontPanel::press(key);
        QCOMPARE(numeric.form.pressed, QVector<int>{key});
        QCOMPARE(numeric.form.released, QVector<int>{key});
        QCOMPARE(numeric.shown(), before);
        QVERIFY(numeric.digits()->hasFocus());
        numeric.form.pressed.clear();
        numeric.form.released.clear();
    }
}

void TestParameterEditFocus::ownReleasesAreSwallowed()
{
    NumericEditor numeric(UNIT_VOLTAGE, 1, 1e-4);
    numeric.focusOn(0);
    for (int key : {int(Qt::Key_Left), int(Qt::Key_Right), int(Qt::Key_0), int(Qt::Key_9),
                    int(Qt::Key_Period), int(Qt::Key_Minus), int(QT_KEY_MINUS), int(Qt::Key_Delete),
                    int(Qt::Key_Backspace)})
        FrontPanel::press(key);
    QVERIFY(numeric.form.pressed.isEmpty());
    QVERIFY(numeric.form.released.isEmpty());
}

void TestParameterEditFocus::foreignKeysWithoutDialogAreDropped()
{
    const LogCapture log;
    QWidget window;
    appPlugins::ParameterTextWithOrderOfMagnitude editor(&window, 1e-3, UNIT_TIME, 1e-12);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    editor.setFocus();
    FrontPanel::press(QT_KEY_HELP);
    FrontPanel::press(Qt::Key_A);
    QCOMPARE(editor.getStringValue(), text("1.000000000m"));
    QVERIFY(editor.textEdit()->hasFocus());
    FrontPanel::press(QT_KEY_X1);
    QVERIFY(!editor.textEdit()->hasFocus());
}

void TestParameterEditFocus::keysElsewhereChangeNothing()
{
    NumericEditor numeric(UNIT_TIME, 1e-3, 1e-12);
    for (int key : {int(Qt::Key_Up), int(Qt::Key_5), int(Qt::Key_Left), int(QT_KEY_KM),
                    int(Qt::Key_Cancel), int(Qt::Key_Backspace), int(Qt::Key_Return)})
        FrontPanel::press(key);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.reported.count(), 0);

    FrontPanel::tap(numeric.other->textEdit()->viewport());
    FrontPanel::type(text("5"));
    FrontPanel::press(QT_KEY_KM);
    QCOMPARE(numeric.shown(), text("1.000000000m"));
    QCOMPARE(numeric.other->getValue(), 5000000000LL);
}

QTEST_MAIN(TestParameterEditFocus)
#include "test_parameteredit_focus.moc"
