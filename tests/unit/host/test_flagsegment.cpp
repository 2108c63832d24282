// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "flagsegment.h"

#include "hostinterface/kvxsharedmemory.h"

#include <QSharedMemory>
#include <QTest>

#include <memory>

namespace {

/// What a plug-in does with the segment.
class Attached
{
public:
    Attached()
        : m_segment(QLatin1String(KVXSharedMemory::Key))
    {
        m_segment.attach();
    }

    bool isThere() const { return m_segment.isAttached(); }
    KVXSharedMemory* flags() { return static_cast<KVXSharedMemory*>(m_segment.data()); }

private:
    QSharedMemory m_segment;
};

} // namespace

class TestFlagSegment : public QObject
{
    Q_OBJECT

private slots:
    void isThereWhileItIsOpen()
    {
        {
            FlagSegment segment;
            QVERIFY(!segment.discardsKeys());
            QVERIFY(!segment.blocksCommands());
            QVERIFY2(segment.open(), qPrintable(segment.errorString()));
            QVERIFY(Attached().isThere());
            QVERIFY(!segment.discardsKeys());
            QVERIFY(!segment.blocksCommands());
        }
        QVERIFY(!Attached().isThere());
    }

    void tellsWhatAPluginSets()
    {
        FlagSegment segment;
        QVERIFY(segment.open());
        Attached plugin;
        plugin.flags()->SetDiscardKeys(true);
        QVERIFY(segment.discardsKeys());
        QVERIFY(!segment.blocksCommands());
        plugin.flags()->SetDiscardKeys(false);
        plugin.flags()->SetBlockSCPI(true);
        QVERIFY(!segment.discardsKeys());
        QVERIFY(segment.blocksCommands());
    }

    void takesOverWhatAKilledHostHasLeft()
    {
        QSharedMemory left(QLatin1String(KVXSharedMemory::Key));
        QVERIFY(left.create(64));
        auto* flags = static_cast<KVXSharedMemory*>(left.data());
        flags->SetDiscardKeys(true);
        flags->SetBlockSCPI(true);
        FlagSegment segment;
        QVERIFY2(segment.open(), qPrintable(segment.errorString()));
        QVERIFY(!segment.discardsKeys());
        QVERIFY(!segment.blocksCommands());
        QVERIFY(!flags->GetDiscardKeys());
    }

    void leavesARunningHostsAlone()
    {
        FlagSegment running;
        QVERIFY(running.open());
        Attached plugin;
        plugin.flags()->SetDiscardKeys(true);
        plugin.flags()->SetBlockSCPI(true);
        FlagSegment second;
        QVERIFY(!second.open());
        QCOMPARE(second.errorString(), QStringLiteral("a running host has it"));
        QVERIFY(!second.discardsKeys());
        QVERIFY(running.discardsKeys());
        QVERIFY(running.blocksCommands());
    }

    void isOpenedOnceTheOtherHostHasGone()
    {
        auto first = std::make_unique<FlagSegment>();
        QVERIFY(first->open());
        const Attached plugin;
        FlagSegment second;
        QVERIFY(!second.open());
        first.reset();
        QVERIFY2(second.open(), qPrintable(second.errorString()));
    }
};

QTEST_GUILESS_MAIN(TestFlagSegment)
#include "test_flagsegment.moc"
