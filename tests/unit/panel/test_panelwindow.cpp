// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "panelwindow.h"

#include "barbutton.h"
#include "desktopkeyboard.h"
#include "frontface.h"
#include "keybutton.h"
#include "mousemove.h"
#include "panelwindowtrial.h"
#include "screenview.h"
#include "statusstrip.h"
#include "traceplot.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QtTest>

class TestPanelWindow : public QObject, private PanelWindowTrial
{
    Q_OBJECT

private slots:
    void initTestCase() { dropPlatformWarnings(); }
    void init() { open(); }
    void cleanup() { close(); }
    void showsTheScreen();
    void touchesTheScreen_data();
    void touchesTheScreen();
    void fingers();
    void keyboardIsTheFront_data();
    void keyboardIsTheFront();
    void arrowsTurnTheKnob();
    void repeatsAreBlocked();
    void textForTheScreen();
    void areasByF6();
    void areasByMouse();
    void keysComeUpWhenTheWindowIsLeft();
    void lampFollowsTheInstrument();
    void hostGoesAndReturns();
    void instrumentGoesAndReturns();
    void keypadGoesAndReturns();
    void everyTextInFourLanguages();
    void languageMenu();
    void help();
    void settingsAreKept();
    void smallDesktop();
};

void TestPanelWindow::showsTheScreen()
{
    const ScreenView* const view = m_window->face()->screenView();
    QVERIFY(view->notice().isEmpty());
    const QImage picture = m_window->face()->screenView()->grab().toImage();
    QCOMPARE(picture.pixelColor(picture.rect().center()), QColor(0x10, 0x20, 0x30));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("KVX70102 – Function generator"));
}

void TestPanelWindow::touchesTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(900, 600);
    QTest::newRow("natural") << QSize(1408, 900);
    QTest::newRow("large") << QSize(2600, 1700);
}

void TestPanelWindow::touchesTheScreen()
{
    QFETCH(QSize, size);
    m_window->resize(size);
    ScreenView* const view = m_window->face()->screenView();
    const QRectF area = view->pictureArea();
    const auto at = [&area](double x, double y) {
        return (area.topLeft() + QPointF(x * area.width(), y * area.height())).toPoint();
    };
    QTest::mousePress(view, Qt::LeftButton, Qt::NoModifier, at(0.5, 0.25));
    moveMouse(view, at(0.75, 0.5));
    QTest::mouseRelease(view, Qt::LeftButton, Qt::NoModifier, at(0.75, 0.5));
    QTRY_VERIFY(m_bench->screen.events().size() >= 3);
    const QStringList events = m_bench->screen.takeEvents();
    QCOMPARE(events.size(), 3);
    const int slack = qCeil(800 / area.width()) + 1;
    const int expected[3][3] = {{400, 120, 1}, {600, 240, 1}, {600, 240, 0}};
    for (int i = 0; i < 3; ++i) {
        const QStringList parts = events.at(i).split(QLatin1Char(' '));
        QCOMPARE(parts.first(), QStringLiteral("pointer"));
        QVERIFY2(qAbs(parts.at(1).toInt() - expected[i][0]) <= slack, qPrintable(events.at(i)));
        QVERIFY2(qAbs(parts.at(2).toInt() - expected[i][1]) <= slack, qPrintable(events.at(i)));
        QCOMPARE(parts.at(3).toInt(), expected[i][2]);
    }
}

void TestPanelWindow::fingers()
{
    ScreenView* const view = m_window->face()->screenView();
    QTouchDevice* const device = QTest::createTouchDevice();
    const QPoint first = view->rect().center();
    QTest::touchEvent(view, device).press(0, first, view);
    QTest::touchEvent(view, device).move(0, first + QPoint(20, 0), view);
    QTest::touchEvent(view, device).release(0, first + QPoint(20, 0), view);
    QTRY_VERIFY(m_bench->screen.events().size() >= 3);
    const QStringList events = m_bench->screen.takeEvents();
    QCOMPARE(events.size(), 3);
    QVERIFY(events.at(0).endsWith(QLatin1String(" 1")));
    QVERIFY(events.at(1).endsWith(QLatin1String(" 1")));
    QVERIFY(events.at(2).endsWith(QLatin1String(" 0")));
}

void TestPanelWindow::keyboardIsTheFront_data()
{
    QTest::addColumn<int>("desktopKey");
    QTest::addColumn<int>("code");
    for (const FrontKey& key : frontKeys()) {
        if (key.name == QLatin1String("up") || key.name == QLatin1String("down"))
            continue;
        for (const int desktopKey : key.desktopKeys)
            QTest::addRow("%s by %x", qPrintable(key.name), uint(desktopKey))
                << desktopKey << key.code;
    }
}

void TestPanelWindow::keyboardIsTheFront()
{
    QFETCH(int, desktopKey);
    QFETCH(int, code);
    const QByteArray number = QByteArray::number(code);
    QTest::keyPress(m_window.get(), Qt::Key(desktopKey));
    expectKeys("press " + number + '\n');
    QTest::keyRelease(m_window.get(), Qt::Key(desktopKey));
    expectKeys("release " + number + '\n');
    QVERIFY(m_bench->screen.events().isEmpty());
}

