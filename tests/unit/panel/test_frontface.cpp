// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontface.h"

#include "facelayout.h"
#include "fakebench.h"
#include "keybutton.h"
#include "keypadclient.h"
#include "keyrelay.h"
#include "mousemove.h"
#include "panellanguages.h"
#include "paneltexts.h"
#include "rfbscreen.h"
#include "screenview.h"

#include <QAccessible>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>

class TestFrontFace : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyKey_data();
    void everyKey();
    void keyHeldOutside();
    void otherMouseButtons();
    void twoHands();
    void knobPressed();
    void knobByWheel();
    void knobByFineWheel();
    void knobByDrag_data();
    void knobByDrag();
    void lamp();
    void helpInFourLanguages();
    void accessible();
    void nothingOverlaps();
    void scales_data();
    void scales();
    void keysWithoutHost();

private:
    void turnWheel(QWidget* over, int angle);
    void expect(const QByteArray& lines);

    PanelLanguages m_languages{PanelLanguages::defaultFolder(QString())};
    std::unique_ptr<FakeBench> m_bench;
    std::unique_ptr<RfbScreen> m_screen;
    std::unique_ptr<KeypadClient> m_client;
    std::unique_ptr<KeyRelay> m_relay;
    std::unique_ptr<FrontFace> m_face;
};

void TestFrontFace::init()
{
    m_languages.install(QStringLiteral("en"));
    m_bench = std::make_unique<FakeBench>();
    const PanelOptions options = m_bench->options();
    m_screen = std::make_unique<RfbScreen>(options.screenPort);
    m_client = std::make_unique<KeypadClient>(options.keypadPath);
    m_relay = std::make_unique<KeyRelay>(*m_client);
    m_face = std::make_unique<FrontFace>(*m_screen, *m_relay);
    m_face->resize(m_face->sizeHint());
    m_face->show();
    m_client->start();
    QTRY_VERIFY(m_client->isConnected());
}

void TestFrontFace::cleanup()
{
    m_face.reset();
    m_relay.reset();
    m_client.reset();
    m_screen.reset();
    m_bench.reset();
}

void TestFrontFace::expect(const QByteArray& lines)
{
    QTRY_VERIFY(m_bench->keypad.received().size() >= lines.size());
    QCOMPARE(m_bench->keypad.takeReceived(), lines);
}

void TestFrontFace::everyKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("code");
    for (const FrontKey& key : frontKeys()) {
        if (key.name != QLatin1String("knob"))
            QTest::newRow(qPrintable(key.name)) << key.name << QByteArray::number(key.code);
    }
}

void TestFrontFace::everyKey()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, code);
    KeyButton* const key = m_face->key(name);
    QVERIFY(key != nullptr);
    const QImage before = key->grab().toImage();
    QTest::mousePress(key, Qt::LeftButton);
    expect("press " + code + '\n');
    QVERIFY(key->grab().toImage() != before);
    QTest::mouseRelease(key, Qt::LeftButton);
    expect("release " + code + '\n');
    QTest::mouseClick(key, Qt::LeftButton);
    expect("press " + code + "\nrelease " + code + '\n');
}

void TestFrontFace::keyHeldOutside()
{
    KeyButton* const key = m_face->key(QStringLiteral("7"));
    QTest::mousePress(key, Qt::LeftButton);
    moveMouse(key, QPoint(500, 500));
    moveMouse(key, QPoint(5, 5));
    QTest::mouseRelease(key, Qt::LeftButton, Qt::NoModifier, QPoint(-300, 10));
    expect("press 55\nrelease 55\n");
}

void TestFrontFace::otherMouseButtons()
{
    QTest::mouseClick(m_face->key(QStringLiteral("7")), Qt::RightButton);
    QTest::mouseClick(m_face->knob(), Qt::RightButton);
    QTest::mouseClick(m_face->key(QStringLiteral("8")), Qt::LeftButton);
    expect("press 56\nrelease 56\n");
}

