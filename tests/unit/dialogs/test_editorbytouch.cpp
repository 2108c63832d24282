// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/fontsubstitution.h"
#include "editorhost.h"
#include "hostdialogs.h"
#include "keyboarddriver.h"
#include "logcapture.h"
#include "scriptedserver.h"

#include <QDialog>
#include <QDir>
#include <QInputMethod>
#include <QListView>
#include <QScreen>
#include <QToolButton>
#include <QTranslator>
#include <QtPlugin>

Q_IMPORT_PLUGIN(KvxKeyboardPlugin)

using appPlugins::RealCombComponent;

namespace {

using KeyboardDriver::touch;

QWidget* pad()
{
    return KeyboardDriver::window();
}

QWidget* dialogPart(const char* name)
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog->objectName() == QLatin1String(name))
        return dialog;
    return dialog->findChild<QWidget*>(QLatin1String(name));
}

void tapButton(const char* name)
{
    FrontPanel::tap(dialogPart(name));
}

/// Acts in the dialog of this name as soon as it is open.
void atDialog(const char* name, const std::function<void()>& act)
{
    auto* wait = new QTimer(qApp);
    QObject::connect(wait, &QTimer::timeout, wait, [wait, name, act] {
        const QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog->objectName() != QLatin1String(name))
            return;
        wait->stop();
        wait->deleteLater();
        FrontPanel::settle();
        act();
    });
    wait->start(0);
}

void photograph(const char* name)
{
    const QString folder = qEnvironmentVariable("MPB_PICTURES_DIR");
    QDir().mkpath(folder);
    QGuiApplication::primaryScreen()->grabWindow(0).save(
        folder + QLatin1Char('/') + QLatin1String(name) + QLatin1String(".png"));
}

} // namespace

