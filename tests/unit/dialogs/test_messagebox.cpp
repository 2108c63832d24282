// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialogsession.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

namespace {

using Message = int (*)(QString);

QScrollBar* scrollBar()
{
    return DialogSession::dialog()->findChild<QScrollArea*>()->verticalScrollBar();
}

QString tall()
{
    return QString(3000, QLatin1Char('w')).replace(QLatin1String("wwwww"), QLatin1String("wwww "));
}

/// The window behind: notes the keys that reach it.
class Behind : public QWidget
{
public:
    using QWidget::QWidget;
    QVector<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
    void keyReleaseEvent(QKeyEvent* event) override { keys.append(-event->key()); }
};

} // namespace

Q_DECLARE_METATYPE(Message)

class TestMessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAndIsConfirmed_data();
    void tellsAndIsConfirmed();
    void isAnsweredByKeys_data();
    void isAnsweredByKeys();
    void theRestOfAKeyMeansNothing();
    void noKeyReachesTheWindowBehind();
    void nothingBehindCanBeTouched();
    void scrollsALongText();
    void takesNothingForMarkup();
    void breaksALongWord();
    void followsTheLanguage();
    void boxesOpenInBoxes();
    void givesTheFocusBack();

private:
    static const QMap<QString, Message>& kinds();
    int ask(Message message, const QString& text, const std::function<void()>& inside)
    {
        session.answer(inside);
        return message(text);
    }

    DialogSession session;
    Language m_language{QStringLiteral("en")};
};

const QMap<QString, Message>& TestMessageBox::kinds()
{
    static const QMap<QString, Message> map{
        {QStringLiteral("Error"), &HostDialogs::critical},
        {QStringLiteral("Warning"), &HostDialogs::warning},
        {QStringLiteral("Question"), &HostDialogs::question},
        {QStringLiteral("Information"), &HostDialogs::information}};
    return map;
}

void TestMessageBox::tellsAndIsConfirmed_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    for (const QString& title : kinds().keys()) {
        QTest::addRow("%s", qPrintable(title)) << title << QStringLiteral("accept") << 1;
    }
    QTest::newRow("No") << QStringLiteral("Question") << QStringLiteral("refuse") << 0;
}

void TestMessageBox::tellsAndIsConfirmed()
{
    QFETCH(QString, title);
    QFETCH(QString, button);
    const bool asks = title == QLatin1String("Question");
    const int result = ask(kinds().value(title), QStringLiteral("Text of it"), [&] {
        QStringList texts;
        for (const auto* label : DialogSession::dialog()->findChildren<QLabel*>())
            texts.append(label->text());
        QVERIFY(texts.contains(title));
        QVERIFY(texts.contains(QStringLiteral("Text of it")));
        QCOMPARE(DialogSession::button("refuse")->isVisible(), asks);
        QCOMPARE(DialogSession::button("accept")->text(),
                 asks ? QStringLiteral("Yes") : QStringLiteral("OK"));
        QVERIFY(DialogSession::button("accept")->height() >= 60);
        FrontPanel::tap(DialogSession::button(qPrintable(button)));
        QVERIFY(DialogSession::dialog() == nullptr);
    });
    QTEST(result, "result");
}

void TestMessageBox::isAnsweredByKeys_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<int>("result");
    const auto row = [](const char* name, const QVector<int>& keys, int result) {
        QTest::newRow(name) << keys << result;
    };
    row("Enter", {Qt::Key_Return}, 1);
    row("Enter of the keypad", {Qt::Key_Enter}, 1);
    row("knob pressed", {QT_KEY_KNOB}, 1);
    row("space", {Qt::Key_Space}, 1);
    row("Cancel", {Qt::Key_Cancel}, 0);
    row("Escape", {Qt::Key_Escape}, 0);
    row("Back", {QT_KEY_BACK}, 0);
    row("Home", {QT_KEY_HOME}, 0);
    row("right and Enter", {Qt::Key_Right, Qt::Key_Return}, 0);
    row("knob and Enter", {Qt::Key_Down, Qt::Key_Return}, 0);
    row("to and fro", {Qt::Key_Right, Qt::Key_Left, Qt::Key_Return}, 1);
    row("keys without a meaning", {QT_KEY_GN, Qt::Key_5, QT_KEY_HELP, Qt::Key_Return}, 1);
}

void TestMessageBox::isAnsweredByKeys()
{
    QFETCH(QVector<int>, keys);
    const int result = ask(&HostDialogs::question, QStringLiteral("?"), [&] {
        for (int key : keys) {
            QVERIFY(DialogSession::dialog() != nullptr);
            FrontPanel::press(key);
        }
        QVERIFY(DialogSession::dialog() == nullptr);
    });
    QTEST(result, "result");
}

// A key that opened the box is released in it.
void TestMessageBox::theRestOfAKeyMeansNothing()
{
    ask(&HostDialogs::question, QStringLiteral("?"), [] {
        for (int key : {int(Qt::Key_Return), int(Qt::Key_Cancel), int(QT_KEY_BACK)}) {
            FrontPanel::post(QEvent::KeyRelease, key);
            FrontPanel::settle();
            QVERIFY(DialogSession::dialog() != nullptr);
        }
        FrontPanel::post(QEvent::KeyPress, Qt::Key_Cancel);
        FrontPanel::settle();
        QVERIFY(DialogSession::dialog() != nullptr);
        FrontPanel::post(QEvent::KeyRelease, Qt::Key_Cancel);
        FrontPanel::settle();
        QVERIFY(DialogSession::dialog() == nullptr);
    });
}

