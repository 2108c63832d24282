// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "gallerylook.h"
#include "gallerytexts.h"
#include "gallerywindow.h"
#include "languages.h"
#include "logcapture.h"
#include "parameteredit.h"
#include "translated.h"

#include "common/fontsubstitution.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include <memory>

/// Every page in every language: texts fit where they stand, and a finger hits what it can touch.
class TestGalleryLayout : public QObject
{
    Q_OBJECT

private:
    template<typename Widget>
    QList<Widget*> shown() const
    {
        QList<Widget*> result = m_window->findChildren<Widget*>();
        result.erase(std::remove_if(result.begin(), result.end(),
                                    [](QWidget* widget) { return !widget->isVisible(); }),
                     result.end());
        return result;
    }

    // One text is there to be too long.
    static bool fits(const QWidget* widget, const QString& text, int width)
    {
        if (text == appPlugins::translated(GalleryText::LongTitle))
            return true;
        int needed = 0;
        for (const QString& line : text.split(QLatin1Char('\n')))
            needed = qMax(needed, widget->fontMetrics().horizontalAdvance(line));
        return needed <= width;
    }

    static QString finding(const QWidget* widget, const QString& text)
    {
        return QStringLiteral("%1 \"%2\" is %3 x %4")
            .arg(QLatin1String(widget->metaObject()->className()), text)
            .arg(widget->width())
            .arg(widget->height());
    }

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<Languages> m_languages;
    std::unique_ptr<GalleryWindow> m_window;

private Q_SLOTS:
    void initTestCase() { substituteTextFont(); }

    void init()
    {
        QFETCH(QString, page);
        QFETCH(QString, language);
        m_log = std::make_unique<LogCapture>();
        m_languages = std::make_unique<Languages>();
        m_languages->install(language);
        m_window = std::make_unique<GalleryWindow>(*m_languages);
        QVERIFY(m_window->showPage(page));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QCoreApplication::processEvents();
    }

    void cleanup()
    {
        m_window.reset();
        m_languages.reset();
        m_log.reset();
    }

    void textsFit_data() { pagesInLanguages(); }

    void textsFit()
    {
        for (const QLabel* label : shown<QLabel>())
            QVERIFY2(fits(label, label->text(), label->contentsRect().width()),
                     qPrintable(finding(label, label->text())));
        const int buttonFrame = 4;
        for (const QAbstractButton* button : shown<QAbstractButton>())
            QVERIFY2(fits(button, button->text(), button->width() - 2 * buttonFrame),
                     qPrintable(finding(button, button->text())));
        const int frameAndArrow = 30;
        for (const QComboBox* box : shown<QComboBox>()) {
            for (int i = 0; i < box->count(); ++i)
                QVERIFY2(fits(box, box->itemText(i), box->width() - frameAndArrow),
                         qPrintable(finding(box, box->itemText(i))));
        }
    }

    void aFingerHitsEveryInput_data() { pagesInLanguages(); }

    void aFingerHitsEveryInput()
    {
        int inputs = 0;
        const auto check = [&inputs](const QWidget* input) {
            ++inputs;
            QVERIFY2(input->height() >= GalleryLook::TouchHeight,
                     qPrintable(finding(input, QString())));
        };
        for (const QAbstractButton* button : shown<QAbstractButton>()) {
            if (button->isEnabled())
                check(button);
        }
        for (const auto* number : shown<appPlugins::ParameterTextWithOrderOfMagnitude>())
            check(number);
        for (const QComboBox* box : shown<QComboBox>())
            check(box);
        for (const QSlider* slider : shown<QSlider>())
            check(slider);
        for (const QLineEdit* line : shown<QLineEdit>())
            check(line);
        QVERIFY(inputs > 0);
    }

private:
    static void pagesInLanguages()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("language");
        for (const QString& page : GalleryWindow::pageNames()) {
            for (const QString& language : Languages::all())
                QTest::addRow("%s in %s", qPrintable(page), qPrintable(language))
                    << page << language;
        }
    }
};

QTEST_MAIN(TestGalleryLayout)
#include "test_gallerylayout.moc"
