// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "windowmodaldialogwithmask.h"

#include "logcapture.h"
#include "pluginwindow.h"

#include <QCloseEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

namespace {

QStringList withText(const char* text)
{
    return LogCapture::messages().filter(QLatin1String(text));
}

} // namespace

class TestWindowModalDialogWithMask : public QObject
{
    Q_OBJECT

private slots:
    void isFramelessAndTranslucent();
    void maskCoversTheScreen();
    void contentHasTheFocus();
    void contentIsCentred_data();
    void contentIsCentred();
    void positionMovesNothing();
    void geometryIsLogged();
    void startsBeforeItIsShown();
    void runsOnTopOfItsHost();
    void keepsOtherWindowFlags();
    void focusObjectIsLogged();
    void noFocusObjectIsNotLogged();
    void startsAnewForEachRun();
    void returnsItsResult_data();
    void returnsItsResult();
    void givesTheFocusBack();
    void givesTheFocusOfTheLatestRunBack();
    void leavesTheFocusWhenItsOwnerIsHidden_data();
    void leavesTheFocusWhenItsOwnerIsHidden();
    void leavesTheFocusWhenItsOwnerIsDeleted();
    void leavesTheFocusWithoutARun();
    void closeFinishes();
    void closeOfAHiddenOneFinishes();
    void staysFinished();
};

void TestWindowModalDialogWithMask::isFramelessAndTranslucent()
{
    HostWindow host;
    const PluginWindow window(&host);
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(window.windowFlags(), Qt::WindowFlags(Qt::Dialog | Qt::FramelessWindowHint));
    QCOMPARE(window.windowModality(), Qt::NonModal);
    QCOMPARE(window.parentWidget(), &host);
    QVERIFY(window.isHidden());
    QVERIFY(!window.getFinished());
    QCOMPARE(window.startups, 0);
}

