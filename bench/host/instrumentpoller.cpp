// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentpoller.h"

#include "instrumentclient.h"

namespace {

const int RoundMs = 500;
const int AnswerMs = 2000;

} // namespace

InstrumentPoller::InstrumentPoller(quint16 port, std::function<bool()> isBlocked)
    : m_nPort(port)
    , m_isBlocked(std::move(isBlocked))
{
    qRegisterMetaType<InstrumentState>();
}

InstrumentPoller::~InstrumentPoller() = default;

void InstrumentPoller::start()
{
    m_pClient = new InstrumentClient(m_nPort, this);
    connect(m_pClient, &InstrumentClient::connected, this, &InstrumentPoller::poll);
    connect(m_pClient, &InstrumentClient::gone, this, &InstrumentPoller::handleGone);
    m_pTimer = new QTimer(this);
    connect(m_pTimer, &QTimer::timeout, this, &InstrumentPoller::poll);
    publish(InstrumentState());
    m_pClient->start();
    m_pTimer->start(RoundMs);
}

void InstrumentPoller::stop()
{
    delete m_pTimer;
    m_pTimer = nullptr;
    delete m_pClient;
    m_pClient = nullptr;
    m_nStep = -1;
}

void InstrumentPoller::poll()
{
    if (m_nStep >= 0 || !m_pClient->isConnected())
        return;
    m_nStep = m_strModel.isEmpty() ? 0 : 1;
    m_round = InstrumentState();
    askNext();
}

void InstrumentPoller::askNext()
{
    using namespace InstrumentQuery;
    switch (m_nStep) {
    case 0:
        return ask(Identification, [this](const QByteArray& answer) {
            return readIdentification(answer, m_strModel);
        });
    case 1:
    case 2:
        return ask(channel(m_nStep), [this](const QByteArray& answer) {
            return readChannel(answer, m_round.channels.at(std::size_t(m_nStep - 1)));
        });
    case 3:
        return ask(Trigger, [this](const QByteArray& answer) {
            return readTrigger(answer, m_round.trigger);
        });
    default:
        return endRound(InstrumentState::Answering, QString());
    }
}

// A round that is held back is forgotten: what it has heard may be another by the time it goes on.
void InstrumentPoller::ask(const QByteArray& query, const Reader& reader)
{
    if (m_isBlocked()) {
        m_nStep = -1;
        return;
    }
    const auto handle = [this, query, reader](const InstrumentReply& reply) {
        if (m_nStep < 0)
            return;
        if (!reply.ok)
            return endRound(InstrumentState::Silent, reply.reason);
        if (!reader(reply.data))
            return endRound(InstrumentState::Silent,
                            QStringLiteral("%1 -> %2")
                                .arg(QString::fromLatin1(query.left(20)),
                                     QString::fromLatin1(reply.data.left(20))));
        ++m_nStep;
        askNext();
    };
    m_pClient->ask(query, handle, AnswerMs);
}

void InstrumentPoller::endRound(InstrumentState::Link link, const QString& reason)
{
    m_nStep = -1;
    InstrumentState state = link == InstrumentState::Answering ? m_round : m_state;
    state.link = link;
    state.reason = reason;
    state.model = m_strModel;
    publish(state);
}

void InstrumentPoller::handleGone(const QString& reason)
{
    m_strModel.clear();
    endRound(InstrumentState::Silent, reason);
}

void InstrumentPoller::trigger()
{
    command("*TRG\n");
}

void InstrumentPoller::setOutput(int channel, bool on)
{
    command(":OUTP" + QByteArray::number(channel) + (on ? " ON\n" : " OFF\n"));
}

void InstrumentPoller::command(const QByteArray& line)
{
    if (m_pClient == nullptr || m_isBlocked())
        return;
    m_pClient->send(line);
    poll();
}

void InstrumentPoller::publish(const InstrumentState& state)
{
    if (m_bPublished && state == m_state)
        return;
    m_bPublished = true;
    m_state = state;
    Q_EMIT stateChanged(state);
}
