// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostscreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QtTest>

#include <memory>

using namespace HostDialogs;

namespace {

void paint(QWidget& widget, const QColor& colour)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colour);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

} // namespace

class TestHostScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheSurface();
    void isTheFirstScreenWithoutOne();
    void seesWindowsAboveTheSurface();
};

void TestHostScreen::isTheSurface()
{
    QWidget surface(nullptr, Qt::FramelessWindowHint);
    surface.setGeometry(30, 40, 400, 300);
    surface.show();
    setScreenSurface(&surface);
    QCOMPARE(screenPlace(), QRect(30, 40, 400, 300));
    surface.move(10, 10);
    QCOMPARE(screenPlace(), QRect(10, 10, 400, 300));
}

void TestHostScreen::isTheFirstScreenWithoutOne()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    auto surface = std::make_unique<QWidget>();
    setScreenSurface(surface.get());
    surface.reset();
    QCOMPARE(screenPlace(), screen);
    setScreenSurface(nullptr);
    QCOMPARE(screenPlace(), screen);
    QCOMPARE(pictureBelow(nullptr).size(), screen.size());
}

void TestHostScreen::seesWindowsAboveTheSurface()
{
    QWidget surface(nullptr, Qt::FramelessWindowHint);
    surface.setGeometry(20, 20, 400, 300);
    paint(surface, Qt::red);
    surface.show();
    setScreenSurface(&surface);
    QWidget window(&surface, Qt::Dialog | Qt::FramelessWindowHint);
    window.setGeometry(120, 120, 100, 100);
    paint(window, Qt::green);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QImage both = pictureBelow(&window).toImage();
    QCOMPARE(both.size(), QSize(400, 300));
    QCOMPARE(both.pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(both.pixelColor(150, 150), QColor(Qt::green));
    QCOMPARE(pictureBelow(nullptr).toImage().pixelColor(150, 150), QColor(Qt::red));
}

QTEST_MAIN(TestHostScreen)

#include "test_hostscreen.moc"
