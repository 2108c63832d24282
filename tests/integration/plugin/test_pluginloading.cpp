// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostcallbacks.h"
#include "logcapture.h"
#include "pluginhost.h"
#include "scriptedserver.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QtTest>

namespace {

bool isStored(const STRUCT_SHARED_POINTERS& table)
{
    return g_singleOpenFileView == table.singleOpenFileViewFunc &&
           g_saveFileView == table.saveFileViewFunc && g_criticalMessage == table.criticalFunc &&
           g_warningMessage == table.warningFunc && g_questionMessage == table.questionFunc &&
           g_informationMessage == table.informationFunc;
}

QStringList handOver(CAppInterface* plugin, const STRUCT_SHARED_POINTERS& table)
{
    const LogCapture log;
    plugin->initCallbacks(table);
    return LogCapture::messages();
}

QString handOverLine(const char* flags)
{
    return QLatin1String("warning: MultiPulseBuilderPlugin::initCallbacks ") + QLatin1String(flags);
}

// Shows the plug-in on the whole screen; returns what was logged.
QStringList show(CAppInterface* plugin, const GetIdCallback& callback)
{
    const LogCapture log;
    const int result = plugin->show(0, 0, 800, 480, nullptr, callback);
    return LogCapture::messages() + QStringList(QString::number(result));
}

} // namespace

class TestPluginLoading : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // First, while no callback has been handed over.
    void callbacksAreNullAtFirst();

    void metaDataBeforeTheCode();
    void castsToTheInterface();
    void metaObjectCasts();
    void sameInstanceOnEveryCall();
    void instanceIsMadeAgainOnceDeleted();
    void refusesWhatIsNoPlugin_data();
    void refusesWhatIsNoPlugin();
    void foreignPluginDoesNotCast();

    void callbacksAreStored();
    void nullCallbacksKeepWhatWasThere_data();
    void nullCallbacksKeepWhatWasThere();

    void fiveArgumentShowsDoNothing();
    void showIdentifiesTheInstrument_data();
    void showIdentifiesTheInstrument();
    void showWithoutInstrumentWarnsOnce();
    void everyShowIdentifiesAnew();
    void callbackComesFirst();
    void emptyCallbackThrows();

private:
    QPluginLoader m_loader;
    CAppInterface* m_pPlugin = nullptr;
};

void TestPluginLoading::init()
{
    m_loader.setFileName(PluginHost::pluginPath());
    m_pPlugin = qobject_cast<CAppInterface*>(m_loader.instance());
    QVERIFY2(m_pPlugin != nullptr, qPrintable(m_loader.errorString()));
    PluginHost::clearWarnings();
    CAppInterface::setCurrent(nullptr);
}

void TestPluginLoading::cleanup()
{
    m_loader.unload();
}

void TestPluginLoading::callbacksAreNullAtFirst()
{
    QVERIFY(isStored({}));
}

void TestPluginLoading::metaDataBeforeTheCode()
{
    m_loader.unload();
    QPluginLoader loader(PluginHost::pluginPath());
    const QJsonObject metaData = loader.metaData();
    QVERIFY(!loader.isLoaded());
    QCOMPARE(metaData.value(QLatin1String("className")).toString(),
             QStringLiteral("MultiPulseBuilderPlugin"));
    const QString iid = metaData.value(QLatin1String("IID")).toString();
    QVERIFY2(iid.endsWith(QLatin1String(".CAppInterface")), qPrintable(iid));
    QCOMPARE(iid, QString(QLatin1String(qobject_interface_iid<CAppInterface*>())));
    QVERIFY(metaData.value(QLatin1String("MetaData")).toObject().isEmpty());
}

void TestPluginLoading::castsToTheInterface()
{
    QObject* const object = m_loader.instance();
    QCOMPARE(object->metaObject()->className(), "MultiPulseBuilderPlugin");
    QVERIFY(object->parent() == nullptr);
    QVERIFY(m_pPlugin == dynamic_cast<CAppInterface*>(object));
}

void TestPluginLoading::metaObjectCasts()
{
    QObject* const object = m_loader.instance();
    void* const asInterface = m_pPlugin;
    QCOMPARE(object->qt_metacast("MultiPulseBuilderPlugin"), static_cast<void*>(object));
    QCOMPARE(object->qt_metacast("CAppInterface"), asInterface);
    QCOMPARE(object->qt_metacast(qobject_interface_iid<CAppInterface*>()), asInterface);
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void*>(object));
    QVERIFY(object->qt_metacast("AppInterface") == nullptr);
}

void TestPluginLoading::sameInstanceOnEveryCall()
{
    QObject* const object = m_loader.instance();
    QCOMPARE(m_loader.instance(), object);
    QPluginLoader second(PluginHost::pluginPath());
    QCOMPARE(second.instance(), object);

    QLibrary library(PluginHost::pluginPath());
    const auto instance =
        reinterpret_cast<QtPluginInstanceFunction>(library.resolve("qt_plugin_instance"));
    QVERIFY(instance != nullptr);
    QCOMPARE(instance(), object);
    QCOMPARE(instance(), object);
}