class TestEditorByTouch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        substituteTextFont();
        QDir().mkpath(QStringLiteral("/mnt/user-data"));
        QFile::link(qEnvironmentVariable("MPB_APP_DIR"), QStringLiteral("/mnt/user-data/.app"));
    }

    void setsEveryKindOfParameter()
    {
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.count()->focusProxy());
            QVERIFY(touch({QStringLiteral("5"), QStringLiteral("x1")}));
            QCOMPARE(host.count()->get(), 5.0);
            QCOMPARE(host.table()->model()->rowCount(), 5);

            FrontPanel::tap(host.highLevel()->focusProxy());
            QVERIFY(touch({QStringLiteral("1"), QStringLiteral("."), QStringLiteral("7"),
                           QStringLiteral("5"), QStringLiteral("HOSTID_DLG_KEY_ENTER")}));
            QCOMPARE(host.highLevel()->get(), 1.75);

            FrontPanel::tap(host.lowLevel()->focusProxy());
            QVERIFY(touch({QStringLiteral("−"), QStringLiteral("7"), QStringLiteral("5"),
                           QStringLiteral("0"), QStringLiteral("k/m")}));
            QCOMPARE(host.lowLevel()->get(), -0.75);

            FrontPanel::tap(host.delay()->focusProxy());
            QVERIFY(touch({QStringLiteral("3"), QStringLiteral("M/u")}));
            QCOMPARE(host.delay()->get(), 3e-6);
            QVERIFY(pad() == nullptr);
        });
    }

    void setsACellOfTheTable()
    {
        inEditor([](EditorHost& host) {
            openCell(host, 0, 0);
            QVERIFY(pad() != nullptr);
            photograph("touch-cell");
            QVERIFY(touch({QStringLiteral("4"), QStringLiteral("."), QStringLiteral("5"),
                           QStringLiteral("M/u")}));
            QCOMPARE(host.cell(0, 0), QStringLiteral("4.500u"));
            QVERIFY(pad() == nullptr);
        });
    }

    // A second tap on a selected cell opens it after a while, under the finger that has gone.
    void appearsInACellThatOpensLater()
    {
        inEditor([](EditorHost& host) {
            host.tapCell(1, 0);
            host.tapCell(1, 0);
            QTRY_VERIFY(pad() != nullptr);
            QVERIFY(touch({QStringLiteral("7"), QStringLiteral("0"), QStringLiteral("0"),
                           QStringLiteral("G/n")}));
            QCOMPARE(host.cell(1, 0), QStringLiteral("700n"));
        });
    }

    void stepsAndCursorMoveByTouch()
    {
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.highLevel()->focusProxy());
            const double before = host.highLevel()->get();
            QVERIFY(touch({QStringLiteral("HOSTID_DLG_KEY_STEP_UP"),
                           QStringLiteral("HOSTID_DLG_KEY_STEP_UP")}));
            const double step = (host.highLevel()->get() - before) / 2;
            QVERIFY(step > 0);
            QVERIFY(touch({QStringLiteral("HOSTID_DLG_KEY_STEP_DOWN")}));
            QCOMPARE(host.highLevel()->get(), before + step);
            QVERIFY(touch(
                {QStringLiteral("HOSTID_DLG_KEY_LEFT"), QStringLiteral("HOSTID_DLG_KEY_STEP_UP")}));
            QCOMPARE(host.highLevel()->get(), before + step + 10 * step);
            QVERIFY(touch({QStringLiteral("HOSTID_DLG_KEY_RIGHT"),
                           QStringLiteral("HOSTID_DLG_KEY_STEP_UP")}));
            QCOMPARE(host.highLevel()->get(), before + 2 * step + 10 * step);
        });
    }

    void cancelDropsWhatIsTyped()
    {
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.delay()->focusProxy());
            const double before = host.delay()->get();
            QVERIFY(touch({QStringLiteral("9"), QStringLiteral("9"),
                           QStringLiteral("HOSTID_DLG_KEY_BACKSPACE"),
                           QStringLiteral("HOSTID_DLG_KEY_CANCEL")}));
            QCOMPARE(host.delay()->get(), before);
            QVERIFY(pad() == nullptr);
            QVERIFY(host.editor()->isVisible());
        });
    }

    void leavesTheFieldInSight_data()
    {
        QTest::addColumn<bool>("cell");
        QTest::newRow("parameter at the left") << false;
        QTest::newRow("cell at the right") << true;
    }

    void leavesTheFieldInSight()
    {
        QFETCH(bool, cell);
        inEditor([cell](EditorHost& host) {
            if (cell)
                openCell(host, 0, 1);
            else
                FrontPanel::tap(host.delay()->focusProxy());
            QVERIFY(pad() != nullptr);
            photograph(cell ? "touch-gap" : "touch-delay");
            QVERIFY(QRect(0, 0, 800, 480).contains(KeyboardDriver::place(pad())));
            QVERIFY(!KeyboardDriver::place(pad()).intersects(
                KeyboardDriver::place(QApplication::focusWidget())));
            QCOMPARE(QGuiApplication::inputMethod()->keyboardRectangle().toRect(),
                     KeyboardDriver::place(pad()));
        });
    }

    // The plug-in's warning comes over the pad; afterwards the limit stands in the field.
    void aValueOutOfRangeIsWarnedAbout()
    {
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.count()->focusProxy());
            QVERIFY(touch({QStringLiteral("9"), QStringLiteral("9"), QStringLiteral("x1")}));
            QCOMPARE(EditorHost::record().warnings.size(), 1);
            QCOMPARE(host.count()->get(), 30.0);
        });
    }

    // Whoever looks at the photographs reads German.
    void looksAsOneInGerman()
    {
        QTranslator plugin;
        QTranslator dialogs;
        const QString folder = qEnvironmentVariable("MPB_TRANSLATIONS_DIR");
        QVERIFY(plugin.load(QStringLiteral("multipulse_de"), folder));
        QVERIFY(dialogs.load(QStringLiteral("kvxdialogs_de"), folder));
        QCoreApplication::installTranslator(&plugin);
        QCoreApplication::installTranslator(&dialogs);
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.highLevel()->focusProxy());
            photograph("german-pad");
            atDialog("message box", [] {
                photograph("german-question");
                tapButton("refuse");
            });
            HostDialogs::question(qtTrId("STR_ID_SUREQ_DEFAULT"));
            QVERIFY(host.editor()->isActiveWindow());
            QVERIFY(pad() == nullptr);
        });
        QCoreApplication::removeTranslator(&plugin);
        QCoreApplication::removeTranslator(&dialogs);
    }

    // With the host's own boxes and browsers: everything by finger.
    void warnsSavesAndOpensByTouch()
    {
        inEditor([](EditorHost& host) {
            host.plugin()->initCallbacks({HostDialogs::openFile, HostDialogs::saveFile,
                                          HostDialogs::critical, HostDialogs::warning,
                                          HostDialogs::question, HostDialogs::information});
            atDialog("message box", [] {
                photograph("touch-warning");
                tapButton("accept");
            });
            FrontPanel::tap(host.count()->focusProxy());
            QVERIFY(touch("99"));
            QVERIFY(touch({QStringLiteral("x1")}));
            QCOMPARE(host.count()->get(), 30.0);
            QVERIFY(host.editor()->isActiveWindow());

            atDialog("file browser", [] {
                FrontPanel::tap(dialogPart("name"));
                photograph("touch-save");
                QVERIFY(touch({QStringLiteral("HOSTID_DLG_KEY_BACKSPACE")}));
                QVERIFY(touch("7"));
                QVERIFY(touch({QStringLiteral("HOSTID_DLG_KEY_ENTER")}));
            });
            FrontPanel::tap(host.button(EditorHost::SaveAs));
            QVERIFY(QFile::exists(QStringLiteral("/mnt/user-data/double_puls7.json")));
            QVERIFY(QFile::exists(QStringLiteral("/mnt/user-data/double_puls7.mpwv")));

            FrontPanel::tap(host.count()->focusProxy());
            QVERIFY(touch("3"));
            QVERIFY(touch({QStringLiteral("x1")}));
            QCOMPARE(host.count()->get(), 3.0);
            atDialog("file browser", [] {
                auto* list = dialogPart("file browser")->findChild<QListView*>();
                for (int row = 0; row < list->model()->rowCount(); ++row) {
                    const QModelIndex index = list->model()->index(row, 0);
                    if (index.data() == QStringLiteral("double_puls7.json"))
                        FrontPanel::tap(list->viewport(), list->visualRect(index).center());
                }
                tapButton("accept");
            });
            FrontPanel::tap(host.button(EditorHost::Open));
            QCOMPARE(host.count()->get(), 30.0);
            QVERIFY(host.editor()->isVisible());
        });
    }

    void aSelectedCellHidesThePad()
    {
        inEditor([](EditorHost& host) {
            FrontPanel::tap(host.delay()->focusProxy());
            QVERIFY(pad() != nullptr);
            host.tapCell(1, 1);
            QVERIFY(pad() == nullptr);
        });
    }

    void theKnobBringsNoPad()
    {
        inEditor([](EditorHost& host) {
            host.delay()->focusProxy()->setFocus();
            FrontPanel::knob(2);
            QVERIFY(pad() == nullptr);
        });
    }

private:
    static void openCell(const EditorHost& host, int row, int column)
    {
        host.tapCell(row, column);
        FrontPanel::doubleTap(
            host.table()->viewport(),
            host.table()->visualRect(host.table()->model()->index(row, column)).center());
    }

    static void inEditor(const std::function<void(EditorHost&)>& inside)
    {
        const LogCapture log;
        ScriptedServer instrument({{{"Maker,KVX7030A,0001,1.0\n"}}});
        EditorHost host;
        HostDialogs::setScreen(host.surface());
        host.show();
        host.exec([&host, &inside] { inside(host); });
    }
};

QTEST_MAIN(TestEditorByTouch)

#include "test_editorbytouch.moc"
