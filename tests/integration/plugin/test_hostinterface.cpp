// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostinterface/appinterface.h"

#include "hostcallbacks.h"
#include "logcapture.h"
#include "pluginhost.h"

#include <QPluginLoader>
#include <QtTest>

#include <cstddef>
#include <new>
#include <type_traits>

// A host built elsewhere calls by slot number and fills the table by field order.
static_assert(sizeof(STRUCT_SHARED_POINTERS) == 6 * sizeof(void*), "callback table");
static_assert(std::is_trivial<STRUCT_SHARED_POINTERS>::value, "callback table");
static_assert(std::is_standard_layout<STRUCT_SHARED_POINTERS>::value, "callback table");
static_assert(offsetof(STRUCT_SHARED_POINTERS, singleOpenFileViewFunc) == 0, "field 1");
static_assert(offsetof(STRUCT_SHARED_POINTERS, saveFileViewFunc) == sizeof(void*), "field 2");
static_assert(offsetof(STRUCT_SHARED_POINTERS, criticalFunc) == 2 * sizeof(void*), "field 3");
static_assert(offsetof(STRUCT_SHARED_POINTERS, warningFunc) == 3 * sizeof(void*), "field 4");
static_assert(offsetof(STRUCT_SHARED_POINTERS, questionFunc) == 4 * sizeof(void*), "field 5");
static_assert(offsetof(STRUCT_SHARED_POINTERS, informationFunc) == 5 * sizeof(void*), "field 6");
static_assert(std::is_same<GetIdCallback, std::function<void()>>::value, "callback type");
static_assert(
    std::is_same<decltype(STRUCT_SHARED_POINTERS::singleOpenFileViewFunc),
                 int (*)(QWidget*, QStringList, QString&, QString, const char*, int)>::value,
    "field 1");
static_assert(std::is_same<decltype(STRUCT_SHARED_POINTERS::saveFileViewFunc),
                           int (*)(QWidget*, QStringList, QString&, QString, const char*, int,
                                   QString)>::value,
              "field 2");
static_assert(std::is_same<decltype(STRUCT_SHARED_POINTERS::criticalFunc), int (*)(QString)>::value,
              "fields 3 to 6");
// The interface is its table of operations and nothing else.
static_assert(sizeof(CAppInterface) == sizeof(void*), "no data members");
static_assert(std::has_virtual_destructor<CAppInterface>::value, "slots 0 and 1");
static_assert(std::is_abstract<CAppInterface>::value, "pure operations");

namespace {

// Slots of the operations: a virtual destructor takes two, on the board as on the desktop.
enum Slot {
    CompleteDestructor,
    DeletingDestructor,
    InitCallbacks,
    ShowFlag,
    ShowFile,
    ShowSize,
    Exec,
    Close,
    GetWindow
};

using DestroySlot = void (*)(CAppInterface*);
using InitCallbacksSlot = void (*)(CAppInterface*, STRUCT_SHARED_POINTERS);
using ShowFlagSlot = int (*)(CAppInterface*, int, int, QWidget*, int, GetIdCallback);
using ShowFileSlot = int (*)(CAppInterface*, int, int, QString, QWidget*, GetIdCallback);
using ShowSizeSlot = int (*)(CAppInterface*, int, int, int, int, QWidget*, GetIdCallback);
using PlainSlot = int (*)(CAppInterface*);
using GetWindowSlot = QWidget* (*)(CAppInterface*);

// What stands in a slot of the object's table, found as a host's machine code finds it.
template<typename Function>
Function slotOf(CAppInterface* object, Slot slot)
{
    void* const* const table = *reinterpret_cast<void* const* const*>(object);
    return reinterpret_cast<Function>(table[slot]);
}

QStringList g_calls;

QWidget* widgetAt(quintptr address)
{
    return reinterpret_cast<QWidget*>(address);
}

QString hex(const void* pointer)
{
    return QString::number(reinterpret_cast<quintptr>(pointer), 16);
}

// Notes which of its operations ran and with what.
class Probe : public CAppInterface
{
public:
    ~Probe() override { g_calls.append(QStringLiteral("destroyed")); }

    void initCallbacks(STRUCT_SHARED_POINTERS table) override
    {
        g_calls.append(QStringLiteral("initCallbacks %1").arg(table.questionFunc(QString())));
    }
    int show(int x, int y, QWidget* parent, int flag, GetIdCallback idcallback) override
    {
        idcallback();
        g_calls.append(QStringLiteral("flag %1 %2 %3 %4").arg(x).arg(y).arg(hex(parent)).arg(flag));
        return 31;
    }
    int show(int x, int y, QString filePath, QWidget* parent, GetIdCallback idcallback) override
    {
        idcallback();
        g_calls.append(QStringLiteral("file %1 %2 %3 %4").arg(x).arg(y).arg(filePath, hex(parent)));
        return 32;
    }
    int show(int x, int y, int width, int height, QWidget* parent,
             GetIdCallback idcallback) override
    {
        idcallback();
        g_calls.append(QStringLiteral("size %1 %2 %3 %4 %5")
                           .arg(x)
                           .arg(y)
                           .arg(width)
                           .arg(height)
                           .arg(hex(parent)));
        return 33;
    }
    int exec() override
    {
        g_calls.append(QStringLiteral("exec"));
        return 34;
    }
    int close() override
    {
        g_calls.append(QStringLiteral("close"));
        return 35;
    }
    QWidget* getWindow() override
    {
        g_calls.append(QStringLiteral("getWindow"));
        return widgetAt(0x40);
    }
};

// Leaves every operation that has one at its default.
class Bare : public CAppInterface
{
public:
    void initCallbacks(STRUCT_SHARED_POINTERS) override {}
    QWidget* getWindow() override { return nullptr; }
};

GetIdCallback noteCallback()
{
    return [] { g_calls.append(QStringLiteral("callback")); };
}

} // namespace

