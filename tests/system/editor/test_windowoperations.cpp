// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cplugincombcomponent.h"

#include <QAction>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace appPlugins;

namespace {

const QString DefaultSetupPath = QStringLiteral("/mnt/user-data/appPluginsDefaultSetup.json");

QString pluginPath()
{
    return qEnvironmentVariable("MPB_LIB_DIR") + QLatin1String("/libMultiPulseBuilder.so");
}

/// A setup of so many pulses, in which nothing else is of interest.
bool writeDefaultSetup(int count)
{
    QJsonArray rows;
    for (int row = 0; row < count; ++row) {
        rows.append(QJsonObject{{QStringLiteral("width"), QStringLiteral("2.000u")},
                                {QStringLiteral("gap"), QStringLiteral("10.000u")}});
    }
    const QJsonObject pulses{
        {QStringLiteral("pulse numbers"), QJsonObject{{QStringLiteral("value"), count}}},
        {QStringLiteral("width/gap"), rows}};
    const QJsonObject document{{QStringLiteral("multiple pulses"), pulses}};
    QFile file(DefaultSetupPath);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(document).toJson()) > 0;
}

void pressDefault(const EditorHost& host)
{
    EditorHost::record().questionResult = 1;
    FrontPanel::tap(host.button(EditorHost::Default));
}

int editorCount()
{
    int count = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (qstrcmp(widget->metaObject()->className(), "MultiPulseEditor") == 0)
            ++count;
    }
    return count;
}

/// Looks at the host's state whenever the plug-in logs a certain text.
class LogWatch
{
public:
    static void start(const QString& text, const std::function<void()>& look)
    {
        m_text = text;
        m_look = look;
        m_previous = qInstallMessageHandler(&LogWatch::handle);
    }
    static void stop() { qInstallMessageHandler(m_previous); }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (text.startsWith(m_text))
            m_look();
        m_previous(type, context, text);
    }

    static QString m_text;
    static std::function<void()> m_look;
    static QtMessageHandler m_previous;
};

QString LogWatch::m_text;
std::function<void()> LogWatch::m_look;
QtMessageHandler LogWatch::m_previous = nullptr;

/// A host of few manners, in a process of its own: it ends as its name says, and its exit code is
/// that of a process that ended in order. What the plug-in answers after its teardown is printed.
namespace CarelessHost {

const int OrderlyExit = 7;

CAppInterface* plugin = nullptr;

int silent(QString)
{
    return 0;
}

int openNothing(QWidget*, QStringList, QString&, QString, const char*, int)
{
    return 0;
}

int saveNothing(QWidget*, QStringList, QString&, QString, const char*, int, QString)
{
    return 0;
}

// Registered before the plug-in is loaded, this runs when its editor has gone.
void askForTheWindow()
{
    std::printf("window %s\n", plugin->getWindow() == nullptr ? "null" : "there");
    std::fflush(stdout);
}

void load(QPluginLoader& loader)
{
    plugin = qobject_cast<CAppInterface*>(loader.instance());
    if (plugin == nullptr)
        qFatal("plug-in: %s", qPrintable(loader.errorString()));
    plugin->initCallbacks({openNothing, saveNothing, silent, silent, silent, silent});
}

// A loader keeps the library in the process unless it is told otherwise before it loads.
void unload(QPluginLoader& loader)
{
    const QPointer<QWidget> window = plugin->getWindow();
    if (!loader.unload())
        qFatal("plug-in: %s", qPrintable(loader.errorString()));
    std::printf("window %s\n", window.isNull() ? "gone" : "left");
}

void runWindow()
{
    QTimer::singleShot(0, plugin->getWindow(), [] { plugin->close(); });
    plugin->exec();
}

void showOn(QWidget* surface, bool run)
{
    if (surface != nullptr)
        surface->show();
    plugin->show(0, 0, 800, 480, surface, [] {});
    if (run)
        runWindow();
}

int run(const QByteArray& manner, int argc, char** argv)
{
    if (manner.contains("asks"))
        std::atexit(askForTheWindow);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    QWidget* leftBehind = nullptr;
    {
        const QApplication application(argc, argv);
        // A loader that is destroyed leaves the library in the process.
        QPluginLoader loader(pluginPath());
        if (manner.contains("unload"))
            loader.setLoadHints({});
        load(loader);
        const bool runs = manner.contains("run");
        if (manner.contains("without parent")) {
            showOn(nullptr, runs);
        } else if (manner.contains("surface left")) {
            leftBehind = new QWidget;
            showOn(leftBehind, runs);
        } else {
            QWidget surface;
            showOn(&surface, runs);
            if (manner.contains("help"))
                QMetaObject::invokeMethod(plugin->getWindow(), "slt_HelpBtnClicked");
            if (manner.contains("unload below"))
                unload(loader);
        }
        if (manner.contains("without parent") && manner.contains("unload"))
            unload(loader);
    }
    return OrderlyExit;
}

} // namespace CarelessHost

} // namespace

