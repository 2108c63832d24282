// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentstate.h"

#include <QTest>

#include <cmath>

namespace {

const QByteArray Sound("1;50;SIN;1000000;1;0;0.5;-0.5;0;1;\"\"");

} // namespace

class TestInstrumentState : public QObject
{
    Q_OBJECT

private slots:
    void readsAChannel()
    {
        ChannelState state;
        QVERIFY(InstrumentQuery::readChannel(
            "1;9.9E+37;EFIL;2.5E+3;2.5;0.25;1.5;-1;1;9.9E+37;\"M:/a;\"\"b\"\".mpwv\"", state));
        QVERIFY(state.on);
        QVERIFY(std::isinf(state.load));
        QCOMPARE(int(state.shape), int(ChannelState::File));
        QCOMPARE(state.frequency, 2500.0);
        QCOMPARE(state.amplitude, 2.5);
        QCOMPARE(state.offset, 0.25);
        QCOMPARE(state.high, 1.5);
        QCOMPARE(state.low, -1.0);
        QVERIFY(state.burst);
        QVERIFY(std::isinf(state.cycles));
        QCOMPARE(state.file, QStringLiteral("M:/a;\"b\".mpwv"));
    }

    void readsATrigger()
    {
        TriggerState state;
        QVERIFY(InstrumentQuery::readTrigger("EXT;NEG;0.001", state));
        QCOMPARE(int(state.source), int(TriggerState::External));
        QVERIFY(state.falling);
        QCOMPARE(state.timer, 0.001);
    }

    void readsAnIdentification()
    {
        QString model;
        QVERIFY(InstrumentQuery::readIdentification("Maker,KVX70402,SN1,1.0", model));
        QCOMPARE(model, QStringLiteral("KVX70402"));
        for (const char* answer : {"", "KVX70402", "a,,b,c", "a,b,c", "a,b,c,d,e"})
            QVERIFY2(!InstrumentQuery::readIdentification(answer, model), answer);
        QCOMPARE(model, QStringLiteral("KVX70402"));
    }

    void nonsenseChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("too few") << QByteArray("1;50;SIN;1000000;1;0;0.5;-0.5;0;1");
        QTest::newRow("switch") << QByteArray(Sound).replace(0, 1, "2");
        QTest::newRow("shape") << QByteArray(Sound).replace("SIN", "RAMP");
        QTest::newRow("number") << QByteArray(Sound).replace("1000000", "1e6Hz");
        QTest::newRow("not a number") << QByteArray(Sound).replace("1000000", "9.91E+37");
        QTest::newRow("nan") << QByteArray(Sound).replace("1000000", "nan");
        QTest::newRow("name without quotes") << QByteArray(Sound).replace("\"\"", "M:/x");
        QTest::newRow("half a quote") << QByteArray(Sound).replace("\"\"", "\"");
    }

    void nonsenseChangesNothing()
    {
        QFETCH(QByteArray, answer);
        ChannelState before;
        QVERIFY(InstrumentQuery::readChannel(Sound, before));
        ChannelState state = before;
        QVERIFY(!InstrumentQuery::readChannel(answer, state));
        QVERIFY(state == before);
    }

    void nonsenseOfATrigger()
    {
        TriggerState state;
        for (const char* answer :
             {"", "MAN;POS", "BUS;POS;1", "MAN;UP;1", "MAN;POS;x", "MAN;POS;1;2"})
            QVERIFY2(!InstrumentQuery::readTrigger(answer, state), answer);
    }

    void asksAboutOneChannel()
    {
        for (int channel : {1, 2}) {
            const QByteArray query = InstrumentQuery::channel(channel);
            QCOMPARE(query.count('?'), 11);
            QCOMPARE(query.count(";:") + 1, 11);
            QVERIFY(!query.contains(channel == 1 ? '2' : '1'));
        }
    }
};

QTEST_GUILESS_MAIN(TestInstrumentState)
#include "test_instrumentstate.moc"