class TestHostInterface : public QObject
{
    Q_OBJECT

private slots:
    void init() { g_calls.clear(); }

    void probeAnswersBySlot();
    void destructorSlots();
    void defaultBodies();
    void currentPlugin();
    void pluginIsAnObjectFirst();
    void pluginAnswersBySlot();
};

void TestHostInterface::probeAnswersBySlot()
{
    Probe probe;
    QWidget* const parent = widgetAt(0x1234);
    slotOf<InitCallbacksSlot>(&probe, InitCallbacks)(&probe, PluginHost::callbacks(0));
    QCOMPARE(slotOf<ShowFlagSlot>(&probe, ShowFlag)(&probe, 1, 2, parent, 3, noteCallback()), 31);
    QCOMPARE(slotOf<ShowFileSlot>(&probe, ShowFile)(&probe, 4, 5, QStringLiteral("path"), parent,
                                                    noteCallback()),
             32);
    QCOMPARE(slotOf<ShowSizeSlot>(&probe, ShowSize)(&probe, 6, 7, 8, 9, parent, noteCallback()),
             33);
    QCOMPARE(slotOf<PlainSlot>(&probe, Exec)(&probe), 34);
    QCOMPARE(slotOf<PlainSlot>(&probe, Close)(&probe), 35);
    QCOMPARE(slotOf<GetWindowSlot>(&probe, GetWindow)(&probe), widgetAt(0x40));
    QCOMPARE(g_calls.join(QLatin1Char('\n')), QStringLiteral("initCallbacks 5\n"
                                                             "callback\nflag 1 2 1234 3\n"
                                                             "callback\nfile 4 5 path 1234\n"
                                                             "callback\nsize 6 7 8 9 1234\n"
                                                             "exec\nclose\ngetWindow"));
}

void TestHostInterface::destructorSlots()
{
    alignas(Probe) char room[sizeof(Probe)];
    CAppInterface* const placed = new (room) Probe;
    slotOf<DestroySlot>(placed, CompleteDestructor)(placed);
    QCOMPARE(g_calls, QStringList(QStringLiteral("destroyed")));

    // The second one also frees the memory, which the leak check of an instrumented build sees.
    CAppInterface* const allocated = new Probe;
    slotOf<DestroySlot>(allocated, DeletingDestructor)(allocated);
    QCOMPARE(g_calls.size(), 2);
}

void TestHostInterface::defaultBodies()
{
    Bare bare;
    CAppInterface& interface = bare;
    QCOMPARE(interface.show(1, 2, nullptr, 3, noteCallback()), 0);
    QCOMPARE(interface.show(1, 2, QStringLiteral("path"), nullptr, noteCallback()), 0);
    QCOMPARE(interface.show(1, 2, 3, 4, nullptr, noteCallback()), 0);
    QCOMPARE(interface.exec(), 0);
    QCOMPARE(interface.close(), 0);
    QVERIFY(g_calls.isEmpty());
}

void TestHostInterface::currentPlugin()
{
    Bare bare;
    CAppInterface::setCurrent(&bare);
    QVERIFY(CAppInterface::current == &bare);
    QVERIFY(CAppInterface::getCurrent() == &bare);
    CAppInterface::setCurrent(nullptr);
    QVERIFY(CAppInterface::getCurrent() == nullptr);
}

void TestHostInterface::pluginIsAnObjectFirst()
{
    QPluginLoader loader(PluginHost::pluginPath());
    QObject* const object = loader.instance();
    QVERIFY2(object != nullptr, qPrintable(loader.errorString()));
    auto* const plugin = qobject_cast<CAppInterface*>(object);
    QVERIFY(plugin != nullptr);
    QVERIFY(dynamic_cast<void*>(plugin) == static_cast<void*>(object));
    QCOMPARE(reinterpret_cast<char*>(plugin) - reinterpret_cast<char*>(object),
             std::ptrdiff_t(sizeof(QObject)));
    loader.unload();
}

void TestHostInterface::pluginAnswersBySlot()
{
    QPluginLoader loader(PluginHost::pluginPath());
    auto* const plugin = qobject_cast<CAppInterface*>(loader.instance());
    QVERIFY2(plugin != nullptr, qPrintable(loader.errorString()));
    const LogCapture log;
    slotOf<InitCallbacksSlot>(plugin, InitCallbacks)(plugin, PluginHost::callbacks(1));
    QVERIFY(g_informationMessage == PluginHost::callbacks(1).informationFunc);
    QCOMPARE(slotOf<ShowFlagSlot>(plugin, ShowFlag)(plugin, 1, 2, nullptr, 3, noteCallback()), 0);
    QCOMPARE(
        slotOf<ShowFileSlot>(plugin, ShowFile)(plugin, 1, 2, QString(), nullptr, noteCallback()),
        0);
    QVERIFY(g_calls.isEmpty());
    QVERIFY(PluginHost::warnings().isEmpty());

    QCOMPARE(
        slotOf<ShowSizeSlot>(plugin, ShowSize)(plugin, 0, 0, 800, 480, nullptr, noteCallback()), 0);
    QCOMPARE(g_calls, QStringList(QStringLiteral("callback")));
    QCOMPARE(PluginHost::warnings().size(), 1);
    QVERIFY(CAppInterface::getCurrent() == plugin);
    loader.unload();
}

QTEST_MAIN(TestHostInterface)

#include "test_hostinterface.moc"