/// The host's operations on the plug-in's one window.
class TestWindowOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void showReturnsNullAndShowsNothing();
    void firstParentStays();
    void parentThatComesLater();
    void showSizesAndCentres_data();
    void showSizesAndCentres();
    void emptyCallbackThrows();
    void orderOfShow();
    void defaultSetupIsReadAfterTheInstrument();
    void everyShowAsksTheInstrument();

    void editorIsMadeOnFirstUse_data();
    void editorIsMadeOnFirstUse();
    void closeBeforeShow();
    void windowIsTheOneEditor();

    void execResults_data();
    void execResults();
    void closeEndsExec();
    void execTwice();

    void resetAtEachExec();
    void resetWithoutAnInstrument();
    void outputIsShownAsStoppedAtExec();

    void valuesStayBetweenShows();
    void limitsStayBetweenShows();
    void defaultSetupIsReadAtEachShow();
    void missingDefaultSetupKeepsTheLast();

    void surfaceIsDeletedFirst();
    void surfaceIsDeletedAndAnotherShown();
    void processEnds_data();
    void processEnds();
};

void TestWindowOperations::cleanup()
{
    QFile::remove(DefaultSetupPath);
}

void TestWindowOperations::showReturnsNullAndShowsNothing()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    int calls = 0;
    QCOMPARE(host.plugin()->show(0, 0, 800, 480, host.surface(), [&calls] { ++calls; }), 0);
    QCOMPARE(calls, 1);
    QVERIFY(host.editor() != nullptr);
    QVERIFY(!host.editor()->isVisible());
}

void TestWindowOperations::firstParentStays()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    QWidget other;
    host.plugin()->show(0, 0, 800, 480, &other, [] {});
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    host.plugin()->show(0, 0, 800, 480, nullptr, [] {});
    QCOMPARE(host.editor()->parentWidget(), host.surface());
}

void TestWindowOperations::parentThatComesLater()
{
    const LogCapture log;
    EditorHost host;
    host.plugin()->show(0, 0, 800, 480, nullptr, [] {});
    QVERIFY(host.editor()->parentWidget() == nullptr);
    QVERIFY(host.editor()->isWindow());
    host.show();
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    QVERIFY(!host.editor()->isWindow());
}

void TestWindowOperations::showSizesAndCentres_data()
{
    QTest::addColumn<QRect>("asked");
    QTest::addColumn<QRect>("given");
    QTest::newRow("whole screen") << QRect(0, 0, 800, 480) << QRect(0, 0, 800, 480);
    QTest::newRow("smaller") << QRect(0, 0, 400, 300) << QRect(200, 90, 400, 300);
    QTest::newRow("smaller elsewhere") << QRect(100, 50, 400, 300) << QRect(200, 90, 400, 300);
}

void TestWindowOperations::showSizesAndCentres()
{
    QFETCH(QRect, asked);
    QFETCH(QRect, given);
    const LogCapture log;
    EditorHost host;
    host.show();
    host.plugin()->show(asked.x(), asked.y(), asked.width(), asked.height(), host.surface(), [] {});
    const auto* content = host.editor()->findChild<QWidget*>(QStringLiteral("m_pSubClassFillArea"));
    QCOMPARE(content->geometry(), given);
    QVERIFY(LogCapture::messages().contains(
        QStringLiteral("info: WindowModalDialogWithMask::setGeometry x=%1, y=%2, w=%3, h=%4")
            .arg(asked.x())
            .arg(asked.y())
            .arg(asked.width())
            .arg(asked.height())));
}

void TestWindowOperations::emptyCallbackThrows()
{
    const LogCapture log;
    EditorHost host;
    QVERIFY_EXCEPTION_THROWN(host.plugin()->show(0, 0, 800, 480, host.surface(), GetIdCallback()),
                             std::bad_function_call);
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(CAppInterface::getCurrent() == nullptr);
    QCOMPARE(editorCount(), 0);
    // The plug-in goes on as if it had not been called.
    host.show();
    QVERIFY(host.editor() != nullptr);
}

