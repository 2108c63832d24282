// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorparts.h"
#include "editorsession.h"

#include "cplugincombcomponent.h"

#include <QApplication>
#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <dlfcn.h>

using namespace appPlugins;
using namespace EditorParts;

namespace {

QString pluginPath()
{
    return qEnvironmentVariable("MPB_LIB_DIR") + QLatin1String("/libMultiPulseBuilder.so");
}

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
    if (dlopen(qPrintable(pluginPath()), RTLD_LAZY | RTLD_NOLOAD) != nullptr)
        std::printf("library resident\n");
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

/// When the editor ends: with its surface, with the application, with the library.
class TestEditorLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void surfaceIsDeletedFirst();
    void surfaceIsDeletedAndAnotherShown();
    void processEnds_data();
    void processEnds();
};

void TestEditorLifetime::surfaceIsDeletedFirst()
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

void TestEditorLifetime::surfaceIsDeletedAndAnotherShown()
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

void TestEditorLifetime::processEnds_data()
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
void TestEditorLifetime::processEnds()
{
    QFETCH(QString, manner);
    QFETCH(QString, printed);
    QProcess host;
    host.start(QCoreApplication::arguments().constFirst(), {QStringLiteral("--host"), manner});
    QVERIFY(host.waitForFinished(60000));
    const QByteArray errors = host.readAllStandardError();
    QVERIFY2(host.exitStatus() == QProcess::NormalExit, errors.constData());
    QCOMPARE(host.exitCode(), CarelessHost::OrderlyExit);
    const QString output = QString::fromLocal8Bit(host.readAllStandardOutput());
#ifdef __SANITIZE_ADDRESS__
    // The sanitizer's unique symbols keep a library in the process.
    if (output.endsWith(QLatin1String("library resident\n")))
        QSKIP("This build's library cannot be unloaded.");
#endif
    QCOMPARE(output, printed);
}

int main(int argc, char** argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--host") == 0)
        return CarelessHost::run(argv[2], argc, argv);

    const QApplication application(argc, argv);
    TestEditorLifetime test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_editorlifetime.moc"