void TestPanelWindow::arrowsTurnTheKnob()
{
    QTest::keyClick(m_window.get(), Qt::Key_Up);
    QTest::keyClick(m_window.get(), Qt::Key_Down);
    QTest::keyClick(m_window.get(), Qt::Key_PageUp);
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    expectKeys("turn 1\nturn -1\nturn 10\nturn -10\n");
    QCOMPARE(m_window->face()->knob()->position(), 0);
}

void TestPanelWindow::repeatsAreBlocked()
{
    for (const bool isRepeat : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, QStringLiteral("7"), isRepeat);
        QApplication::sendEvent(m_window->face(), &press);
        QKeyEvent turn(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), isRepeat);
        QApplication::sendEvent(m_window->face(), &turn);
    }
    expectKeys("press 55\nturn 1\nturn 1\nturn 1\n");
    QTest::keyRelease(m_window.get(), Qt::Key_7);
    expectKeys("release 55\n");
}

void TestPanelWindow::textForTheScreen()
{
    QTest::mouseClick(m_window->findChild<BarButton*>(QStringLiteral("areaScreen")),
                      Qt::LeftButton);
    QVERIFY(m_window->face()->screenView()->isTyping());
    QTest::keyClicks(m_window->face(), QStringLiteral("gM_"));
    QTest::keyClick(m_window->face(), Qt::Key_Return);
    QTRY_VERIFY(m_bench->screen.events().size() >= 8);
    const QStringList expected = {QStringLiteral("down 67"),   QStringLiteral("up 67"),
                                  QStringLiteral("down 4d"),   QStringLiteral("up 4d"),
                                  QStringLiteral("down 5f"),   QStringLiteral("up 5f"),
                                  QStringLiteral("down ff0d"), QStringLiteral("up ff0d")};
    QCOMPARE(m_bench->screen.takeEvents(), expected);
    QCOMPARE(m_bench->keypad.received(), QByteArray());
}

void TestPanelWindow::areasByF6()
{
    DesktopKeyboard* const keyboard = m_window->keyboard();
    QCOMPARE(keyboard->area(), KeyboardArea::Keys);
    const KeyboardArea way[] = {KeyboardArea::Screen, KeyboardArea::Trace, KeyboardArea::Keys};
    const char* const names[] = {"areaScreen", "areaTrace", "areaKeys"};
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
        QCOMPARE(keyboard->area(), way[i]);
        QVERIFY(m_window->findChild<BarButton*>(QLatin1String(names[i]))->isChecked());
        QCOMPARE(plot()->hasFocus(), way[i] == KeyboardArea::Trace);
        QCOMPARE(m_window->face()->screenView()->isTyping(), way[i] == KeyboardArea::Screen);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(keyboard->area(), KeyboardArea::Trace);
    QCOMPARE(m_bench->keypad.received(), QByteArray());
}

void TestPanelWindow::areasByMouse()
{
    QTest::mouseClick(plot()->canvas(), Qt::LeftButton);
    QCOMPARE(m_window->keyboard()->area(), KeyboardArea::Trace);
    QTest::keyClick(plot(), Qt::Key_1);
    QTest::mouseClick(m_window->face()->key(QStringLiteral("8")), Qt::LeftButton);
    expectKeys("press 56\nrelease 56\n");
    QCOMPARE(m_window->keyboard()->area(), KeyboardArea::Keys);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
    expectKeys("press 49\nrelease 49\n");
}

void TestPanelWindow::keysComeUpWhenTheWindowIsLeft()
{
    QTest::keyPress(m_window.get(), Qt::Key_K);
    expectKeys("press 713\n");
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    expectKeys("release 713\n");
}

void TestPanelWindow::lampFollowsTheInstrument()
{
    const KeyButton* const key = m_window->face()->key(QStringLiteral("channel1"));
    QVERIFY(!key->isLit());
    m_bench->instrument.setState(0, true, 0, {});
    QTRY_VERIFY(key->isLit());
    m_bench->instrument.setState(0, false, 0, {});
    QTRY_VERIFY(!key->isLit());
}

void TestPanelWindow::hostGoesAndReturns()
{
    ScreenView* const view = m_window->face()->screenView();
    const quint16 port = m_bench->screen.port();
    const QImage sound = view->grab().toImage();
    m_bench->screen.~FakeScreen();
    QTRY_COMPARE(view->notice(), QStringLiteral("The instrument's screen is gone"));
    QVERIFY(!m_window->strip()->isUp(StatusStrip::Screen));
    QVERIFY(view->grab().toImage() != sound);
    new (&m_bench->screen) FakeScreen(port);
    QTRY_VERIFY(view->notice().isEmpty());
    QTRY_COMPARE(view->grab().toImage(), sound);
    QVERIFY(m_window->strip()->isUp(StatusStrip::Screen));
}