void TestMessageBox::noKeyReachesTheWindowBehind()
{
    Behind behind;
    behind.setGeometry(0, 0, 800, 480);
    behind.setFocusPolicy(Qt::StrongFocus);
    behind.show();
    QVERIFY(QTest::qWaitForWindowActive(&behind));
    behind.setFocus();
    ask(&HostDialogs::warning, QStringLiteral("!"), [] {
        FrontPanel::press(Qt::Key_Down);
        FrontPanel::press(Qt::Key_7);
        FrontPanel::press(Qt::Key_Cancel);
    });
    FrontPanel::settle();
    QCOMPARE(behind.keys, QVector<int>());
    QVERIFY(behind.hasFocus());
}

void TestMessageBox::nothingBehindCanBeTouched()
{
    auto* button = new QPushButton(&session.surface);
    button->setGeometry(0, 0, 100, 100);
    button->show();
    QSignalSpy clicked(button, &QAbstractButton::clicked);
    FrontPanel::tap(&session.surface, {20, 20});
    QCOMPARE(clicked.size(), 1);
    ask(&HostDialogs::warning, QStringLiteral("!"), [] {
        QDialog* dialog = DialogSession::dialog();
        QCOMPARE(dialog->geometry(), QRect(0, 0, 800, 480));
        QCOMPARE(QGuiApplication::topLevelAt(QPoint(20, 20)), dialog->windowHandle());
        FrontPanel::tap(dialog, {20, 20});
        QVERIFY(dialog->isVisible());
    });
    QCOMPARE(clicked.size(), 1);
    delete button;
}

void TestMessageBox::scrollsALongText()
{
    ask(&HostDialogs::information, tall(), [] {
        QVERIFY(scrollBar()->maximum() > 0);
        FrontPanel::press(Qt::Key_Down);
        const int one = scrollBar()->value();
        QVERIFY(one > 0);
        FrontPanel::press(Qt::Key_Up);
        QCOMPARE(scrollBar()->value(), 0);

        QWidget* text = DialogSession::dialog()->findChild<QScrollArea*>()->viewport();
        FrontPanel::drag(text, {100, 200}, {100, 80});
        QCOMPARE(scrollBar()->value(), 120);
        FrontPanel::drag(text, {100, 80}, {100, 100});
        QCOMPARE(scrollBar()->value(), 100);
        FrontPanel::press(Qt::Key_Return);
        QVERIFY(DialogSession::dialog() == nullptr);
    });
}

void TestMessageBox::takesNothingForMarkup()
{
    const QString text = QStringLiteral("<b>1 < 2</b> &amp; <img src=/etc/passwd>");
    ask(&HostDialogs::warning, text, [&text] {
        const auto* label = DialogSession::part<QLabel>("text");
        QCOMPARE(label->text(), text);
        QCOMPARE(label->textFormat(), Qt::PlainText);
    });
}

void TestMessageBox::breaksALongWord()
{
    ask(&HostDialogs::warning, QString(255, QLatin1Char('w')), [] {
        const auto* scroll = DialogSession::dialog()->findChild<QScrollArea*>();
        QVERIFY(DialogSession::part<QLabel>("text")->width() <= scroll->viewport()->width());
    });
}

void TestMessageBox::followsTheLanguage()
{
    ask(&HostDialogs::question, QStringLiteral("?"), [] {
        QCOMPARE(DialogSession::button("refuse")->text(), QStringLiteral("No"));
        const Language german(QStringLiteral("de"));
        QCOMPARE(DialogSession::button("accept")->text(), QStringLiteral("Ja"));
        QCOMPARE(DialogSession::button("refuse")->text(), QStringLiteral("Nein"));
    });
}

void TestMessageBox::boxesOpenInBoxes()
{
    int inner = -1;
    const int outer = ask(&HostDialogs::question, QStringLiteral("outer"), [&] {
        QDialog* const first = DialogSession::dialog();
        session.answer([&] {
            QVERIFY(DialogSession::dialog() != first);
            FrontPanel::press(QT_KEY_BACK);
        });
        inner = HostDialogs::question(QStringLiteral("inner"));
        QCOMPARE(DialogSession::dialog(), first);
        QVERIFY(first->isActiveWindow());
        FrontPanel::press(Qt::Key_Return);
    });
    QCOMPARE(inner, 0);
    QCOMPARE(outer, 1);
}

void TestMessageBox::givesTheFocusBack()
{
    session.surface.activateWindow();
    session.surface.setFocus();
    FrontPanel::settle();
    QVERIFY(session.surface.hasFocus());
    ask(&HostDialogs::warning, QStringLiteral("!"), [] { FrontPanel::press(Qt::Key_Return); });
    FrontPanel::settle();
    QVERIFY(session.surface.hasFocus());
}

QTEST_MAIN(TestMessageBox)

#include "test_messagebox.moc"
