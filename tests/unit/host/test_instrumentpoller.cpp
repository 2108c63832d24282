// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentpoller.h"
#include "instrumentwatch.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <atomic>

namespace {

/// An instrument that answers each query as it is told, and keeps what it was sent.
class Instrument : public QTcpServer
{
public:
    Instrument()
    {
        answers = {{InstrumentQuery::Identification, "Maker,KVX70402,SN1,1.0"},
                   {InstrumentQuery::channel(1), "0;50;SIN;1000000;1;0;0.5;-0.5;0;1;\"\""},
                   {InstrumentQuery::channel(2), "0;50;SIN;2000000;1;0;0.5;-0.5;0;1;\"\""},
                   {InstrumentQuery::Trigger, "MAN;POS;0.001"}};
        connect(this, &QTcpServer::newConnection, this, [this] { serve(nextPendingConnection()); });
        if (!listen(QHostAddress::LocalHost))
            qFatal("no port");
    }

    void hangUp()
    {
        for (QTcpSocket* client : findChildren<QTcpSocket*>())
            client->abort();
    }

    QMap<QByteArray, QByteArray> answers;
    QList<QByteArray> lines;

private:
    void serve(QTcpSocket* client)
    {
        connect(client, &QTcpSocket::readyRead, client, [this, client] {
            while (client->canReadLine()) {
                const QByteArray line = client->readLine().trimmed();
                lines.append(line);
                if (answers.contains(line))
                    client->write(answers.value(line) + '\n');
            }
        });
    }
};

} // namespace

