// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostflags.h"

#include <QSharedMemory>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <cstring>
#include <future>

namespace {

QString key()
{
    return QStringLiteral("KVX70K Shared Memory");
}

// The host's segment, filled with bytes that are not flags.
class HostSegment
{
public:
    explicit HostSegment(int size, const QByteArray& flags = QByteArray(2, 0))
        : m_segment(key())
    {
        if (!m_segment.create(size))
            qFatal("segment: %s", qPrintable(m_segment.errorString()));
        std::memset(m_segment.data(), 0xaa, static_cast<size_t>(m_segment.size()));
        std::memcpy(m_segment.data(), flags.constData(), static_cast<size_t>(flags.size()));
    }

    QByteArray bytes() const
    {
        return QByteArray(static_cast<const char*>(m_segment.constData()), m_segment.size());
    }

    bool lock() { return m_segment.lock(); }
    bool unlock() { return m_segment.unlock(); }
    void leave() { m_segment.detach(); }

private:
    QSharedMemory m_segment;
};

// A segment goes with the last one that is attached to it.
bool segmentIsGone()
{
    QSharedMemory probe(key());
    return !probe.attach() && probe.error() == QSharedMemory::NotFound;
}

QByteArray flags(bool discard, bool block)
{
    return QByteArray(1, char(discard)) + QByteArray(1, char(block));
}

} // namespace

class TestHostFlags : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void setsTheFirstTwoBytes_data();
    void setsTheFirstTwoBytes();
    void readsByte0_data();
    void readsByte0();
    void leavesTheLockFree();
    void waitsForTheLock();
    void staysAttachedToNothing();
    void withoutSegment();

private:
    QTemporaryDir m_keyFolder;
};

// The files that name a segment lie in the temporary folder, which other tests use as well.
void TestHostFlags::initTestCase()
{
    QVERIFY(m_keyFolder.isValid());
    QVERIFY(qputenv("TMPDIR", QFile::encodeName(m_keyFolder.path())));
}

void TestHostFlags::setsTheFirstTwoBytes_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("two bytes") << 2;
    QTest::newRow("a few bytes") << 64;
    QTest::newRow("pages") << 10000;
}

void TestHostFlags::setsTheFirstTwoBytes()
{
    QFETCH(int, size);

    const HostSegment host(size);
    const QByteArray rest = host.bytes().mid(2);
    for (const bool value : {true, true, false, false, true}) {
        QVERIFY(HostFlags::setBoth(value));
        QCOMPARE(host.bytes().left(2), flags(value, value));
        QVERIFY(host.bytes().mid(2) == rest);
    }
}

void TestHostFlags::readsByte0_data()
{
    QTest::addColumn<bool>("discard");
    QTest::addColumn<bool>("block");
    QTest::newRow("neither") << false << false;
    QTest::newRow("discard") << true << false;
    QTest::newRow("block") << false << true;
    QTest::newRow("both") << true << true;
}

void TestHostFlags::readsByte0()
{
    QFETCH(bool, discard);
    QFETCH(bool, block);

    const HostSegment host(64, flags(discard, block));
    const QByteArray before = host.bytes();
    bool read = !discard;
    QVERIFY(HostFlags::readDiscardKeys(read));
    QCOMPARE(read, discard);
    QVERIFY(host.bytes() == before);
}

void TestHostFlags::leavesTheLockFree()
{
    HostSegment host(64);
    bool discard = false;
    QVERIFY(HostFlags::setBoth(true));
    QVERIFY(HostFlags::readDiscardKeys(discard));
    QVERIFY(HostFlags::setBoth(false));

    auto locked = std::async(std::launch::async, [&] { return host.lock() && host.unlock(); });
    QTRY_VERIFY(locked.wait_for(std::chrono::seconds(0)) == std::future_status::ready);
    QVERIFY(locked.get());
}

void TestHostFlags::waitsForTheLock()
{
    HostSegment host(64);
    QVERIFY(host.lock());
    auto written = std::async(std::launch::async, [] { return HostFlags::setBoth(true); });
    QVERIFY(written.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout);
    QCOMPARE(host.bytes().left(2), flags(false, false));

    QVERIFY(host.unlock());
    QVERIFY(written.get());
    QCOMPARE(host.bytes().left(2), flags(true, true));
}

void TestHostFlags::staysAttachedToNothing()
{
    HostSegment host(64);
    bool discard = false;
    QVERIFY(HostFlags::setBoth(true));
    QVERIFY(HostFlags::readDiscardKeys(discard));
    QVERIFY(discard);
    host.leave();
    QVERIFY(segmentIsGone());
}

void TestHostFlags::withoutSegment()
{
    QVERIFY(segmentIsGone());
    QVERIFY(!HostFlags::setBoth(true));
    QVERIFY(!HostFlags::setBoth(false));
    for (const bool before : {true, false}) {
        bool discard = before;
        QVERIFY(!HostFlags::readDiscardKeys(discard));
        QCOMPARE(discard, before);
    }
    QVERIFY(segmentIsGone());
}

QTEST_GUILESS_MAIN(TestHostFlags)

#include "test_hostflags.moc"
