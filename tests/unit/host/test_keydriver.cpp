// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keydriver.h"
#include "keyrecorder.h"
#include "screenstart.h"

#include "frontpanelkeys.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

class TestKeyDriver : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void init()
    {
        m_bDiscards = false;
        m_driver = std::make_unique<KeyDriver>([this] { return m_bDiscards; });
        m_window = std::make_unique<KeyRecorder>();
        m_window->resize(200, 100);
        m_window->show();
        m_window->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void goesThroughTheEventQueue()
    {
        m_driver->press(QT_KEY_KM, 1);
        m_driver->release(QT_KEY_KM);
        QVERIFY(m_window->keys.isEmpty());
        expect({"+713", "-713"});
    }

    void hasTextWhereItIsPrinted()
    {
        for (int key : {int(Qt::Key_7), int(Qt::Key_Period), int(Qt::Key_Minus)}) {
            m_driver->press(key, 1);
            m_driver->release(key);
        }
        expect({"+55 7", "-55 7", "+46 .", "-46 .", "+45 -", "-45 -"});
    }

    void doesNotRepeat()
    {
        m_driver->press(QT_KEY_MU, 1);
        m_driver->press(QT_KEY_MU, 1);
        m_driver->press(QT_KEY_MU, 2);
        m_driver->release(QT_KEY_MU);
        m_driver->release(QT_KEY_MU);
        expect({"+709", "-709"});
    }

    void dropsAReleaseWithoutAPress()
    {
        m_driver->release(QT_KEY_GN);
        expect({});
    }

    void turnsTheKnob()
    {
        m_driver->turn(2);
        m_driver->turn(-1);
        const QString up = QString::number(Qt::Key_Up);
        const QString down = QString::number(Qt::Key_Down);
        QCoreApplication::processEvents();
        QCOMPARE(m_window->keys, QStringList({QLatin1Char('+') + up, QLatin1Char('-') + up,
                                              QLatin1Char('+') + up, QLatin1Char('-') + up,
                                              QLatin1Char('+') + down, QLatin1Char('-') + down}));
    }

    void releasesWhatAClientLeaves()
    {
        m_driver->press(QT_KEY_GN, 1);
        m_driver->press(QT_KEY_MU, 2);
        m_driver->releaseAll(1);
        expect({"+705", "+709", "-705"});
        m_driver->press(QT_KEY_GN, 2);
        expect({"+705"});
    }

    void discardsKeysWhileItIsTold()
    {
        m_driver->press(QT_KEY_GN, 1);
        m_bDiscards = true;
        m_driver->release(QT_KEY_GN);
        m_driver->press(QT_KEY_MU, 1);
        m_driver->turn(3);
        m_bDiscards = false;
        m_driver->release(QT_KEY_MU);
        expect({"+705"});
        // Both are up by now.
        m_driver->press(QT_KEY_GN, 1);
        m_driver->press(QT_KEY_MU, 1);
        expect({"+705", "+709"});
    }

    void goesToWhatHasTheFocusByThen()
    {
        KeyRecorder second(m_window.get());
        second.show();
        m_driver->press(QT_KEY_GN, 1);
        second.setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(second.keys, QStringList(QStringLiteral("+705")));
        QVERIFY(m_window->keys.isEmpty());
    }

    void goesToAnOpenList()
    {
        QComboBox choice(m_window.get());
        choice.addItems({QStringLiteral("one"), QStringLiteral("two")});
        choice.show();
        choice.showPopup();
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        for (int key : {int(Qt::Key_Down), int(Qt::Key_Return)}) {
            m_driver->press(key, 1);
            m_driver->release(key);
        }
        QTRY_COMPARE(choice.currentIndex(), 1);
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void tellsWhatNobodyTakes()
    {
        QSignalSpy unused(m_driver.get(), &KeyDriver::unused);
        m_driver->press(QT_KEY_UTLITY, 1);
        m_driver->release(QT_KEY_UTLITY);
        QCoreApplication::processEvents();
        QCOMPARE(unused.size(), 0);
        m_window->takes = false;
        m_driver->press(QT_KEY_UTLITY, 1);
        QCoreApplication::processEvents();
        QCOMPARE(unused.size(), 0);
        m_driver->release(QT_KEY_UTLITY);
        QTRY_COMPARE(unused.size(), 1);
        QCOMPARE(unused.first().first().toInt(), int(QT_KEY_UTLITY));
    }

private:
    void expect(const QStringList& keys)
    {
        QCoreApplication::processEvents();
        QCOMPARE(m_window->keys, keys);
        m_window->keys.clear();
    }
    void expect(std::initializer_list<const char*> keys)
    {
        QStringList list;
        for (const char* key : keys)
            list.append(QLatin1String(key));
        expect(list);
    }

    bool m_bDiscards = false;
    std::unique_ptr<KeyDriver> m_driver;
    std::unique_ptr<KeyRecorder> m_window;
};

QTEST_MAIN(TestKeyDriver)
#include "test_keydriver.moc"
