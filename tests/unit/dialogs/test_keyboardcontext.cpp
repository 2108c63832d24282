// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"
#include "keyboarddriver.h"

#include <QInputMethod>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

using KeyboardDriver::touch;

namespace {

QInputMethod* method()
{
    return QGuiApplication::inputMethod();
}

bool shown()
{
    return KeyboardDriver::window() != nullptr;
}

} // namespace

class TestKeyboardContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aTouchShowsIt();
    void theFocusAloneDoesNot();
    void aTouchOnALabelThatLendsItsFocus();
    void aTouchElsewhereDoesNot();
    void aKeyInBetweenTakesTheTouchBack();
    void programsShowAndHideIt();
    void goesWithTheFocus();
    void goesWithTheField();
    void goesWhenTheFieldIsLocked();
    void notForAFieldThatCannotBeEdited_data();
    void notForAFieldThatCannotBeEdited();
    void isChosenByTheField();
    void typesIntoTheField();
    void typesAtTheCursor();
    void reportsItsPlace();
    void isNotBlockedByAModalDialog();
    void comesForTheFieldInADialog();
    void otherFieldOtherPlace();

private:
    DialogSession session;
    Language m_language{QStringLiteral("en")};
    QLineEdit* m_pField = nullptr;
    QLineEdit* m_pOther = nullptr;
};

void TestKeyboardContext::init()
{
    m_pField = new QLineEdit(&session.surface);
    m_pField->setGeometry(40, 40, 300, 44);
    m_pOther = new QLineEdit(&session.surface);
    m_pOther->setGeometry(40, 400, 300, 44);
    m_pField->show();
    m_pOther->show();
    session.surface.activateWindow();
    session.surface.setFocus();
    FrontPanel::settle();
}

void TestKeyboardContext::cleanup()
{
    method()->hide();
    delete m_pField;
    delete m_pOther;
}

void TestKeyboardContext::aTouchShowsIt()
{
    QSignalSpy visible(method(), &QInputMethod::visibleChanged);
    FrontPanel::tap(m_pField);
    QVERIFY(shown());
    QVERIFY(method()->isVisible());
    QVERIFY(!method()->isAnimating());
    QCOMPARE(visible.size(), 1);
    QVERIFY(m_pField->hasFocus());
    QVERIFY(session.surface.isActiveWindow());
}

void TestKeyboardContext::theFocusAloneDoesNot()
{
    m_pField->setFocus();
    FrontPanel::settle();
    QVERIFY(!shown());
    FrontPanel::type(QStringLiteral("x"));
    QVERIFY(!shown());
    FrontPanel::tap(m_pField);
    QVERIFY(shown());
}

void TestKeyboardContext::aTouchOnALabelThatLendsItsFocus()
{
    QLabel label(QStringLiteral("u"), &session.surface);
    label.setGeometry(400, 40, 40, 44);
    label.setFocusPolicy(Qt::ClickFocus);
    label.setFocusProxy(m_pField);
    label.show();
    FrontPanel::tap(&label);
    QVERIFY(m_pField->hasFocus());
    QVERIFY(shown());
}

void TestKeyboardContext::aTouchElsewhereDoesNot()
{
    m_pField->setFocus();
    FrontPanel::tap(&session.surface, {600, 300});
    m_pField->setFocus();
    FrontPanel::settle();
    QVERIFY(!shown());
}

void TestKeyboardContext::aKeyInBetweenTakesTheTouchBack()
{
    m_pField->setReadOnly(true);
    FrontPanel::tap(m_pField);
    FrontPanel::press(Qt::Key_F5);
    m_pField->setReadOnly(false);
    session.surface.setFocus();
    m_pField->setFocus();
    FrontPanel::settle();
    QVERIFY(!shown());
}

void TestKeyboardContext::programsShowAndHideIt()
{
    method()->show();
    QVERIFY(!shown());
    m_pField->setFocus();
    method()->show();
    QVERIFY(shown());
    method()->hide();
    QVERIFY(!shown());
    QVERIFY(m_pField->hasFocus());
    FrontPanel::tap(m_pField);
    QVERIFY(touch({QStringLiteral("Hide keyboard")}));
    QVERIFY(!shown());
    QVERIFY(m_pField->hasFocus());
}

void TestKeyboardContext::goesWithTheFocus()
{
    FrontPanel::tap(m_pField);
    QVERIFY(shown());
    FrontPanel::tap(&session.surface, {700, 100});
    QVERIFY(!shown());
}

void TestKeyboardContext::goesWithTheField()
{
    FrontPanel::tap(m_pField);
    QVERIFY(shown());
    delete m_pField;
    m_pField = nullptr;
    FrontPanel::settle();
    QVERIFY(!shown());
}

