// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"
#include "keyboarddriver.h"
#include "screenkeyboard.h"

#include <QSignalSpy>

using namespace HostDialogs;
using KeyboardDriver::touch;

Q_DECLARE_METATYPE(HostDialogs::ScreenKeyboard::Kind)

namespace {

const QRect Screen(0, 0, 800, 480);

} // namespace

class TestScreenKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void staysClearOfTheField_data();
    void staysClearOfTheField();
    void keysAreLargeEnough_data();
    void keysAreLargeEnough();
    void typesLetters();
    void capitalsForOneOrForAll();
    void turnsThePage();
    void heldKeysRepeat();
    void cancelAndClose();
    void followsTheLanguage();
    void takesNoFocus();

private:
    void open(ScreenKeyboard& keyboard, ScreenKeyboard::Kind kind)
    {
        keyboard.setKind(kind);
        keyboard.setGeometry(keyboard.placeFor(Screen, QRect(10, 10, 100, 40)));
        keyboard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&keyboard));
    }
    static QString texts(const QSignalSpy& typed)
    {
        QString text;
        for (const QList<QVariant>& key : typed)
            text += key.at(1).toString();
        return text;
    }

    DialogSession session;
    Language m_language{QStringLiteral("en")};
};

void TestScreenKeyboard::staysClearOfTheField_data()
{
    QTest::addColumn<ScreenKeyboard::Kind>("kind");
    QTest::addColumn<QRect>("field");
    QTest::addColumn<bool>("atTheTop");
    QTest::addColumn<bool>("atTheLeft");
    const auto row = [](const char* name, ScreenKeyboard::Kind kind, const QRect& field, bool top,
                        bool left) { QTest::newRow(name) << kind << field << top << left; };
    row("text above", ScreenKeyboard::Text, {10, 60, 700, 46}, false, true);
    row("text below", ScreenKeyboard::Text, {10, 400, 700, 46}, true, true);
    row("number left", ScreenKeyboard::NumberWithUnit, {180, 100, 180, 44}, false, false);
    row("number left at the bottom", ScreenKeyboard::NumberWithUnit, {180, 430, 180, 44}, false,
        false);
    row("number right", ScreenKeyboard::NumberWithUnit, {620, 260, 170, 36}, false, true);
    row("wide number at the bottom", ScreenKeyboard::Number, {10, 420, 780, 44}, true, false);
    row("wide number at the top", ScreenKeyboard::Number, {10, 20, 780, 44}, false, false);
}

void TestScreenKeyboard::staysClearOfTheField()
{
    QFETCH(ScreenKeyboard::Kind, kind);
    QFETCH(QRect, field);
    QFETCH(bool, atTheTop);
    QFETCH(bool, atTheLeft);
    ScreenKeyboard keyboard;
    keyboard.setKind(kind);
    for (const QPoint& origin : {QPoint(0, 0), QPoint(300, 200)}) {
        const QRect screen = Screen.translated(origin);
        const QRect place = keyboard.placeFor(screen, field.translated(origin));
        QVERIFY(screen.contains(place));
        QVERIFY(!place.intersects(field.translated(origin)));
        QCOMPARE(place.top() == screen.top(), atTheTop);
        QCOMPARE(place.left() == screen.left(), atTheLeft);
    }
}

void TestScreenKeyboard::keysAreLargeEnough_data()
{
    QTest::addColumn<ScreenKeyboard::Kind>("kind");
    QTest::newRow("text") << ScreenKeyboard::Text;
    QTest::newRow("number") << ScreenKeyboard::Number;
    QTest::newRow("number with units") << ScreenKeyboard::NumberWithUnit;
}

void TestScreenKeyboard::keysAreLargeEnough()
{
    QFETCH(ScreenKeyboard::Kind, kind);
    ScreenKeyboard keyboard;
    open(keyboard, kind);
    for (const auto* key : keyboard.findChildren<QAbstractButton*>()) {
        if (key->isVisible())
            QVERIFY2(key->width() >= 40 && key->height() >= 40, qPrintable(key->text()));
    }
}

void TestScreenKeyboard::typesLetters()
{
    ScreenKeyboard keyboard;
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    open(keyboard, ScreenKeyboard::Text);
    QVERIFY(touch("a1_"));
    QVERIFY(touch({QStringLiteral("Space"), QStringLiteral("Enter")}));
    QCOMPARE(texts(typed), QStringLiteral("a1_ "));
    QCOMPARE(typed.at(0).at(0).toInt(), int(Qt::Key_A));
    QCOMPARE(typed.at(3).at(0).toInt(), int(Qt::Key_Space));
    QCOMPARE(typed.at(4).at(0).toInt(), int(Qt::Key_Return));
}