void TestWindowOperations::orderOfShow()
{
    const LogCapture log;
    EditorHost host;
    CAppInterface* currentAtIdentification = host.plugin();
    CAppInterface* currentAtConstruction = nullptr;
    int editorsAtIdentification = -1;
    QWidget* parentAtGeometry = nullptr;

    EditorHost::record().whileWarning = [&] {
        qInfo("identified");
        currentAtIdentification = CAppInterface::getCurrent();
        editorsAtIdentification = editorCount();
    };
    LogWatch::start(QStringLiteral("initUI"),
                    [&] { currentAtConstruction = CAppInterface::getCurrent(); });
    host.plugin()->show(0, 0, 800, 480, host.surface(), [] { qInfo("called back"); });
    LogWatch::stop();
    QVERIFY(currentAtIdentification == nullptr);
    QCOMPARE(editorsAtIdentification, 0);
    QVERIFY(currentAtConstruction == host.plugin());

    const QStringList messages = LogCapture::messages();
    const auto place = [&](const char* begin) {
        for (int i = 0; i < messages.size(); ++i) {
            if (messages.at(i).startsWith(QLatin1String(begin)))
                return i;
        }
        return -1;
    };
    QVERIFY(place("info: called back") >= 0);
    QVERIFY(place("info: identified") > place("info: called back"));
    QVERIFY(place("debug: initUI") > place("info: identified"));
    QVERIFY(place("info: WindowModalDialogWithMask::setGeometry") > place("debug: initUI"));

    // The parent comes before the size.
    EditorHost::record().whileWarning = nullptr;
    LogWatch::start(QStringLiteral("WindowModalDialogWithMask::setGeometry"),
                    [&] { parentAtGeometry = host.surface()->findChild<QDialog*>(); });
    host.show();
    LogWatch::stop();
    QVERIFY(parentAtGeometry != nullptr);
}

void TestWindowOperations::defaultSetupIsReadAfterTheInstrument()
{
    const LogCapture log;
    EditorHost host;
    QVERIFY(writeDefaultSetup(3));
    EditorHost::record().whileWarning = [] { QVERIFY(writeDefaultSetup(4)); };
    host.show();
    EditorHost::record().whileWarning = nullptr;
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 4.0);
    });
}

void TestWindowOperations::everyShowAsksTheInstrument()
{
    const LogCapture log;
    const ScriptedServer server(InstrumentScript::identify("KVX7052C") +
                                InstrumentScript::identify("KVX7030C"));
    EditorHost host;
    host.show();
    host.show();
    QVERIFY(server.waitForGone(2));
    QCOMPARE(server.received(), QByteArray("*IDN?\n*IDN?\n"));
    QCOMPARE(editorCount(), 1);
}

void TestWindowOperations::editorIsMadeOnFirstUse_data()
{
    QTest::addColumn<QString>("operation");
    for (const char* operation : {"show", "exec", "close", "getWindow"})
        QTest::newRow(operation) << QString(QLatin1String(operation));
}

void TestWindowOperations::editorIsMadeOnFirstUse()
{
    QFETCH(QString, operation);
    const LogCapture log;
    EditorHost host(EditorHost::WithoutSegment);
    QCOMPARE(editorCount(), 0);
    if (operation == QLatin1String("show")) {
        host.show();
    } else if (operation == QLatin1String("exec")) {
        QTimer::singleShot(0, host.surface(), [&] { host.plugin()->close(); });
        QCOMPARE(host.plugin()->exec(), 0);
    } else if (operation == QLatin1String("close")) {
        QCOMPARE(host.plugin()->close(), 0);
    } else {
        QVERIFY(host.plugin()->getWindow() != nullptr);
    }
    QCOMPARE(editorCount(), 1);
    QVERIFY(!host.editor()->isVisible());
    QCOMPARE(editorCount(), 1);
    // Without a parent it would stay for the next host.
    delete host.editor();
}

void TestWindowOperations::closeBeforeShow()
{
    const LogCapture log;
    EditorHost host;
    QCOMPARE(host.plugin()->close(), 0);
    QCOMPARE(host.editor()->result(), int(QDialog::Rejected));
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(CAppInterface::getCurrent() == nullptr);

    host.show();
    QCOMPARE(host.exec([&] { QVERIFY(host.editor()->isVisible()); }), 0);
}