void TestKeyboardContext::goesWhenTheFieldIsLocked()
{
    FrontPanel::tap(m_pField);
    QVERIFY(shown());
    m_pField->setReadOnly(true);
    FrontPanel::settle();
    QVERIFY(!shown());
}

void TestKeyboardContext::notForAFieldThatCannotBeEdited_data()
{
    QTest::addColumn<bool>("disabled");
    QTest::newRow("read only") << false;
    QTest::newRow("disabled") << true;
}

void TestKeyboardContext::notForAFieldThatCannotBeEdited()
{
    QFETCH(bool, disabled);
    m_pField->setReadOnly(!disabled);
    m_pField->setDisabled(disabled);
    FrontPanel::tap(m_pField);
    QVERIFY(!shown());
    method()->show();
    QVERIFY(!shown());
}

void TestKeyboardContext::isChosenByTheField()
{
    FrontPanel::tap(m_pField);
    QVERIFY(KeyboardDriver::key(QStringLiteral("q")) != nullptr);
    m_pOther->setInputMethodHints(Qt::ImhDigitsOnly);
    FrontPanel::tap(m_pOther);
    QVERIFY(shown());
    QVERIFY(KeyboardDriver::key(QStringLiteral("q")) == nullptr);
    QVERIFY(KeyboardDriver::key(QStringLiteral("G/n")) == nullptr);
    QVERIFY(touch("12"));
    QCOMPARE(m_pOther->text(), QStringLiteral("12"));
}

void TestKeyboardContext::typesIntoTheField()
{
    QSignalSpy returned(m_pField, &QLineEdit::returnPressed);
    FrontPanel::tap(m_pField);
    QVERIFY(touch("ab-9"));
    QVERIFY(touch({QStringLiteral("Backspace"), QStringLiteral("Space"), QStringLiteral("z")}));
    QCOMPARE(m_pField->text(), QStringLiteral("ab- z"));
    QVERIFY(touch({QStringLiteral("Enter")}));
    QCOMPARE(returned.size(), 1);
}

void TestKeyboardContext::typesAtTheCursor()
{
    m_pField->setText(QStringLiteral("ad"));
    FrontPanel::tap(m_pField, {m_pField->width() - 4, 20});
    QVERIFY(touch({QStringLiteral("Cursor left"), QStringLiteral("b"), QStringLiteral("c")}));
    QVERIFY(touch({QStringLiteral("Cursor right"), QStringLiteral("e")}));
    QCOMPARE(m_pField->text(), QStringLiteral("abcde"));
}

void TestKeyboardContext::reportsItsPlace()
{
    QCOMPARE(method()->keyboardRectangle(), QRectF());
    QSignalSpy moved(method(), &QInputMethod::keyboardRectangleChanged);
    FrontPanel::tap(m_pField);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(method()->keyboardRectangle().toRect(),
             KeyboardDriver::place(KeyboardDriver::window()));
    QCOMPARE(method()->locale().language(), QLocale::English);
    QCOMPARE(method()->inputDirection(), Qt::LeftToRight);
    method()->hide();
    QCOMPARE(method()->keyboardRectangle(), QRectF());
}

void TestKeyboardContext::isNotBlockedByAModalDialog()
{
    QDialog dialog;
    dialog.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setGeometry(0, 0, 800, 480);
    QLineEdit field(&dialog);
    field.setGeometry(10, 10, 300, 40);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    FrontPanel::tap(&field);
    QVERIFY(shown());
    QVERIFY(touch("abc"));
    QCOMPARE(field.text(), QStringLiteral("abc"));
    const QWidget* keyboard = KeyboardDriver::window();
    QCOMPARE(QGuiApplication::topLevelAt(KeyboardDriver::place(keyboard).center()),
             keyboard->windowHandle());
    QVERIFY(dialog.isActiveWindow());
}

// A dialog that opens under the finger has not been touched.
void TestKeyboardContext::comesForTheFieldInADialog()
{
    FrontPanel::tap(&session.surface, {60, 60});
    QDialog dialog;
    dialog.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    dialog.setGeometry(0, 0, 800, 480);
    QLineEdit field(&dialog);
    field.setGeometry(10, 10, 300, 400);
    field.setFocus();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(field.hasFocus());
    QVERIFY(!shown());
    FrontPanel::tap(&field, {100, 20});
    QVERIFY(shown());
}

void TestKeyboardContext::otherFieldOtherPlace()
{
    FrontPanel::tap(m_pField);
    QVERIFY(!KeyboardDriver::place(KeyboardDriver::window())
                 .intersects(KeyboardDriver::place(m_pField)));
    method()->hide();
    FrontPanel::tap(m_pOther);
    QVERIFY(!KeyboardDriver::place(KeyboardDriver::window())
                 .intersects(KeyboardDriver::place(m_pOther)));
}

QTEST_MAIN(TestKeyboardContext)

#include "test_keyboardcontext.moc"