void TestScreenKeyboard::capitalsForOneOrForAll()
{
    ScreenKeyboard keyboard;
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    open(keyboard, ScreenKeyboard::Text);
    const QString shift = QStringLiteral("Shift");
    QVERIFY(touch({shift, QStringLiteral("A"), QStringLiteral("b")}));
    QVERIFY(touch({shift, shift, QStringLiteral("C"), QStringLiteral("D")}));
    QVERIFY(touch({shift, QStringLiteral("e")}));
    QCOMPARE(texts(typed), QStringLiteral("AbCDe"));
}

void TestScreenKeyboard::turnsThePage()
{
    ScreenKeyboard keyboard;
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    open(keyboard, ScreenKeyboard::Text);
    QVERIFY(KeyboardDriver::key(QStringLiteral("@")) == nullptr);
    QVERIFY(touch({QStringLiteral("#+="), QStringLiteral("@"), QStringLiteral("abc")}));
    QVERIFY(touch("a"));
    QCOMPARE(texts(typed), QStringLiteral("@a"));
}

void TestScreenKeyboard::heldKeysRepeat()
{
    ScreenKeyboard keyboard;
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    open(keyboard, ScreenKeyboard::NumberWithUnit);
    const auto hold = [](QAbstractButton* key, QEvent::Type type) {
        QWindow* window = key->window()->windowHandle();
        const QPoint at = key->mapTo(key->window(), key->rect().center());
        if (type == QEvent::MouseButtonPress)
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, at);
        else
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, at);
    };
    QAbstractButton* backspace = KeyboardDriver::key(QStringLiteral("Backspace"));
    hold(backspace, QEvent::MouseButtonPress);
    QTRY_VERIFY(typed.size() >= 3);
    hold(backspace, QEvent::MouseButtonRelease);
    FrontPanel::settle();
    for (const QList<QVariant>& key : typed)
        QCOMPARE(key.at(0).toInt(), int(Qt::Key_Backspace));
    QVERIFY(!KeyboardDriver::key(QStringLiteral("5"))->autoRepeat());
}

void TestScreenKeyboard::cancelAndClose()
{
    ScreenKeyboard keyboard;
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    QSignalSpy closed(&keyboard, &ScreenKeyboard::closeRequested);
    open(keyboard, ScreenKeyboard::NumberWithUnit);
    QVERIFY(touch({QStringLiteral("Cancel input")}));
    QCOMPARE(typed.size(), 1);
    QCOMPARE(typed.first().at(0).toInt(), int(Qt::Key_Cancel));
    QCOMPARE(closed.size(), 1);

    open(keyboard, ScreenKeyboard::Text);
    QVERIFY(touch({QStringLiteral("Hide keyboard")}));
    QCOMPARE(typed.size(), 1);
    QCOMPARE(closed.size(), 2);
}

void TestScreenKeyboard::followsTheLanguage()
{
    ScreenKeyboard keyboard;
    open(keyboard, ScreenKeyboard::Text);
    QVERIFY(KeyboardDriver::key(QStringLiteral("ü")) == nullptr);
    const Language german(QStringLiteral("de"));
    QVERIFY(KeyboardDriver::key(QStringLiteral("ü")) != nullptr);
    QVERIFY(KeyboardDriver::key(QStringLiteral("Leertaste")) != nullptr);
    QSignalSpy typed(&keyboard, &ScreenKeyboard::keyTyped);
    QVERIFY(touch({QStringLiteral("Umschalten"), QStringLiteral("Ü"), QStringLiteral("ß")}));
    QCOMPARE(texts(typed), QStringLiteral("Üß"));
}

void TestScreenKeyboard::takesNoFocus()
{
    session.surface.activateWindow();
    session.surface.setFocus();
    FrontPanel::settle();
    ScreenKeyboard keyboard;
    open(keyboard, ScreenKeyboard::Text);
    QVERIFY(touch("qq"));
    QVERIFY(session.surface.isActiveWindow());
    QVERIFY(session.surface.hasFocus());
}

QTEST_MAIN(TestScreenKeyboard)

#include "test_screenkeyboard.moc"
