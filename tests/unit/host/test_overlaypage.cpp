// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanel.h"
#include "helppage.h"
#include "hosttext.h"
#include "languages.h"
#include "screendescription.h"
#include "screenstart.h"
#include "settingspage.h"
#include "testtranslator.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

bool isSeen(const QString& text)
{
    for (const Keypad::ScreenItem& item : visibleTexts()) {
        if (item.text == text)
            return true;
    }
    return false;
}

} // namespace

class TestOverlayPage : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void init()
    {
        m_surface = std::make_unique<QWidget>();
        m_surface->setGeometry(0, 0, 800, 480);
        m_surface->show();
        QVERIFY(QTest::qWaitForWindowActive(m_surface.get()));
        m_help = std::make_unique<HelpPage>(m_surface.get());
        m_settings = std::make_unique<SettingsPage>(m_surface.get());
    }

    void cleanup()
    {
        m_settings.reset();
        m_help.reset();
        m_surface.reset();
    }

    void coversTheScreen()
    {
        open(*m_help);
        QCOMPARE(m_help->geometry(), QRect(0, 0, 800, 480));
        QVERIFY(isSeen(QLatin1String(HostText::Help)));
        QVERIFY(isSeen(QLatin1String(HostText::KeyUtility)));
    }

    void closes_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("closes");
        QTest::newRow("Back") << int(QT_KEY_BACK) << true;
        QTest::newRow("Home") << int(QT_KEY_HOME) << true;
        QTest::newRow("Cancel") << int(Qt::Key_Cancel) << true;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << true;
        QTest::newRow("its own") << int(QT_KEY_HELP) << true;
        QTest::newRow("Enter on the close button") << int(Qt::Key_Return) << true;
        QTest::newRow("another's") << int(QT_KEY_UTLITY) << false;
        QTest::newRow("digit") << int(Qt::Key_1) << false;
    }

    void closes()
    {
        QFETCH(int, key);
        QFETCH(bool, closes);
        open(*m_help);
        FrontPanel::press(key);
        QCOMPARE(m_help->isVisible(), !closes);
    }

    // It comes up while the key that opens it is still down.
    void theKeyThatOpenedItDoesNotCloseIt()
    {
        open(*m_help);
        FrontPanel::post(QEvent::KeyRelease, QT_KEY_HELP);
        FrontPanel::settle();
        QVERIFY(m_help->isVisible());
    }

    void closesByFinger()
    {
        open(*m_help);
        auto* button = m_help->findChild<QPushButton*>(QStringLiteral("close"));
        QVERIFY(button->height() >= 40);
        FrontPanel::tap(button);
        QVERIFY(!m_help->isVisible());
    }

    void choosesALanguageByKnob()
    {
        QSignalSpy chosen(m_settings.get(), &SettingsPage::languageChosen);
        m_settings->setLanguage(QStringLiteral("en"));
        open(*m_settings);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("en"));
        FrontPanel::knob(1);
        FrontPanel::press(QT_KEY_KNOB);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), QStringLiteral("de"));
        QVERIFY(button(QStringLiteral("de"))->isChecked());
        QVERIFY(!button(QStringLiteral("en"))->isChecked());
        QVERIFY(m_settings->isVisible());
    }

    void choosesEveryLanguageByFinger()
    {
        QSignalSpy chosen(m_settings.get(), &SettingsPage::languageChosen);
        open(*m_settings);
        for (const QString& language : Languages::all()) {
            FrontPanel::tap(button(language));
            QCOMPARE(chosen.last().first().toString(), language);
        }
        // The one that is chosen already stays it.
        FrontPanel::tap(button(QStringLiteral("ja")));
        QVERIFY(button(QStringLiteral("ja"))->isChecked());
    }

    void opensOnTheCurrentLanguage()
    {
        m_settings->setLanguage(QStringLiteral("ja"));
        open(*m_settings);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("ja"));
    }

    void tellsFactsInTheLanguage()
    {
        m_settings->setFacts({{HostText::UserFolder, QStringLiteral("/mnt/user-data")}});
        open(*m_settings);
        QVERIFY(isSeen(QStringLiteral("/mnt/user-data")));
        TestTranslator translator(QStringLiteral("x"));
        FrontPanel::settle();
        QVERIFY(isSeen(QStringLiteral("xHOSTID_USER_FOLDER")));
        QVERIFY(isSeen(QStringLiteral("xHOSTID_SETTINGS")));
        QVERIFY(isSeen(QStringLiteral("xHOSTID_CLOSE")));
    }

private:
    static void open(OverlayPage& page)
    {
        page.open();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        FrontPanel::settle();
    }

    QPushButton* button(const QString& language) const
    {
        return m_settings->findChild<QPushButton*>(language);
    }

    std::unique_ptr<QWidget> m_surface;
    std::unique_ptr<HelpPage> m_help;
    std::unique_ptr<SettingsPage> m_settings;
};

QTEST_MAIN(TestOverlayPage)
#include "test_overlaypage.moc"
