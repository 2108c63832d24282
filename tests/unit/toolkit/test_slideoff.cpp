// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "slideoff.h"

#include <QPushButton>
#include <QtTest>

class TestSlideOff : public QObject
{
    Q_OBJECT

private slots:
    void swallows_data();
    void swallows();
    void otherEventsPass();
};

void TestSlideOff::swallows_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<bool>("held");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("swallowed");
    QTest::addColumn<bool>("down");

    const int release = QEvent::MouseButtonRelease;
    const int move = QEvent::MouseMove;
    const QPointF inside(20, 10);
    const QPointF outside(20, 30);
    QTest::newRow("lifted inside") << release << inside << false << true << false << true;
    QTest::newRow("lifted outside") << release << outside << false << true << true << false;
    QTest::newRow("lifted while disabled") << release << inside << false << false << true << false;
    QTest::newRow("a part of a pixel inside")
        << release << QPointF(39.4, 19.4) << false << true << false << true;
    QTest::newRow("rounds to outside")
        << release << QPointF(39.6, 10) << false << true << true << false;
    QTest::newRow("moved inside") << move << inside << true << true << true << true;
    QTest::newRow("moved off") << move << outside << true << true << true << false;
    QTest::newRow("moved without a finger") << move << outside << false << true << false << true;
    QTest::newRow("pressed") << int(QEvent::MouseButtonPress) << outside << true << true << false
                             << true;
}

void TestSlideOff::swallows()
{
    QFETCH(int, type);
    QFETCH(QPointF, point);
    QFETCH(bool, held);
    QFETCH(bool, enabled);

    QPushButton button;
    button.resize(40, 20);
    button.setDown(true);
    QMouseEvent event(static_cast<QEvent::Type>(type), point, Qt::LeftButton,
                      held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QTEST(appPlugins::slidesOff(&button, button.rect(), enabled, &event), "swallowed");
    QTEST(button.isDown(), "down");
}

void TestSlideOff::otherEventsPass()
{
    QPushButton button;
    QEvent event(QEvent::Leave);
    QVERIFY(!appPlugins::slidesOff(&button, button.rect(), true, &event));
}

QTEST_MAIN(TestSlideOff)
#include "test_slideoff.moc"