void TestPluginLoading::instanceIsMadeAgainOnceDeleted()
{
    delete m_loader.instance();
    CAppInterface* const second = qobject_cast<CAppInterface*>(m_loader.instance());
    QVERIFY(second != nullptr);
    QCOMPARE(handOver(second, {}),
             QStringList(handOverLine("false false false false false false")));
}

void TestPluginLoading::refusesWhatIsNoPlugin_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("module without a plug-in") << QStringLiteral(PLAIN_MODULE);
    QTest::newRow("text") << QStringLiteral("text.so");
    QTest::newRow("empty") << QStringLiteral("empty.so");
    QTest::newRow("half a plug-in") << QStringLiteral("half.so");
    QTest::newRow("missing") << QStringLiteral("missing.so");
}

void TestPluginLoading::refusesWhatIsNoPlugin()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    QFile whole(PluginHost::pluginPath());
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const QVector<QPair<QString, QByteArray>> files = {
        {QStringLiteral("text.so"), "This is only called a shared object.\n"},
        {QStringLiteral("empty.so"), QByteArray()},
        {QStringLiteral("half.so"), bytes.left(bytes.size() / 2)}};
    for (const auto& file : files) {
        QFile target(folder.filePath(file.first));
        QVERIFY(target.open(QIODevice::WriteOnly));
        QCOMPARE(target.write(file.second), qint64(file.second.size()));
    }

    QPluginLoader loader(QDir(folder.path()).filePath(path));
    QVERIFY(loader.instance() == nullptr);
    QVERIFY(!loader.isLoaded());
    QVERIFY(!loader.errorString().isEmpty());
}

void TestPluginLoading::foreignPluginDoesNotCast()
{
    QPluginLoader loader(QStringLiteral(FOREIGN_PLUGIN));
    QVERIFY(loader.metaData().value(QLatin1String("IID")).toString() !=
            QLatin1String(qobject_interface_iid<CAppInterface*>()));
    QVERIFY2(loader.instance() != nullptr, qPrintable(loader.errorString()));
    QVERIFY(qobject_cast<CAppInterface*>(loader.instance()) == nullptr);
    loader.unload();
}

void TestPluginLoading::callbacksAreStored()
{
    for (const int set : {0, 1, 0}) {
        const QStringList log = handOver(m_pPlugin, PluginHost::callbacks(set));
        QVERIFY(isStored(PluginHost::callbacks(set)));
        QCOMPARE(log, QStringList(handOverLine("true true true true true true")));
    }
}

void TestPluginLoading::nullCallbacksKeepWhatWasThere_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<QString>("line");
    QTest::newRow("none") << 0 << handOverLine("false false false false false false");
    QTest::newRow("open") << 1 << handOverLine("true false false false false false");
    QTest::newRow("save") << 2 << handOverLine("false true false false false false");
    QTest::newRow("critical") << 4 << handOverLine("false false true false false false");
    QTest::newRow("warning") << 8 << handOverLine("false false false true false false");
    QTest::newRow("question") << 16 << handOverLine("false false false false true false");
    QTest::newRow("information") << 32 << handOverLine("false false false false false true");
    QTest::newRow("all but save") << 61 << handOverLine("true false true true true true");
}

void TestPluginLoading::nullCallbacksKeepWhatWasThere()
{
    QFETCH(int, mask);
    QFETCH(QString, line);
    const STRUCT_SHARED_POINTERS before = PluginHost::callbacks(0);
    const STRUCT_SHARED_POINTERS offered = PluginHost::callbacks(1);
    handOver(m_pPlugin, before);

    const auto pick = [mask](int bit, auto fromOffered, decltype(fromOffered) other) {
        return (mask & bit) != 0 ? fromOffered : other;
    };
    const auto mix = [&](const STRUCT_SHARED_POINTERS& rest) {
        return STRUCT_SHARED_POINTERS{
            pick(1, offered.singleOpenFileViewFunc, rest.singleOpenFileViewFunc),
            pick(2, offered.saveFileViewFunc, rest.saveFileViewFunc),
            pick(4, offered.criticalFunc, rest.criticalFunc),
            pick(8, offered.warningFunc, rest.warningFunc),
            pick(16, offered.questionFunc, rest.questionFunc),
            pick(32, offered.informationFunc, rest.informationFunc)};
    };
    QCOMPARE(handOver(m_pPlugin, mix({})), QStringList(line));
    QVERIFY(isStored(mix(before)));
}