void TestWindowOperations::windowIsTheOneEditor()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QWidget* const window = host.plugin()->getWindow();
    QCOMPARE(window->metaObject()->className(), "MultiPulseEditor");
    host.show();
    QCOMPARE(host.plugin()->getWindow(), window);
    host.exec([&] { QCOMPARE(host.plugin()->getWindow(), window); });
    QCOMPARE(host.plugin()->getWindow(), window);
}

void TestWindowOperations::execResults_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("accepted") << 1;
    QTest::newRow("rejected") << 0;
}

void TestWindowOperations::execResults()
{
    QFETCH(int, code);
    EditorSession session;
    EditorHost& host = session.host;
    QCOMPARE(host.exec([&] {
        if (code == QDialog::Accepted)
            host.editor()->accept();
        else
            host.editor()->reject();
    }),
             code);
    QVERIFY(!host.editor()->isVisible());
}

void TestWindowOperations::closeEndsExec()
{
    EditorSession session;
    EditorHost& host = session.host;
    bool closed = false;
    QCOMPARE(host.exec([&] {
        QVERIFY(host.editor()->isVisible());
        QCOMPARE(host.plugin()->close(), 0);
        closed = !host.editor()->isVisible();
    }),
             0);
    QVERIFY(closed);
}

void TestWindowOperations::execTwice()
{
    EditorSession session;
    EditorHost& host = session.host;
    QCOMPARE(host.exec([&] { host.editor()->accept(); }), 1);
    QCOMPARE(host.exec([&] { QVERIFY(host.editor()->isVisible()); }), 0);
    QCOMPARE(host.exec([&] { host.editor()->accept(); }), 1);
}

void TestWindowOperations::resetAtEachExec()
{
    EditorSession session(InstrumentScript::reset());
    EditorHost& host = session.host;
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n"));
    bool resetBeforeVisible = false;
    LogWatch::start(QStringLiteral("App sent *RST"),
                    [&] { resetBeforeVisible = !host.editor()->isVisible(); });
    host.exec([] {});
    LogWatch::stop();
    QVERIFY(resetBeforeVisible);
    QVERIFY(session.server.waitForBytes(11));
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n*RST\n"));

    host.exec([] {});
    QVERIFY(session.server.waitForBytes(16));
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n*RST\n*RST\n"));
    QCOMPARE(LogCapture::messages().count(QStringLiteral("info: App sent *RST")), 2);
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestWindowOperations::resetWithoutAnInstrument()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    const QString text =
        QStringLiteral("TcpSocket connect error! port:30000, reason:Connection refused");
    QCOMPARE(EditorHost::record().warnings, QStringList(text));
    host.exec([&] { QVERIFY(host.editor()->isVisible()); });
    QCOMPARE(EditorHost::record().warnings, (QStringList{text, text}));
    QVERIFY(LogCapture::messages().contains(QStringLiteral("info: App sent *RST")));
    QVERIFY(EditorHost::record().criticals.isEmpty());
}

// The state alone: text and controls are those of the run that was under way.
void TestWindowOperations::outputIsShownAsStoppedAtExec()
{
    EditorSession session(InstrumentScript::run() + InstrumentScript::reset());
    EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Run));
        QVERIFY(host.action(EditorHost::Run)->isChecked());
    });
    QVERIFY(host.action(EditorHost::Run)->isChecked());
    const QByteArray afterRun = session.server.received();

    session.exec([&] {
        QVERIFY(!host.action(EditorHost::Run)->isChecked());
        QVERIFY(!host.button(EditorHost::Run)->isChecked());
        QCOMPARE(host.action(EditorHost::Run)->text(), QStringLiteral("STR_ID_SWEEP_STOP"));
        QVERIFY(!host.count()->isEnabled());
        QVERIFY(!host.action(EditorHost::Open)->isEnabled());
    });
    QVERIFY(session.server.waitForBytes(afterRun.size() + 5));
    QCOMPARE(session.server.received(), afterRun + "*RST\n");
}

