// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginrunner.h"
#include "screenstart.h"
#include "trialfolder.h"

#include <QDialog>
#include <QLabel>
#include <QPluginLoader>
#include <QTest>
#include <QTimer>

namespace {

int browse(QWidget*, QStringList, QString&, QString, const char*, int)
{
    return 0;
}

int save(QWidget*, QStringList, QString&, QString, const char*, int, QString)
{
    return 0;
}

int message(QString)
{
    return 0;
}

const STRUCT_SHARED_POINTERS Callbacks{browse, save, message, message, message, message};

} // namespace

class TestPluginRunner : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void init()
    {
        m_surface.setGeometry(0, 0, 800, 480);
        m_surface.show();
        CAppInterface::current = nullptr;
    }

    void runsInTheInterfacesOrder()
    {
        PluginRunner runner(&m_surface, Callbacks);
        bool wasShown = false;
        QTimer::singleShot(0, &m_surface, [this, &runner] {
            QVERIFY(runner.isOpen());
            QVERIFY(runner.window()->isVisible());
            QCOMPARE(runner.window()->parentWidget(), &m_surface);
            static_cast<QDialog*>(runner.window())->accept();
        });
        const PluginResult result =
            runner.run(TrialFolder::built(QStringLiteral("TrialGood")), [&] { wasShown = true; });
        QCOMPARE(result.outcome, PluginResult::Finished);
        QVERIFY(wasShown);
        QVERIFY(!runner.isOpen());
        QCOMPARE(runner.window(), nullptr);
        QCOMPARE(calls(), QStringLiteral("initCallbacks full 0,0,800,480 show exec "));
        QVERIFY(CAppInterface::getCurrent() != nullptr);
    }

    void isTheSameWhenOpenedAgain()
    {
        PluginRunner runner(&m_surface, Callbacks);
        QWidget* windows[2] = {};
        for (QWidget*& window : windows) {
            QTimer::singleShot(0, &m_surface, [&] {
                window = runner.window();
                static_cast<QDialog*>(window)->reject();
            });
            runner.run(TrialFolder::built(QStringLiteral("TrialGood")), [] {});
        }
        QVERIFY(windows[0] != nullptr);
        QCOMPARE(windows[0], windows[1]);
    }

    void closesWhatIsOpen()
    {
        PluginRunner runner(&m_surface, Callbacks);
        QTimer::singleShot(0, &m_surface, [&runner] { runner.close(); });
        QCOMPARE(runner.run(TrialFolder::built(QStringLiteral("TrialGood")), [] {}).outcome,
                 PluginResult::Finished);
        QVERIFY(calls().endsWith(QLatin1String("exec close ")));
    }

    void opensOneAtATime()
    {
        PluginRunner runner(&m_surface, Callbacks);
        bool wasShown = false;
        QTimer::singleShot(0, &m_surface, [&] {
            runner.run(TrialFolder::built(QStringLiteral("TrialFailsInit")),
                       [&] { wasShown = true; });
            runner.close();
        });
        QCOMPARE(runner.run(TrialFolder::built(QStringLiteral("TrialGood")), [] {}).outcome,
                 PluginResult::Finished);
        QVERIFY(!wasShown);
    }

    void tellsWhyItCannotLoad_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("another interface")
            << TrialFolder::built(QStringLiteral("TrialForeign")) << "org.example.Another";
        QTest::newRow("interface missing")
            << TrialFolder::built(QStringLiteral("TrialNoInterface")) << CAppInterface_iid;
        QTest::newRow("symbol missing")
            << TrialFolder::built(QStringLiteral("TrialMissesSymbol")) << "nobodyHasThis";
        QTest::newRow("rubbish") << m_broken.write(QStringLiteral("rubbish.so"), "rubbish")
                                 << "rubbish.so";
        QTest::newRow("half") << m_broken.write(
                                     QStringLiteral("half.so"),
                                     TrialFolder::beginning(QStringLiteral("TrialGood"), 0.5))
                              << "half.so";
        QTest::newRow("no file") << QStringLiteral("/nowhere/plugin.so") << "not found";
    }

    void tellsWhyItCannotLoad()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        PluginRunner runner(&m_surface, Callbacks);
        bool wasShown = false;
        const PluginResult result = runner.run(path, [&] { wasShown = true; });
        QCOMPARE(result.outcome, PluginResult::NotLoaded);
        QVERIFY2(result.reason.contains(reason), qPrintable(result.reason));
        QVERIFY(!wasShown);
        QVERIFY(!runner.isOpen());
    }

    void outlivesExceptions_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("constructor") << "TrialFailsConstructor";
        QTest::newRow("initCallbacks") << "TrialFailsInit";
        QTest::newRow("show") << "TrialFailsShow";
        QTest::newRow("exec, its window open") << "TrialFailsExec";
    }

    void outlivesExceptions()
    {
        QFETCH(QString, name);
        PluginRunner runner(&m_surface, Callbacks);
        const PluginResult result = runner.run(TrialFolder::built(name), [] {});
        QCOMPARE(result.outcome, PluginResult::Failed);
        QCOMPARE(result.reason, QStringLiteral("trial by fire"));
        QVERIFY(!runner.isOpen());
        for (const QDialog* window : m_surface.findChildren<QDialog*>())
            QVERIFY(!window->isVisible());
    }

private:
    static QString calls()
    {
        QPluginLoader loader(TrialFolder::built(QStringLiteral("TrialGood")));
        QObject* plugin = loader.instance();
        const QString calls = plugin->property("calls").toString();
        plugin->setProperty("calls", QString());
        return calls;
    }

    QWidget m_surface;
    TrialFolder m_broken;
};

QTEST_MAIN(TestPluginRunner)
#include "test_pluginrunner.moc"