void TestFrontFace::twoHands()
{
    KeyButton* const key = m_face->key(QStringLiteral("gn"));
    m_relay->press(705, KeyRelay::Keyboard);
    m_relay->press(705, KeyRelay::Keyboard);
    QTest::mousePress(key, Qt::LeftButton);
    m_relay->release(705, KeyRelay::Keyboard);
    m_relay->release(705, KeyRelay::Keyboard);
    QVERIFY(m_relay->isDown(705));
    expect("press 705\n");
    QTest::mouseRelease(key, Qt::LeftButton);
    expect("release 705\n");
    QVERIFY(!m_relay->isDown(705));
}

void TestFrontFace::knobPressed()
{
    QTest::mousePress(m_face->knob(), Qt::LeftButton, Qt::NoModifier,
                      m_face->knob()->rect().center());
    expect("press 732\n");
    QTest::mouseRelease(m_face->knob(), Qt::LeftButton, Qt::NoModifier, QPoint(0, 0));
    expect("release 732\n");
}

void TestFrontFace::turnWheel(QWidget* over, int angle)
{
    const QPointF place = over->mapTo(m_face.get(), over->rect().center());
    QWheelEvent event(place, m_face->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, angle),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // As from the system: only that is passed on to parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(m_face->windowHandle(), &event);
}

// Anywhere on the front.
void TestFrontFace::knobByWheel()
{
    turnWheel(m_face->knob(), 120);
    expect("turn 1\n");
    QCOMPARE(m_face->knob()->position(), 1);
    turnWheel(m_face->key(QStringLiteral("home")), -240);
    expect("turn -2\n");
    turnWheel(m_face->screenView(), -120);
    expect("turn -1\n");
    QCOMPARE(m_face->knob()->position(), -2);
}

void TestFrontFace::knobByFineWheel()
{
    for (int i = 0; i < 9; ++i)
        turnWheel(m_face->knob(), 30);
    expect("turn 1\nturn 1\n");
    // What is left counts, but not the other way.
    turnWheel(m_face->knob(), -90);
    turnWheel(m_face->knob(), -30);
    expect("turn -1\n");
}

void TestFrontFace::knobByDrag_data()
{
    QTest::addColumn<int>("degrees");
    QTest::newRow("a quarter clockwise") << 90;
    QTest::newRow("a quarter back") << -90;
    QTest::newRow("two turns") << 720;
}

void TestFrontFace::knobByDrag()
{
    QFETCH(int, degrees);
    Knob* const knob = m_face->knob();
    const QPointF centre = QRectF(knob->rect()).center();
    const double radius = knob->width() * 0.4;
    const auto place = [&](double angle) {
        const double radians = (angle + 7) * M_PI / 180;
        return (centre + QPointF(std::sin(radians), -std::cos(radians)) * radius).toPoint();
    };
    QTest::mousePress(knob, Qt::LeftButton, Qt::NoModifier, place(0));
    const int step = degrees > 0 ? 3 : -3;
    for (int angle = 0; angle != degrees; angle += step)
        moveMouse(knob, place(angle + step));
    // The last detent lies on the edge of a pixel.
    moveMouse(knob, place(degrees + step));
    QTest::mouseRelease(knob, Qt::LeftButton, Qt::NoModifier, place(degrees + step));
    QCOMPARE(knob->position(), degrees / Knob::StepDegrees);
    QByteArray lines;
    for (int i = 0; i < qAbs(degrees) / Knob::StepDegrees; ++i)
        lines += degrees > 0 ? "turn 1\n" : "turn -1\n";
    expect(lines);
}

void TestFrontFace::lamp()
{
    KeyButton* const key = m_face->key(QStringLiteral("channel1"));
    const QImage dark = key->grab().toImage();
    m_face->setOutputOn(true);
    QVERIFY(key->isLit());
    QVERIFY(key->grab().toImage() != dark);
    QCOMPARE(key->accessibleDescription(), QStringLiteral("The output is on"));
    m_face->setOutputOn(false);
    QCOMPARE(key->grab().toImage(), dark);
    QCOMPARE(key->accessibleDescription(), QStringLiteral("The output is off"));
}