void TestWindowOperations::valuesStayBetweenShows()
{
    EditorSession session(InstrumentScript::identify("KVX7010C") + InstrumentScript::reset());
    EditorHost& host = session.host;
    host.exec([&] {
        host.enter(host.count(), QStringLiteral("5"));
        host.enter(host.highLevel(), QStringLiteral("2"));
        host.enter(host.delay(), QStringLiteral("25"));
        host.choose(host.source(), 2);
        host.choose(host.load(), 1);
    });
    host.show();
    host.exec([&] {
        QCOMPARE(host.count()->get(), 5.0);
        QCOMPARE(host.table()->model()->rowCount(), 5);
        QCOMPARE(host.highLevel()->get(), 4.0);
        QCOMPARE(host.lowLevel()->get(), -2.5);
        QCOMPARE(host.delay()->get(), 2.5e-5);
        QCOMPARE(int(host.source()->get()), 2);
        QVERIFY(host.timer()->isVisible());
        QCOMPARE(int(host.load()->get()), 1);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestWindowOperations::limitsStayBetweenShows()
{
    const LogCapture log;
    const ScriptedServer server(InstrumentScript::identify("KVX7052C") +
                                InstrumentScript::identify("KVX7030C"));
    EditorHost host;
    double max = 0;
    double min = 0;
    for (int i = 0; i < 2; ++i) {
        host.show();
        host.highLevel()->getMaxMinValue(max, min);
        QCOMPARE(max, 2.5);
    }
}

void TestWindowOperations::defaultSetupIsReadAtEachShow()
{
    QVERIFY(writeDefaultSetup(3));
    EditorSession session(InstrumentScript::reset() + InstrumentScript::identify("KVX7010C") +
                          InstrumentScript::reset());
    EditorHost& host = session.host;
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });

    QVERIFY(writeDefaultSetup(4));
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });
    host.show();
    host.exec([&] {
        QCOMPARE(host.count()->get(), 3.0);
        pressDefault(host);
        QCOMPARE(host.count()->get(), 4.0);
    });
}

void TestWindowOperations::missingDefaultSetupKeepsTheLast()
{
    QVERIFY(writeDefaultSetup(3));
    const LogCapture log;
    EditorHost host;
    host.show();
    QVERIFY(QFile::remove(DefaultSetupPath));
    host.show();
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });
    QVERIFY(!QFile::exists(DefaultSetupPath));
}

void TestWindowOperations::surfaceIsDeletedFirst()
{
    const LogCapture log;
    EditorHost host;
    auto surface = std::make_unique<QWidget>();
    host.plugin()->show(0, 0, 800, 480, surface.get(), [] {});
    const QPointer<QWidget> window = host.plugin()->getWindow();
    QCOMPARE(window->parentWidget(), surface.get());
    surface.reset();
    QVERIFY(window.isNull());
    QCOMPARE(editorCount(), 0);
}

void TestWindowOperations::surfaceIsDeletedAndAnotherShown()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    auto another = std::make_unique<QWidget>();
    host.editor()->setParent(another.get());
    another.reset();
    QCOMPARE(editorCount(), 0);
    host.show();
    QCOMPARE(editorCount(), 1);
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    QCOMPARE(host.exec([&] { QCOMPARE(host.count()->get(), 2.0); }), 0);
}

void TestWindowOperations::processEnds_data()
{
    QTest::addColumn<QString>("manner");
    QTest::addColumn<QString>("printed");
    const QString null = QStringLiteral("window null\n");
    for (const char* manner : {"", "run", "surface left", "surface left run", "without parent",
                               "without parent run", "help"}) {
        const QString text = QLatin1String(manner);
        QTest::addRow("%s", manner) << text << QString();
        QTest::addRow("%s asks", manner) << text + QLatin1String(" asks") << null;
    }
    for (const char* manner : {"unload below the surface", "unload without parent",
                               "unload without parent run", "unload below the surface run"})
        QTest::newRow(manner) << QString(QLatin1String(manner)) << QStringLiteral("window gone\n");
}

// Unless the library is unloaded before, the editor is left to the end of the process.
void TestWindowOperations::processEnds()
{
    QFETCH(QString, manner);
    QFETCH(QString, printed);
    QProcess host;
    host.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--host"), manner});
    QVERIFY(host.waitForFinished(60000));
    const QByteArray errors = host.readAllStandardError();
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, errors.constData());
    QCOMPARE(host.exitCode(), CarelessHost::OrderlyExit);
    QCOMPARE(QString::fromLocal8Bit(host.readAllStandardOutput()), printed);
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--host") == 0)
        return CarelessHost::run(argv[2], argc, argv);

    const QApplication application(argc, argv);
    TestWindowOperations test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_windowoperations.moc"