void TestPluginLoading::fiveArgumentShowsDoNothing()
{
    handOver(m_pPlugin, PluginHost::callbacks(0));
    int calls = 0;
    const GetIdCallback count = [&calls] { ++calls; };
    const LogCapture log;
    QCOMPARE(m_pPlugin->show(1, 2, nullptr, 3, count), 0);
    QCOMPARE(m_pPlugin->show(1, 2, QStringLiteral("file"), nullptr, count), 0);
    QCOMPARE(m_pPlugin->show(1, 2, nullptr, 3, GetIdCallback()), 0);
    QCOMPARE(calls, 0);
    QVERIFY(CAppInterface::getCurrent() == nullptr);
    QVERIFY(m_loader.instance()->children().isEmpty());
    // Nothing listens, so that an attempt to identify would have been warned about.
    QVERIFY(PluginHost::warnings().isEmpty());
    QVERIFY(LogCapture::messages().isEmpty());
}

void TestPluginLoading::showIdentifiesTheInstrument_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("cells");
    const auto row = [](const char* model, const char* cells) {
        QTest::newRow(model) << QByteArray("Maker,") + model + ",0001,V1.0\n"
                             << QString(QLatin1String(cells));
    };
    row("KVX7052C", "5 0.001 2.5 -2.5 2000000000 2000000000 1048576 1048576 2 2");
    row("KVX7040C", "5 0.001 2.5 -2.5 2000000000 2000000000 1048576 1048576 2 2");
    row("KVX7030C", "10 0.001 5 -5 1000000000 1000000000 1048576 1048576 2 2");
    row("KVX7020C", "10 0.001 5 -5 1000000000 1000000000 1048576 1048576 2 2");
    row("KVX7010C", "10 0.001 5 -5 250000000 250000000 1048576 1048576 2 2");
}

void TestPluginLoading::showIdentifiesTheInstrument()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, cells);
    handOver(m_pPlugin, PluginHost::callbacks(0));
    ScriptedServer server({{{reply}, false}});
    const QStringList log = show(m_pPlugin, [] {});

    const QString model = QLatin1String(QTest::currentDataTag());
    const QString row =
        (model + QLatin1Char(' ') + cells).split(QLatin1Char(' ')).join(QStringLiteral("\", \""));
    // Then comes what the window says of itself.
    QCOMPARE(log.mid(0, 2),
             (QStringList{QStringLiteral("warning: device type \"%1\"").arg(model),
                          QStringLiteral("warning: g_currentDeviceType (\"%1\")").arg(row)}));
    QCOMPARE(log.last(), QStringLiteral("0"));
    QVERIFY(server.waitForGone(1));
    QCOMPARE(server.received(), QByteArray("*IDN?\n"));
    QVERIFY(PluginHost::warnings().isEmpty());
    QVERIFY(CAppInterface::getCurrent() == m_pPlugin);
}

void TestPluginLoading::showWithoutInstrumentWarnsOnce()
{
    handOver(m_pPlugin, PluginHost::callbacks(0));
    const QStringList log = show(m_pPlugin, [] {});
    QCOMPARE(PluginHost::warnings(),
             QStringList(
                 QStringLiteral("TcpSocket connect error! port:30000, reason:Connection refused")));
    QCOMPARE(log.last(), QStringLiteral("0"));
    QVERIFY(log.filter(QStringLiteral("warning:")).isEmpty());
    QVERIFY(CAppInterface::getCurrent() == m_pPlugin);
}

void TestPluginLoading::everyShowIdentifiesAnew()
{
    handOver(m_pPlugin, PluginHost::callbacks(0));
    ScriptedServer server({{{"Maker,KVX7052C\n"}, false}, {{"Maker,KVX7030C\n"}, false}});
    QVERIFY(show(m_pPlugin, [] {}).join(QLatin1Char(' ')).contains(QLatin1String("\"KVX7052C\"")));
    QVERIFY(show(m_pPlugin, [] {})
                .join(QLatin1Char(' '))
                .contains(QLatin1String("(\"KVX7030C\", \"10\", \"0.001\", \"5\"")));
    QVERIFY(server.waitForGone(2));
}

void TestPluginLoading::callbackComesFirst()
{
    handOver(m_pPlugin, PluginHost::callbacks(0));
    int calls = 0;
    bool untouched = false;
    show(m_pPlugin, [&] {
        ++calls;
        untouched = CAppInterface::getCurrent() == nullptr && PluginHost::warnings().isEmpty();
    });
    QCOMPARE(calls, 1);
    QVERIFY(untouched);
    QCOMPARE(PluginHost::warnings().size(), 1);
}

void TestPluginLoading::emptyCallbackThrows()
{
    handOver(m_pPlugin, PluginHost::callbacks(0));
    QVERIFY_EXCEPTION_THROWN(m_pPlugin->show(0, 0, 800, 480, nullptr, GetIdCallback()),
                             std::bad_function_call);
    QVERIFY(PluginHost::warnings().isEmpty());
    QVERIFY(CAppInterface::getCurrent() == nullptr);
}

QTEST_MAIN(TestPluginLoading)

#include "test_pluginloading.moc"