class TestInstrumentPoller : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_instrument = std::make_unique<Instrument>();
        m_bBlocked = false;
        m_poller = std::make_unique<InstrumentPoller>(m_instrument->serverPort(), [this] {
            ++m_nLooks;
            return m_bBlocked.load();
        });
        connect(m_poller.get(), &InstrumentPoller::stateChanged, this,
                [this](const InstrumentState& state) { m_states.append(state); });
        m_states.clear();
        m_poller->start();
    }

    void cleanup()
    {
        m_poller->stop();
        m_poller.reset();
    }

    void tellsWhatTheInstrumentIsSetTo()
    {
        QCOMPARE(int(m_states.first().link), int(InstrumentState::Connecting));
        QTRY_COMPARE(int(m_states.last().link), int(InstrumentState::Answering));
        QCOMPARE(m_states.last().model, QStringLiteral("KVX70402"));
        QCOMPARE(m_states.last().channels[0].frequency, 1e6);
        QCOMPARE(m_states.last().channels[1].frequency, 2e6);
        QCOMPARE(m_states.last().trigger.timer, 0.001);
    }

    void tellsOnlyWhatIsDifferent()
    {
        QTRY_COMPARE(m_states.size(), 2);
        waitForRounds(2);
        QCOMPARE(m_states.size(), 2);
        m_instrument->answers[InstrumentQuery::Trigger] = "EXT;NEG;0.001";
        QTRY_COMPARE(m_states.size(), 3);
        QVERIFY(m_states.last().trigger.falling);
    }

    void asksForTheNameOncePerConnection()
    {
        waitForRounds(2);
        QCOMPARE(m_instrument->lines.count(InstrumentQuery::Identification), 1);
        m_instrument->hangUp();
        QTRY_COMPARE(int(m_states.last().link), int(InstrumentState::Silent));
        QTRY_COMPARE_WITH_TIMEOUT(int(m_states.last().link), int(InstrumentState::Answering),
                                  20000);
        QCOMPARE(m_instrument->lines.count(InstrumentQuery::Identification), 2);
    }

    void sendsNothingWhileItIsBlocked()
    {
        waitForRounds(1);
        m_bBlocked = true;
        settle();
        const int sent = m_instrument->lines.size();
        m_poller->trigger();
        m_poller->setOutput(1, true);
        const int looks = m_nLooks;
        QTRY_VERIFY(m_nLooks >= looks + 3);
        QCOMPARE(m_instrument->lines.size(), sent);
        m_bBlocked = false;
        waitForRounds(1);
        // What was held back is not made up for.
        QVERIFY(!m_instrument->lines.contains("*TRG"));
        QVERIFY(!m_instrument->lines.contains(":OUTP1 ON"));
    }

    // The flag may come up between two messages of a round.
    void looksBeforeEveryMessage()
    {
        m_instrument->answers.remove(InstrumentQuery::channel(2));
        QTRY_VERIFY(m_instrument->lines.contains(InstrumentQuery::channel(2)));
        m_bBlocked = true;
        const QByteArray answer = "0;50;SIN;2000000;1;0;0.5;-0.5;0;1;\"\"";
        for (QTcpSocket* client : m_instrument->findChildren<QTcpSocket*>())
            client->write(answer + '\n');
        m_instrument->answers[InstrumentQuery::channel(2)] = answer;
        settle();
        QVERIFY(!m_instrument->lines.contains(InstrumentQuery::Trigger));
        m_bBlocked = false;
        QTRY_COMPARE(int(m_states.last().link), int(InstrumentState::Answering));
    }

    void sendsCommands()
    {
        waitForRounds(1);
        m_poller->trigger();
        m_poller->setOutput(1, true);
        m_poller->setOutput(2, false);
        QTRY_VERIFY(m_instrument->lines.contains(":OUTP2 OFF"));
        QVERIFY(m_instrument->lines.indexOf("*TRG") < m_instrument->lines.indexOf(":OUTP1 ON"));
    }

    void nonsenseIsToldAndOvercome()
    {
        m_instrument->answers[InstrumentQuery::channel(1)] = "what?";
        QTRY_COMPARE(int(m_states.last().link), int(InstrumentState::Silent));
        QVERIFY(m_states.last().reason.contains(QLatin1String("what?")));
        m_instrument->answers[InstrumentQuery::channel(1)] =
            "1;50;SIN;1000000;1;0;0.5;-0.5;0;1;\"\"";
        QTRY_COMPARE(int(m_states.last().link), int(InstrumentState::Answering));
        QVERIFY(m_states.last().channels[0].on);
    }

    void silenceIsToldAndOvercome()
    {
        waitForRounds(1);
        const QByteArray answer = m_instrument->answers.take(InstrumentQuery::Trigger);
        QTRY_COMPARE_WITH_TIMEOUT(int(m_states.last().link), int(InstrumentState::Silent), 20000);
        QVERIFY(!m_states.last().reason.isEmpty());
        m_instrument->answers[InstrumentQuery::Trigger] = answer;
        QTRY_COMPARE_WITH_TIMEOUT(int(m_states.last().link), int(InstrumentState::Answering),
                                  20000);
    }

    void worksInItsThread()
    {
        InstrumentWatch watch(m_instrument->serverPort(), [] { return false; });
        QSignalSpy states(watch.poller(), &InstrumentPoller::stateChanged);
        watch.start();
        QTRY_VERIFY(states.size() >= 2);
        watch.trigger();
        watch.setOutput(2, true);
        QTRY_VERIFY(m_instrument->lines.contains(":OUTP2 ON"));
        QVERIFY(m_instrument->lines.contains("*TRG"));
        QVERIFY(watch.poller()->thread() != thread());
    }

private:
    void waitForRounds(int count)
    {
        const int before = m_instrument->lines.count(InstrumentQuery::Trigger);
        QTRY_VERIFY(m_instrument->lines.count(InstrumentQuery::Trigger) >= before + count);
    }

    // What is under way arrives.
    static void settle() { QTest::qWait(100); }

    std::unique_ptr<Instrument> m_instrument;
    std::atomic<bool> m_bBlocked{false};
    std::atomic<int> m_nLooks{0}; // at the flag
    std::unique_ptr<InstrumentPoller> m_poller;
    QVector<InstrumentState> m_states;
};

QTEST_GUILESS_MAIN(TestInstrumentPoller)
#include "test_instrumentpoller.moc"
