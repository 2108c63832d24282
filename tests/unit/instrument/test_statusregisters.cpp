// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statusregisters.h"

#include <QTest>

class TestStatusRegisters : public QObject
{
    Q_OBJECT

private slots:
    void eventBit_data();
    void eventBit();
    void powerOnIsSetAtFirst();
    void eventsAreClearedByReading();
    void serviceMaskLosesMasterBit();
    void statusByte_data();
    void statusByte();
    void groupRemembersRises();
    void groupDropsBit15();
    void summaryNeedsEnable();
    void clearEventsKeepsMasks();
    void presetKeepsEvents();
};

void TestStatusRegisters::eventBit_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("bit");

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("-99") << -99 << 0;
    QTest::newRow("-100") << -100 << 32;
    QTest::newRow("-113") << -113 << 32;
    QTest::newRow("-199") << -199 << 32;
    QTest::newRow("-200") << -200 << 16;
    QTest::newRow("-222") << -222 << 16;
    QTest::newRow("-299") << -299 << 16;
    QTest::newRow("-350") << -350 << 8;
    QTest::newRow("-410") << -410 << 4;
    QTest::newRow("-500") << -500 << 0;
    QTest::newRow("device's own") << 1 << 8;
}

void TestStatusRegisters::eventBit()
{
    QFETCH(int, error);
    QFETCH(int, bit);
    QCOMPARE(int(StatusRegisters::eventBit(error)), bit);
}

void TestStatusRegisters::powerOnIsSetAtFirst()
{
    StatusRegisters registers;
    QCOMPARE(int(registers.takeEvents()), 128);
    QCOMPARE(int(registers.statusByte(false, false)), 0);
}

void TestStatusRegisters::eventsAreClearedByReading()
{
    StatusRegisters registers;
    registers.takeEvents();
    registers.raise(StatusRegisters::CommandError);
    registers.raise(StatusRegisters::ExecutionError);
    QCOMPARE(int(registers.takeEvents()), 48);
    QCOMPARE(int(registers.takeEvents()), 0);
}

void TestStatusRegisters::serviceMaskLosesMasterBit()
{
    StatusRegisters registers;
    registers.setServiceEnable(255);
    QCOMPARE(int(registers.serviceEnable()), 191);
}

void TestStatusRegisters::statusByte_data()
{
    QTest::addColumn<bool>("error");
    QTest::addColumn<bool>("message");
    QTest::addColumn<int>("events");
    QTest::addColumn<int>("eventEnable");
    QTest::addColumn<int>("serviceEnable");
    QTest::addColumn<int>("byte");

    QTest::newRow("nothing") << false << false << 0 << 255 << 255 << 0;
    QTest::newRow("error") << true << false << 0 << 0 << 0 << 4;
    QTest::newRow("message") << false << true << 0 << 0 << 0 << 16;
    QTest::newRow("event masked out") << false << false << 32 << 16 << 0 << 0;
    QTest::newRow("event") << false << false << 32 << 32 << 0 << 32;
    QTest::newRow("master of error") << true << false << 0 << 0 << 4 << 68;
    QTest::newRow("master of event") << false << false << 1 << 1 << 32 << 96;
    QTest::newRow("master of another") << true << false << 0 << 0 << 16 << 4;
    QTest::newRow("all") << true << true << 60 << 60 << 255 << 116;
}

void TestStatusRegisters::statusByte()
{
    QFETCH(bool, error);
    QFETCH(bool, message);
    QFETCH(int, events);
    QFETCH(int, eventEnable);
    QFETCH(int, serviceEnable);
    QFETCH(int, byte);
    StatusRegisters registers;
    registers.takeEvents();
    registers.raise(quint8(events));
    registers.setEventEnable(quint8(eventEnable));
    registers.setServiceEnable(quint8(serviceEnable));
    QCOMPARE(int(registers.statusByte(error, message)), byte);
    QCOMPARE(int(registers.takeEvents()), events);
}

void TestStatusRegisters::groupRemembersRises()
{
    StatusGroup group;
    group.setCondition(0x20);
    group.setCondition(0x20);
    QCOMPARE(int(group.takeEvents()), 0x20);
    group.setCondition(0x20);
    QCOMPARE(int(group.takeEvents()), 0);
    group.setCondition(0x01);
    group.setCondition(0);
    QCOMPARE(int(group.condition()), 0);
    QCOMPARE(int(group.takeEvents()), 0x01);
}

void TestStatusRegisters::groupDropsBit15()
{
    StatusGroup group;
    group.setCondition(0xffff);
    group.setEnable(0xffff);
    QCOMPARE(int(group.condition()), 0x7fff);
    QCOMPARE(int(group.enable()), 0x7fff);
    QCOMPARE(int(group.takeEvents()), 0x7fff);
}

void TestStatusRegisters::summaryNeedsEnable()
{
    StatusRegisters registers;
    registers.operation().setCondition(0x20);
    registers.questionable().setCondition(0x01);
    QCOMPARE(int(registers.statusByte(false, false)), 0);
    registers.operation().setEnable(0x20);
    QCOMPARE(int(registers.statusByte(false, false)), 128);
    registers.questionable().setEnable(0x03);
    QCOMPARE(int(registers.statusByte(false, false)), 136);
    registers.operation().takeEvents();
    QCOMPARE(int(registers.statusByte(false, false)), 8);
}

void TestStatusRegisters::clearEventsKeepsMasks()
{
    StatusRegisters registers;
    registers.setEventEnable(12);
    registers.operation().setEnable(34);
    registers.operation().setCondition(34);
    registers.questionable().setCondition(1);
    registers.clearEvents();
    QCOMPARE(int(registers.takeEvents()), 0);
    QCOMPARE(int(registers.operation().takeEvents()), 0);
    QCOMPARE(int(registers.questionable().takeEvents()), 0);
    QCOMPARE(int(registers.eventEnable()), 12);
    QCOMPARE(int(registers.operation().enable()), 34);
    QCOMPARE(int(registers.operation().condition()), 34);
}

void TestStatusRegisters::presetKeepsEvents()
{
    StatusRegisters registers;
    registers.setEventEnable(12);
    registers.operation().setEnable(34);
    registers.questionable().setEnable(56);
    registers.operation().setCondition(34);
    registers.preset();
    QCOMPARE(int(registers.operation().enable()), 0);
    QCOMPARE(int(registers.questionable().enable()), 0);
    QCOMPARE(int(registers.operation().takeEvents()), 34);
    QCOMPARE(int(registers.eventEnable()), 12);
    QCOMPARE(int(registers.takeEvents()), 128);
}

QTEST_APPLESS_MAIN(TestStatusRegisters)
#include "test_statusregisters.moc"
