// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "fakebench.h"
#include "frontface.h"
#include "panellanguages.h"
#include "panelwindow.h"
#include "screenview.h"

#include <QApplication>
#include <QSignalSpy>
#include <QtTest>

/// Run once for each scale that a desktop may have, which comes in the environment.
class TestScaling : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { dropPlatformWarnings(); }
    void sharpAndInPlace();
};

void TestScaling::sharpAndInPlace()
{
    const double asked = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    PanelLanguages languages(PanelLanguages::defaultFolder(QString()));
    QVERIFY(languages.install(QStringLiteral("en")));
    FakeBench bench;
    PanelWindow window(bench.options(), languages, nullptr);
    QSignalSpy shown(&window, &PanelWindow::screenShown);
    window.resize(1408, 900);
    window.start();
    window.show();
    QTRY_COMPARE(shown.size(), 1);
    // The platform's own screen adds a little.
    const double scale = window.devicePixelRatioF();
    QVERIFY(qAbs(scale / asked - 1) < 0.1);

    ScreenView* const view = window.face()->screenView();
    const QPixmap picture = view->grab();
    QCOMPARE(picture.devicePixelRatioF(), scale);
    QVERIFY(qAbs(picture.width() - view->width() * scale) <= 1);
    const QRectF area = view->pictureArea();
    for (const double edge : {area.left() * scale, area.top() * scale, area.width() * scale})
        QVERIFY(qAbs(edge - qRound(edge)) < 1e-3);

    // The middle of the screen is the middle of the instrument's, whatever the scale.
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, area.center().toPoint());
    QTRY_COMPARE(bench.screen.events().size(), 2);
    const QStringList parts = bench.screen.events().first().split(QLatin1Char(' '));
    QVERIFY(qAbs(parts.at(1).toInt() - 400) <= 2);
    QVERIFY(qAbs(parts.at(2).toInt() - 240) <= 2);
}

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    TestScaling test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_scaling.moc"
