// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"

#include <QDir>

#include <malloc.h>

using namespace Output;

namespace {

/// How often: MPB_ROUNDS and MPB_LOADS ask for more than a regular test has time for.
int times(const char* variable, int usual)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : usual;
}

int entries(const char* folder)
{
    return QDir(QLatin1String(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

/// What a process holds.
struct Holdings
{
    int threads = entries("/proc/self/task");
    int files = entries("/proc/self/fd");
    size_t heap = mallinfo2().uordblks; ///< bytes; 0 where another allocator stands in
};

/// Lets nothing be said: what is logged would be kept, and grow.
class Quiet
{
public:
    Quiet()
        : m_previous(qInstallMessageHandler(&Quiet::ignore))
    {}
    ~Quiet() { qInstallMessageHandler(m_previous); }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

private:
    static void ignore(QtMsgType, const QMessageLogContext&, const QString&) {}

    QtMessageHandler m_previous;
};

/// Fonts, styles and the like come in the first rounds.
const int WarmUp = 5;

/// The plug-in keeps the rows of its device table anew at each show until it is unloaded: five
/// lists of eleven short texts, and their places.
const double BytesPerShow = 4096;

/// Of a plug-in that has been unloaded, the libraries' registries may keep a little.
const double BytesPerLoad = 8192;

void answerQueries(ScriptedServer& server)
{
    for (const char* query : {"*IDN?\n", "*IDN? \n"})
        server.answer(query, "Maker,KVX7010C,0001,V1.0\n");
}

void showAndRun(EditorHost& host)
{
    host.show();
    host.exec([&host] {
        FrontPanel::tap(host.button(EditorHost::Run));
        QCOMPARE(stateOf(host), running());
        FrontPanel::tap(host.button(EditorHost::Run));
        QCOMPARE(stateOf(host), stopped());
        FrontPanel::tap(host.button(EditorHost::Close));
        QVERIFY(!host.editor()->isVisible());
    });
    QVERIFY(!host.discardKeys() && !host.blockScpi());
}

void compare(const Holdings& before, const Holdings& after, int rounds, double bytesPerRound)
{
    QCOMPARE(after.threads, before.threads);
    QCOMPARE(after.files, before.files);
    const double growth = (double(after.heap) - double(before.heap)) / rounds;
    qInfo("%d rounds: %g bytes a round", rounds, growth);
    QVERIFY2(growth < bytesPerRound, qPrintable(QString::number(growth)));
}

} // namespace

/// The same again and again, in one process, holds no more than once.
class TestEditorRounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shownAndRun();
    void loadedAndUnloaded();
};

void TestEditorRounds::shownAndRun()
{
    const int rounds = times("MPB_ROUNDS", 40);
    Holdings before;
    Holdings after;
    {
        const Quiet quiet;
        EditorHost host;
        for (int round = -WarmUp; round < rounds && !QTest::currentTestFailed(); ++round) {
            if (round == 0)
                before = Holdings();
            // Anew each time, as it keeps what it has received.
            ScriptedServer server({});
            answerQueries(server);
            showAndRun(host);
        }
        after = Holdings();
        QVERIFY(EditorHost::record().warnings.isEmpty());
    }
    compare(before, after, rounds, BytesPerShow);
}

void TestEditorRounds::loadedAndUnloaded()
{
    const int rounds = times("MPB_LOADS", 20);
    Holdings before;
    Holdings after;
    {
        const Quiet quiet;
        for (int round = -WarmUp; round < rounds && !QTest::currentTestFailed(); ++round) {
            if (round == 0)
                before = Holdings();
            ScriptedServer server({});
            answerQueries(server);
            EditorHost host;
            showAndRun(host);
        }
        after = Holdings();
    }
    compare(before, after, rounds, BytesPerLoad);
}

QTEST_MAIN(TestEditorRounds)
#include "test_editorrounds.moc"