void TestPanelWindow::instrumentGoesAndReturns()
{
    giveBurst();
    const quint16 port = m_bench->instrument.port();
    m_bench->instrument.~FakeInstrument();
    QTRY_COMPARE(plot()->notice(),
                 QStringLiteral("The instrument is gone; connecting again by itself"));
    QVERIFY(!m_window->strip()->isUp(StatusStrip::Instrument));
    QVERIFY(!m_window->face()->key(QStringLiteral("channel1"))->isLit());
    new (&m_bench->instrument) FakeInstrument(port);
    QTRY_VERIFY(plot()->notice().isEmpty());
    QTRY_VERIFY(plot()->trace().isEmpty());
}

void TestPanelWindow::keypadGoesAndReturns()
{
    const QString path = m_bench->options().keypadPath;
    m_bench->keypad.~FakeKeypad();
    QTRY_VERIFY(!m_window->strip()->isUp(StatusStrip::Keypad));
    QTest::keyClick(m_window.get(), Qt::Key_7);
    new (&m_bench->keypad) FakeKeypad(path);
    QTRY_VERIFY(m_window->strip()->isUp(StatusStrip::Keypad));
    QTest::keyClick(m_window.get(), Qt::Key_8);
    expectKeys("press 56\nrelease 56\n");
}

void TestPanelWindow::everyTextInFourLanguages()
{
    for (const QString& language : PanelLanguages::all()) {
        QVERIFY(m_languages.install(language));
        const QString keyboard = qtTrId("PANELID_KEYBOARD");
        const auto isShown = [&] {
            const QList<QLabel*> labels = m_window->strip()->findChildren<QLabel*>();
            return std::any_of(labels.begin(), labels.end(), [&keyboard](const QLabel* label) {
                return label->text() == keyboard;
            });
        };
        QTRY_VERIFY(isShown());
        const QList<QWidget*> widgets = m_window->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            for (const QString& text :
                 {widget->toolTip(), widget->accessibleName(), widget->accessibleDescription(),
                  widget->property("text").toString()})
                QVERIFY2(!text.contains(QLatin1String("PANELID")), qPrintable(text));
        }
        const QList<BarButton*> buttons = m_window->findChildren<BarButton*>();
        for (const BarButton* button : buttons)
            QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
        QCOMPARE(m_window->findChild<QAction*>(QStringLiteral("PANELID_MENU_QUIT"))->text(),
                 qtTrId("PANELID_MENU_QUIT"));
    }
}

void TestPanelWindow::languageMenu()
{
    const auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("languageMenu"));
    QCOMPARE(menu->actions().size(), 4);
    menu->actions().at(1)->trigger();
    QCOMPARE(m_languages.current(), QStringLiteral("de"));
    QTRY_COMPARE(m_window->windowTitle(), QStringLiteral("KVX70102 – Funktionsgenerator"));
    QVERIFY(menu->actions().at(1)->isChecked());
    QVERIFY(!menu->actions().at(0)->isChecked());
}

void TestPanelWindow::help()
{
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    auto* const dialog = m_window->findChild<QDialog*>(QStringLiteral("helpDialog"));
    QVERIFY(dialog != nullptr);
    QVERIFY(dialog->isVisible());
    const QString text = dialog->findChild<QTextBrowser*>()->toPlainText();
    QVERIFY(text.contains(QLatin1String("Kilo or milli")));
    QVERIFY(text.contains(QLatin1String("F6")));
    // Its keys are its own.
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(m_bench->keypad.received(), QByteArray());
}

void TestPanelWindow::settingsAreKept()
{
    QSettings settings(m_bench->folder.filePath(QStringLiteral("panel.ini")), QSettings::IniFormat);
    m_window.reset();
    makeWindow(&settings);
    m_window->resize(1111, 777);
    m_window->findChild<QMenu*>(QStringLiteral("languageMenu"))->actions().at(3)->trigger();
    m_window->close();
    m_window.reset();
    QCOMPARE(settings.value(QStringLiteral("language")).toString(), QStringLiteral("ja"));
    makeWindow(&settings);
    QCOMPARE(m_window->size(), QSize(1111, 777));
    m_window.reset();
    // What somebody has broken is not used.
    settings.setValue(QStringLiteral("window/place"), QStringLiteral("nonsense"));
    settings.setValue(QStringLiteral("window/traceShare"), 77);
    makeWindow(&settings);
    QVERIFY(m_window->face()->height() > 200);
    m_window.reset();
}

void TestPanelWindow::smallDesktop()
{
    m_window->resize(m_window->minimumSizeHint());
    QVERIFY2(m_window->width() <= 1366 && m_window->height() <= 700,
             qPrintable(QStringLiteral("%1 x %2").arg(m_window->width()).arg(m_window->height())));
    m_window->resize(1366, 700);
    QVERIFY(m_window->face()->screenView()->width() >= 600);
    QVERIFY(plot()->canvas()->height() >= 60);
}

QTEST_MAIN(TestPanelWindow)
#include "test_panelwindow.moc"