void TestWindowModalDialogWithMask::maskCoversTheScreen()
{
    const PluginWindow window(nullptr);
    const QLabel* mask = window.mask();
    QVERIFY(mask != nullptr);
    QCOMPARE(mask->parentWidget(), &window);
    QCOMPARE(mask->geometry(),
             QRect(QPoint(), QGuiApplication::primaryScreen()->virtualGeometry().size()));
    QVERIFY(mask->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(mask->focusPolicy(), Qt::NoFocus);
    QCOMPARE(mask->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(mask->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestWindowModalDialogWithMask::contentHasTheFocus()
{
    const PluginWindow window(nullptr);
    const QLabel* content = window.content();
    QVERIFY(content != nullptr);
    QCOMPARE(content->parentWidget(), window.mask());
    QCOMPARE(content->styleSheet(), QStringLiteral("background: #1e1e1e;"));
    QCOMPARE(content->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(content->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(content->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window.focusProxy(), content);
}

void TestWindowModalDialogWithMask::contentIsCentred_data()
{
    QTest::addColumn<QRect>("mask");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("corner");

    // The middle pixel of 800 by 480 is (399, 239), that of 801 by 481 is (400, 240).
    const QRect even(0, 0, 800, 480);
    const QRect odd(0, 0, 801, 481);
    QTest::newRow("even in even") << even << QSize(400, 300) << QPoint(200, 90);
    QTest::newRow("odd in even") << even << QSize(401, 301) << QPoint(199, 89);
    QTest::newRow("even in odd") << odd << QSize(400, 300) << QPoint(201, 91);
    QTest::newRow("odd in odd") << odd << QSize(401, 301) << QPoint(200, 90);
    QTest::newRow("odd by even") << even << QSize(399, 302) << QPoint(200, 89);
    QTest::newRow("whole even screen") << even << QSize(800, 480) << QPoint(0, 0);
    QTest::newRow("whole odd screen") << odd << QSize(801, 481) << QPoint(0, 0);
    QTest::newRow("one pixel") << even << QSize(1, 1) << QPoint(399, 239);
    QTest::newRow("two pixels") << even << QSize(2, 2) << QPoint(399, 239);
    QTest::newRow("three pixels") << even << QSize(3, 3) << QPoint(398, 238);
    QTest::newRow("nothing") << even << QSize(0, 0) << QPoint(399, 239);
    QTest::newRow("larger") << even << QSize(1000, 601) << QPoint(-100, -61);
    QTest::newRow("mask elsewhere")
        << QRect(10, 21, 800, 480) << QSize(400, 300) << QPoint(210, 111);
}

void TestWindowModalDialogWithMask::contentIsCentred()
{
    QFETCH(QRect, mask);
    QFETCH(QSize, size);
    QFETCH(QPoint, corner);

    const LogCapture log;
    PluginWindow window(nullptr);
    window.mask()->setGeometry(mask);
    window.setGeometry(7, 13, size.width(), size.height());
    QCOMPARE(window.content()->geometry(), QRect(corner, size));
}

void TestWindowModalDialogWithMask::positionMovesNothing()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    const QRect before = window.geometry();
    window.setGeometry(0, 0, 400, 300);
    const QRect centred = window.content()->geometry();
    QCOMPARE(centred.size(), QSize(400, 300));
    for (const QPoint& corner : {QPoint(100, 100), QPoint(-5000, 3), QPoint(799, 479)}) {
        window.setGeometry(corner.x(), corner.y(), 400, 300);
        QCOMPARE(window.content()->geometry(), centred);
    }
    QCOMPARE(window.geometry(), before);
}

void TestWindowModalDialogWithMask::geometryIsLogged()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    window.setGeometry(100, -20, 400, 300);
    QCOMPARE(LogCapture::messages(),
             QStringList{QStringLiteral(
                 "info: WindowModalDialogWithMask::setGeometry x=100, y=-20, w=400, h=300")});
}

void TestWindowModalDialogWithMask::startsBeforeItIsShown()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    bool checked = false;
    window.atStartup = [&] {
        QVERIFY(!window.isVisible());
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.windowFlags(),
                 Qt::WindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint));
        // Where the focus will be once it is shown.
        QCOMPARE(window.focusWidget(), window.content());
        QCOMPARE(withText("focus object name").size(), 1);
        QVERIFY(!window.getFinished());
        checked = true;
    };
    QCOMPARE(window.run([&] { QVERIFY(window.isVisible()); }), int(QDialog::Rejected));
    QVERIFY(checked);
    QCOMPARE(window.startups, 1);
}

void TestWindowModalDialogWithMask::runsOnTopOfItsHost()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    bool checked = false;
    window.run([&] {
        QVERIFY(window.isModal());
        QVERIFY(window.isActiveWindow());
        QVERIFY(window.content()->hasFocus());
        QVERIFY(!host.field->hasFocus());
        QCOMPARE(QApplication::activeModalWidget(), &window);
        checked = true;
    });
    QVERIFY(checked);
}

void TestWindowModalDialogWithMask::keepsOtherWindowFlags()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    const Qt::WindowFlags before = window.windowFlags() | Qt::NoDropShadowWindowHint;
    window.setWindowFlags(before);
    window.run([&] { QCOMPARE(window.windowFlags(), before | Qt::WindowStaysOnTopHint); });
    QCOMPARE(window.startups, 1);
}

void TestWindowModalDialogWithMask::focusObjectIsLogged()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    window.run([] {});
    QCOMPARE(withText("focus object name"),
             QStringList{QStringLiteral("warning: WindowModalDialogWithMask::exec focus object "
                                        "name = \"host field\"")});
}

void TestWindowModalDialogWithMask::noFocusObjectIsNotLogged()
{
    const LogCapture log;
    QVERIFY(QGuiApplication::focusObject() == nullptr);
    PluginWindow window(nullptr);
    window.run([] {});
    QCOMPARE(window.startups, 1);
    QVERIFY(withText("focus object name").isEmpty());
}

void TestWindowModalDialogWithMask::startsAnewForEachRun()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    for (int run = 1; run <= 3; ++run) {
        window.run([&] { QCOMPARE(window.startups, run); });
        QVERIFY(!window.isVisible());
    }
    QCOMPARE(window.startups, 3);
}

