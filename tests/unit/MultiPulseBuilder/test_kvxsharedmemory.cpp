// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostinterface/kvxsharedmemory.h"

#include <QtTest>

namespace {

// Flags on top of memory that holds something else.
struct Memory
{
    Memory() { bytes.fill(char(0x5a), 8); }

    KVXSharedMemory* flags() { return reinterpret_cast<KVXSharedMemory*>(bytes.data()); }

    QByteArray bytes;
};

QByteArray bytes(const char* hex)
{
    return QByteArray::fromHex(hex);
}

} // namespace

class TestKVXSharedMemory : public QObject
{
    Q_OBJECT

private slots:
    void key();
    void discardKeysIsByte0();
    void blockScpiIsByte1();
    void initClearsBoth();
    void readsItsOwnByte_data();
    void readsItsOwnByte();
};

void TestKVXSharedMemory::key()
{
    QCOMPARE(QByteArray(KVXSharedMemory::Key), QByteArray("KVX70K Shared Memory"));
}

void TestKVXSharedMemory::discardKeysIsByte0()
{
    Memory memory;
    memory.flags()->SetDiscardKeys(true);
    QCOMPARE(memory.bytes, bytes("015a5a5a5a5a5a5a"));
    memory.flags()->SetDiscardKeys(false);
    QCOMPARE(memory.bytes, bytes("005a5a5a5a5a5a5a"));
}

void TestKVXSharedMemory::blockScpiIsByte1()
{
    Memory memory;
    memory.flags()->SetBlockSCPI(true);
    QCOMPARE(memory.bytes, bytes("5a015a5a5a5a5a5a"));
    memory.flags()->SetBlockSCPI(false);
    QCOMPARE(memory.bytes, bytes("5a005a5a5a5a5a5a"));
}

void TestKVXSharedMemory::initClearsBoth()
{
    Memory memory;
    memory.flags()->InitAll();
    QCOMPARE(memory.bytes, bytes("00005a5a5a5a5a5a"));
}

void TestKVXSharedMemory::readsItsOwnByte_data()
{
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<bool>("discard");
    QTest::addColumn<bool>("block");
    QTest::newRow("neither") << bytes("0000") << false << false;
    QTest::newRow("discard") << bytes("0100") << true << false;
    QTest::newRow("block") << bytes("0001") << false << true;
    QTest::newRow("both") << bytes("0101") << true << true;
}

void TestKVXSharedMemory::readsItsOwnByte()
{
    QFETCH(QByteArray, host);
    Memory memory;
    memory.bytes.replace(0, 2, host);
    QTEST(memory.flags()->GetDiscardKeys(), "discard");
    QTEST(memory.flags()->GetBlockSCPI(), "block");
}

QTEST_APPLESS_MAIN(TestKVXSharedMemory)

#include "test_kvxsharedmemory.moc"
