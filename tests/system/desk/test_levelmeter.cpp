// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanel.h"
#include "hostinterface/appinterface.h"
#include "logcapture.h"
#include "sinelevel.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>
#include <QTranslator>
#include <QtTest>

// Plug-ins find it in the program.
CAppInterface* CAppInterface::current = nullptr;

namespace {

QStringList g_warnings;

// By value, as the table of callbacks has them.
// NOLINTBEGIN(performance-unnecessary-value-param)
int openNothing(QWidget*, QStringList, QString&, QString, const char*, int)
{
    return 0;
}

int saveNothing(QWidget*, QStringList, QString&, QString, const char*, int, QString)
{
    return 0;
}

int noteWarning(QString text)
{
    g_warnings.append(text);
    return 0;
}

int sayNothing(QString)
{
    return 0;
}

// NOLINTEND(performance-unnecessary-value-param)

const STRUCT_SHARED_POINTERS Callbacks{openNothing, saveNothing, sayNothing,
                                       noteWarning, sayNothing,  sayNothing};

} // namespace

/// The example plug-in, loaded and driven as a host does it.
class TestLevelMeter : public QObject
{
    Q_OBJECT

private:
    CAppInterface& plugin() { return *m_plugin; }

    QStringList texts()
    {
        QStringList shown;
        const auto labels = plugin().getWindow()->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->isVisible() && !label->text().isEmpty())
                shown.append(label->text());
        }
        return shown;
    }

    // Runs the window and does something in it.
    int runAnd(const std::function<void()>& act)
    {
        plugin().show(0, 0, 800, 480, m_surface.get(), [] {});
        const auto actLater = [&] {
            FrontPanel::settle();
            act();
            if (plugin().getWindow()->isVisible())
                plugin().close();
        };
        QTimer timer;
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, this, actLater);
        timer.start(0);
        return plugin().exec();
    }

    QWidget* digits()
    {
        QWidget* window = plugin().getWindow();
        const auto widgets = window->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (widget->inherits("appPlugins::RealCombComponent"))
                return widget;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase()
    {
        const LogCapture log;
        m_surface = std::make_unique<QWidget>();
        m_surface->resize(800, 480);
        m_surface->show();
        QVERIFY(QTest::qWaitForWindowActive(m_surface.get()));
        m_loader.setFileName(qEnvironmentVariable("MPB_LIB_DIR") +
                             QStringLiteral("/libLevelMeter.so"));
        m_plugin = qobject_cast<CAppInterface*>(m_loader.instance());
        QVERIFY2(m_plugin != nullptr, qPrintable(m_loader.errorString()));
        plugin().initCallbacks(Callbacks);
    }

    void init()
    {
        g_warnings.clear();
        m_log = std::make_unique<LogCapture>();
    }

    void cleanup() { m_log.reset(); }

    void nothingBeforeTheFirstShow()
    {
        QVERIFY(plugin().getWindow() == nullptr);
        QCOMPARE(plugin().exec(), 0);
        QCOMPARE(plugin().close(), 0);
    }

    void showCallsBackAndBecomesTheCurrentOne()
    {
        bool called = false;
        CAppInterface::setCurrent(nullptr);
        QCOMPARE(plugin().show(0, 0, 800, 480, m_surface.get(), [&] { called = true; }), 0);
        QVERIFY(called);
        QCOMPARE(CAppInterface::getCurrent(), &plugin());
        QVERIFY(!plugin().getWindow()->isVisible());
    }

    void showsTheLevel()
    {
        runAnd([this] {
            QVERIFY2(texts().contains(QStringLiteral("0.3536 V RMS")),
                     qPrintable(texts().join(QLatin1Char('|'))));
            QVERIFY(texts().contains(QStringLiteral("3.98 dBm")));
        });
    }

    void followsTheKeys()
    {
        runAnd([this] {
            digits()->setFocus();
            FrontPanel::settle();
            FrontPanel::press(Qt::Key_2);
            FrontPanel::press(QT_KEY_X1);
            QVERIFY2(texts().contains(QStringLiteral("10.00 dBm")),
                     qPrintable(texts().join(QLatin1Char('|'))));
        });
    }

    void warnsOfWhatIsOutOfRange()
    {
        runAnd([this] {
            digits()->setFocus();
            FrontPanel::settle();
            FrontPanel::press(Qt::Key_5);
            FrontPanel::press(Qt::Key_0);
            FrontPanel::press(QT_KEY_X1);
            QCOMPARE(g_warnings.size(), 1);
            QVERIFY(texts().contains(QStringLiteral("30.00 dBm")));
        });
    }

    void theLoadCounts()
    {
        runAnd([this] {
            auto* list = plugin().getWindow()->findChild<QComboBox*>();
            QVERIFY(list != nullptr);
            list->setFocus();
            FrontPanel::settle();
            list->setCurrentIndex(2);
            QVERIFY2(texts().contains(QStringLiteral("19.21 dBm")),
                     qPrintable(texts().join(QLatin1Char('|'))));
        });
    }

    void closesByItsButtonAndByHome()
    {
        const int byButton = runAnd([this] {
            auto* button = plugin().getWindow()->findChild<QPushButton*>();
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(!plugin().getWindow()->isVisible());
        });
        QCOMPARE(byButton, 1);
        const int byKey = runAnd([this] {
            FrontPanel::press(QT_KEY_HOME);
            QVERIFY(!plugin().getWindow()->isVisible());
        });
        QCOMPARE(byKey, 0);
    }

    void followsTheLanguage()
    {
        runAnd([this] {
            QTranslator own;
            QVERIFY(own.load(QStringLiteral("levelmeter_de.qm"),
                             qEnvironmentVariable("MPB_TRANSLATIONS_DIR")));
            QCoreApplication::installTranslator(&own);
            FrontPanel::settle();
            QVERIFY2(texts().contains(QStringLiteral("Pegelrechner")),
                     qPrintable(texts().join(QLatin1Char('|'))));
            QCoreApplication::removeTranslator(&own);
        });
    }

    void numbers()
    {
        QCOMPARE(effectiveVolts(2), 0.70710678118654752);
        QVERIFY(qAbs(powerDbm(0.632455532, 50)) < 1e-6);
        QVERIFY(qAbs(powerDbm(20, 50) - 30) < 1e-9);
    }

private:
    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<QWidget> m_surface;
    QPluginLoader m_loader;
    CAppInterface* m_plugin = nullptr;
};

QTEST_MAIN(TestLevelMeter)

#include "test_levelmeter.moc"