void TestWindowModalDialogWithMask::returnsItsResult_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("rejected") << 0;
    QTest::newRow("accepted") << 1;
    QTest::newRow("another") << 7;
    QTest::newRow("negative") << -3;
}

void TestWindowModalDialogWithMask::returnsItsResult()
{
    QFETCH(int, result);

    const LogCapture log;
    PluginWindow window(nullptr);
    QCOMPARE(window.run([&] {
        QVERIFY(!window.getFinished());
        window.done(result);
        QVERIFY(window.getFinished());
    }),
             result);
    QCOMPARE(
        withText("setFinished"),
        QStringList{
            QStringLiteral("info: WindowModalDialogWithMask::setFinished result=%1").arg(result)});
}

void TestWindowModalDialogWithMask::givesTheFocusBack()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    window.run([&] {
        // The host has moved its own focus meanwhile.
        host.other->setFocus();
        QCOMPARE(host.focusWidget(), host.other);
        FrontPanel::press(QT_KEY_HOME);
    });
    QCOMPARE(host.focusWidget(), host.field);
    host.activateWindow();
    QTRY_VERIFY(host.field->hasFocus());
}

void TestWindowModalDialogWithMask::givesTheFocusOfTheLatestRunBack()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    window.run([] {});
    host.activateWindow();
    host.other->setFocus();
    QTRY_VERIFY(host.other->hasFocus());
    window.run([&] { host.field->setFocus(); });
    QCOMPARE(host.focusWidget(), host.other);
}

void TestWindowModalDialogWithMask::leavesTheFocusWhenItsOwnerIsHidden_data()
{
    QTest::addColumn<bool>("wholePage");
    QTest::newRow("itself") << false;
    QTest::newRow("with its page") << true;
}

void TestWindowModalDialogWithMask::leavesTheFocusWhenItsOwnerIsHidden()
{
    QFETCH(bool, wholePage);

    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    QWidget* hidden = wholePage ? host.page : host.field;
    window.run([&] {
        hidden->hide();
        host.other->setFocus();
    });
    QCOMPARE(host.focusWidget(), host.other);
    hidden->show();
    QCOMPARE(host.focusWidget(), host.other);
}

void TestWindowModalDialogWithMask::leavesTheFocusWhenItsOwnerIsDeleted()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    window.run([&] {
        delete host.field;
        host.other->setFocus();
        FrontPanel::press(QT_KEY_HOME);
        QVERIFY(!window.isVisible());
    });
    QCOMPARE(host.focusWidget(), host.other);
}

void TestWindowModalDialogWithMask::leavesTheFocusWithoutARun()
{
    const LogCapture log;
    HostWindow host;
    QVERIFY(host.start());
    PluginWindow window(&host);
    window.show();
    host.other->setFocus();
    window.hide();
    QCOMPARE(host.focusWidget(), host.other);
    QVERIFY(!window.getFinished());
}

void TestWindowModalDialogWithMask::closeFinishes()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    QSignalSpy finished(&window, &QDialog::finished);
    QCOMPARE(window.run([&] {
        QVERIFY(window.close());
        QVERIFY(window.getFinished());
        QVERIFY(!window.isVisible());
    }),
             int(QDialog::Rejected));
    QCOMPARE(finished.count(), 1);
}

void TestWindowModalDialogWithMask::closeOfAHiddenOneFinishes()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    QSignalSpy finished(&window, &QDialog::finished);
    QCloseEvent event;
    QCoreApplication::sendEvent(&window, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(window.getFinished());
    QCOMPARE(finished.count(), 0);
}

void TestWindowModalDialogWithMask::staysFinished()
{
    const LogCapture log;
    PluginWindow window(nullptr);
    window.run([&] { QVERIFY(!window.getFinished()); });
    QVERIFY(window.getFinished());
    window.run([&] { QVERIFY(window.getFinished()); });
    QVERIFY(window.getFinished());
    window.show();
    QVERIFY(window.getFinished());
}

QTEST_MAIN(TestWindowModalDialogWithMask)

#include "test_windowmodaldialogwithmask.moc"
