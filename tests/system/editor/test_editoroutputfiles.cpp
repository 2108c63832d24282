// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "outputsession.h"

#include <QDir>
#include <QMessageBox>

#include <csignal>
#include <sys/resource.h>

using namespace Output;

namespace {

/// A host's segment that comes and goes.
class LooseSegment
{
public:
    LooseSegment()
        : m_segment(QLatin1String(KVXSharedMemory::Key))
    {
        if (!m_segment.create(64))
            qFatal("segment: %s", qPrintable(m_segment.errorString()));
        flags()->InitAll();
    }

    bool isClear() const { return !flags()->GetDiscardKeys() && !flags()->GetBlockSCPI(); }

private:
    KVXSharedMemory* flags() const
    {
        return static_cast<KVXSharedMemory*>(const_cast<void*>(m_segment.constData()));
    }

    QSharedMemory m_segment;
};

/// Lets no file grow beyond some bytes while it lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        const rlimit limit = {bytes, m_previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_previous = {};
    void (*m_previousHandler)(int);
};

} // namespace

/// Run and Stop when the host's segment or the waveform's file is missing. After each, the next
/// press works.
class TestEditorOutputFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noSegment();
    void segmentGoneInTheMiddle();
    void noFile();
    void fullDisk();
    void fileDeletedMeanwhile();
};

void TestEditorOutputFiles::cleanup()
{
    QDir(WaveformPath).removeRecursively();
    QFile::remove(WaveformPath);
}

// Nothing is shown and nothing sent; only the toggle moves.
void TestEditorOutputFiles::noSegment()
{
    OutputSession session(EditorHost::WithoutSegment);
    session.host.exec([&] {
        QVERIFY(session.server.waitForGone(2));
        session.takeSent();
        for (const bool checked : {true, false, true}) {
            const int before = LogCapture::messages().size();
            session.pressRun();
            QCOMPARE(stateOf(session.host), (State{checked, RunText, {}}));
            QCOMPARE(warningsLogged(before), QStringList());
            QCOMPARE(OutputSession::logged(QStringLiteral("checked"), before), QStringList());
            for (const QWidget* window : QApplication::topLevelWidgets())
                QVERIFY(qobject_cast<const QMessageBox*>(window) == nullptr);
        }
        QCOMPARE(session.takeSent(), QByteArrayList());
        QCOMPARE(session.server.accepted(), 2);
        QVERIFY(!waveformExists());

        const LooseSegment segment;
        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(segment.isClear());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(EditorHost::record().criticals.isEmpty());
}

void TestEditorOutputFiles::segmentGoneInTheMiddle()
{
    OutputSession session(EditorHost::WithoutSegment);
    session.host.exec([&] {
        session.takeSent();
        auto segment = std::make_unique<LooseSegment>();
        session.whenSent = [&](int, const QByteArray&) { segment.reset(); };
        session.pressRun();
        session.whenSent = nullptr;
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        QCOMPARE(OutputSession::logged(Unlocked), QStringList());

        session.pressRun();
        QCOMPARE(session.takeSent(), QByteArrayList());
        QCOMPARE(stateOf(session.host), (State{false, StopText, lockedControls()}));

        segment = std::make_unique<LooseSegment>();
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(segment->isClear());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

// A folder stands where the file belongs.
void TestEditorOutputFiles::noFile()
{
    OutputSession session;
    session.host.exec([&] {
        QVERIFY(QDir().mkpath(WaveformPath));
        session.takeSent();
        session.pressRun();
        QCOMPARE(session.takeSent(), QByteArrayList{"*IDN? \n"});
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(session.flagsAreClear());
        QCOMPARE(OutputSession::logged(QStringLiteral("error cmd")), QStringList());

        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(QFileInfo(WaveformPath).isDir());

        QVERIFY(QDir().rmdir(WaveformPath));
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QVERIFY(QFileInfo(WaveformPath).isFile());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutputFiles::fullDisk()
{
    OutputSession session;
    session.host.exec([&] {
        session.takeSent();
        {
            const FullDisk disk(100000);
            session.pressRun();
        }
        QCOMPARE(session.takeSent(), QByteArrayList{"*IDN? \n"});
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(session.flagsAreClear());

        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(!waveformExists());

        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QCOMPARE(stateOf(session.host), running());
        QVERIFY(QFileInfo(WaveformPath).size() > 2 * 131000);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestEditorOutputFiles::fileDeletedMeanwhile()
{
    OutputSession session;
    session.host.exec([&] {
        session.pressRun();
        session.takeSent();
        QVERIFY(QFile::remove(WaveformPath));
        session.pressRun();
        QCOMPARE(session.takeSent(), stopCommands());
        QCOMPARE(stateOf(session.host), stopped());
        QVERIFY(session.flagsAreClear());
        session.pressRun();
        QCOMPARE(session.takeSent(), runCommands());
        QVERIFY(waveformExists());
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

QTEST_MAIN(TestEditorOutputFiles)
#include "test_editoroutputfiles.moc"