void TestFrontFace::helpInFourLanguages()
{
    for (const QString& language : PanelLanguages::all()) {
        QVERIFY(m_languages.install(language));
        const QString meaning = qtTrId("PANELID_KEY_GN");
        QTRY_VERIFY(m_face->key(QStringLiteral("gn"))->toolTip().contains(meaning));
        for (const FrontKey& key : frontKeys()) {
            const QWidget* widget = key.name == QLatin1String("knob")
                                        ? static_cast<QWidget*>(m_face->knob())
                                        : m_face->key(key.name);
            QCOMPARE(widget->toolTip(), PanelTexts::keyHelp(key));
            QVERIFY(widget->toolTip().contains(PanelTexts::keyEquivalent(key)));
            QCOMPARE(widget->accessibleName(), PanelTexts::keyMeaning(key));
        }
    }
    m_languages.install(QStringLiteral("en"));
    QTRY_COMPARE(m_face->key(QStringLiteral("gn"))->toolTip(),
                 QStringLiteral("Giga or nano – keyboard: G or N"));
}

void TestFrontFace::accessible()
{
    QAccessibleInterface* const key =
        QAccessible::queryAccessibleInterface(m_face->key(QStringLiteral("enter")));
    QVERIFY(key != nullptr);
    QCOMPARE(key->text(QAccessible::Name), QStringLiteral("Confirm"));
    QCOMPARE(key->role(), QAccessible::Button);
    key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    expect("press 16777220\nrelease 16777220\n");
}

void TestFrontFace::nothingOverlaps()
{
    const QRectF plate(0, 0, FaceLayout::Width, FaceLayout::Height);
    QVector<QRectF> places = {FaceLayout::glass(), FaceLayout::knob(), FaceLayout::connector(1),
                              FaceLayout::connector(2), FaceLayout::triggerInput()};
    for (const FrontKey& key : frontKeys()) {
        if (key.name != QLatin1String("knob"))
            places.append(FaceLayout::key(key.name));
    }
    for (int i = 0; i < places.size(); ++i) {
        QVERIFY(plate.contains(places.at(i)));
        for (int k = i + 1; k < places.size(); ++k)
            QVERIFY2(!places.at(i).intersects(places.at(k)),
                     qPrintable(QStringLiteral("%1 and %2").arg(i).arg(k)));
    }
    QVERIFY(FaceLayout::glass().contains(FaceLayout::screen()));
}

void TestFrontFace::scales_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("half") << QSize(700, 286);
    QTest::newRow("natural") << QSize(1400, 572);
    QTest::newRow("double") << QSize(2800, 1144);
    QTest::newRow("wide") << QSize(2000, 572);
    QTest::newRow("high") << QSize(1400, 900);
}

void TestFrontFace::scales()
{
    QFETCH(QSize, size);
    m_face->resize(size);
    const QRect screen = m_face->screenView()->geometry();
    const double scale = qMin(size.width() / 1400.0, size.height() / 572.0);
    QVERIFY(qAbs(screen.width() - 800 * scale) <= 1);
    QVERIFY(qAbs(screen.height() - 480 * scale) <= 1);
    for (const FrontKey& key : frontKeys()) {
        if (key.name != QLatin1String("knob"))
            QVERIFY(m_face->rect().contains(m_face->key(key.name)->geometry()));
    }
}

void TestFrontFace::keysWithoutHost()
{
    m_client->stop();
    KeyButton* const key = m_face->key(QStringLiteral("7"));
    QTest::mousePress(key, Qt::LeftButton);
    QVERIFY(m_relay->isDown(Qt::Key_7));
    QTest::mouseRelease(key, Qt::LeftButton);
    QVERIFY(!m_relay->isDown(Qt::Key_7));
    turnWheel(m_face->knob(), 120);
    QCOMPARE(m_bench->keypad.received(), QByteArray());
}

QTEST_MAIN(TestFrontFace)
#include "test_frontface.moc"
