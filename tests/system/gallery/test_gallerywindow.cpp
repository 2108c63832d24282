// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "desktopkeys.h"
#include "frontpanelkeys.h"
#include "gallerywindow.h"
#include "languages.h"
#include "logcapture.h"
#include "parameteredit.h"
#include "parameterform.h"
#include "realcombcomponent.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QWheelEvent>

#include <memory>

using namespace appPlugins;

/// The gallery as a user at a desktop meets it: ordinary keys, wheel and mouse.
class TestGalleryWindow : public QObject
{
    Q_OBJECT

private:
    void press(int key)
    {
        QTest::keyClick(m_window->windowHandle(), static_cast<Qt::Key>(key));
        QCoreApplication::processEvents();
    }

    void type(const char* characters)
    {
        for (; *characters != '\0'; ++characters)
            QTest::keyClick(m_window->windowHandle(), *characters);
        QCoreApplication::processEvents();
    }

    void turnWheel(int angle)
    {
        QWidget* focus = QApplication::focusWidget();
        const QPointF middle = focus->rect().center();
        QWheelEvent event(middle, focus->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(focus, &event);
        QCoreApplication::processEvents();
    }

    RealCombComponent* highLevel() const { return m_window->form()->numbers().at(1); }

    void touch(QWidget* widget)
    {
        const QPoint middle = widget->mapTo(m_window.get(), widget->rect().center());
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
        QCoreApplication::processEvents();
    }

    QString textOf(RealCombComponent* component) const { return component->getStringValue(); }

    int page() const { return m_window->findChild<QStackedWidget*>()->currentIndex(); }

    QPushButton* button(const QString& text) const
    {
        const QList<QPushButton*> buttons = m_window->findChildren<QPushButton*>();
        for (QPushButton* found : buttons) {
            if (found->text() == text && found->isVisible())
                return found;
        }
        return nullptr;
    }

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<GalleryWindow> m_window;
    std::unique_ptr<DesktopKeys> m_keys;

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<LogCapture>();
        m_languages = std::make_unique<Languages>();
        m_languages->install(QStringLiteral("en"));
        m_window = std::make_unique<GalleryWindow>(*m_languages);
        m_keys = std::make_unique<DesktopKeys>(nullptr);
        m_window->connectKeys(*m_keys);
        QVERIFY(m_window->showPage(QStringLiteral("components")));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QCoreApplication::processEvents();
    }

    void cleanup()
    {
        m_keys.reset();
        m_window.reset();
        m_languages.reset();
        m_log.reset();
    }

    void lettersAreUnitKeysWhileANumberIsEdited()
    {
        touch(highLevel());
        press(Qt::Key_5);
        press(Qt::Key_K);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("5.0m"));
        QCOMPARE(highLevel()->get(), 0.005);
    }

    void xIsTheBaseUnit()
    {
        touch(highLevel());
        press(Qt::Key_5);
        press(Qt::Key_X);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("5.0000"));
    }

    void escapeCancelsAndLeavesTheWindowOpen()
    {
        touch(highLevel());
        press(Qt::Key_5);
        press(Qt::Key_Escape);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("2.5000"));
        press(Qt::Key_Escape);
        QVERIFY(m_window->isVisible());
    }

    void wheelIsTheKnob()
    {
        touch(highLevel());
        turnWheel(120);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("3.5000"));
        turnWheel(-240);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("1.5000"));
    }

    void halfDetentsOfAFineWheelAdd()
    {
        touch(highLevel());
        turnWheel(60);
        turnWheel(60);
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("3.5000"));
    }

    void lettersAreTextInAText()
    {
        auto* line = m_window->form()->findChild<QLineEdit*>();
        touch(line);
        line->clear();
        type("gmkx");
        QCOMPARE(line->text(), QStringLiteral("gmkx"));
    }

    void frontPanelKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("edited");
        QTest::addColumn<int>("code");
        QTest::newRow("G") << int(Qt::Key_G) << true << int(QT_KEY_GN);
        QTest::newRow("M") << int(Qt::Key_M) << true << int(QT_KEY_MU);
        QTest::newRow("K") << int(Qt::Key_K) << true << int(QT_KEY_KM);
        QTest::newRow("X") << int(Qt::Key_X) << true << int(QT_KEY_X1);
        QTest::newRow("space") << int(Qt::Key_Space) << true << int(QT_KEY_KNOB);
        QTest::newRow("escape") << int(Qt::Key_Escape) << false << int(Qt::Key_Cancel);
        QTest::newRow("G elsewhere") << int(Qt::Key_G) << false << 0;
        QTest::newRow("space elsewhere") << int(Qt::Key_Space) << false << 0;
        QTest::newRow("digit") << int(Qt::Key_5) << true << 0;
    }

    void frontPanelKey()
    {
        QFETCH(int, key);
        QFETCH(bool, edited);
        QTEST(DesktopKeys::frontPanelKey(key, edited), "code");
    }

    void pageKeysTurnThePagesRound()
    {
        QCOMPARE(page(), 3);
        press(Qt::Key_PageDown);
        QCOMPARE(page(), 4);
        press(Qt::Key_PageDown);
        QCOMPARE(page(), 5);
        press(Qt::Key_PageDown);
        QCOMPARE(page(), 0);
        press(Qt::Key_PageUp);
        QCOMPARE(page(), 5);
    }

    void tabsTurnThePagesByTouch()
    {
        touch(button(QStringLiteral("Numeric editor")));
        QCOMPARE(page(), 1);
        touch(button(QStringLiteral("Tables")));
        QCOMPARE(page(), 5);
    }

    void unknownPageIsNotShown()
    {
        QVERIFY(!m_window->showPage(QStringLiteral("nowhere")));
        QCOMPARE(page(), 3);
    }

    void f2ChangesTheLanguageOfAllTexts()
    {
        const auto shows = [this](const QString& text) {
            const QList<QLabel*> labels = m_window->form()->findChildren<QLabel*>();
            return std::any_of(labels.begin(), labels.end(),
                               [&](QLabel* label) { return label->text() == text; });
        };
        QVERIFY(shows(QStringLiteral("High Level")));
        press(Qt::Key_F2);
        QTRY_VERIFY(shows(QStringLiteral("High-Pegel")));
        QVERIFY(button(QStringLiteral("Tabellen")) != nullptr);
        touch(button(QStringLiteral("Deutsch")));
        QTRY_VERIFY(shows(QStringLiteral("高电平")));
        touch(button(QStringLiteral("中文")));
        QTRY_VERIFY(shows(QStringLiteral("ハイレベル")));
        press(Qt::Key_F2);
        QTRY_VERIFY(shows(QStringLiteral("High Level")));
    }

    void tabKeyWalksThroughTheInputsAndBack()
    {
        m_window->setFocus();
        press(Qt::Key_Tab);
        QVERIFY(m_window->form()->components().at(0)->hasFocus());
        press(Qt::Key_Tab);
        QVERIFY(highLevel()->hasFocus());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
        QVERIFY(m_window->form()->components().at(0)->hasFocus());
    }

    void aValueOutOfRangeIsToldInTheMessageLine()
    {
        touch(highLevel());
        type("12x");
        QTRY_COMPARE(textOf(highLevel()), QStringLiteral("10.0000"));
        const QList<QLabel*> labels = m_window->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](QLabel* label) {
            return label->text().startsWith(QStringLiteral("Value out of range (12)"));
        }));
    }
};

QTEST_MAIN(TestGalleryWindow)
#include "test_gallerywindow.moc"
