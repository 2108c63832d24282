// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentclient.h"
#include "outputtrace.h"

/// Looks at channel 1 of the instrument twice a second, as long as there is a connection: whether
/// its output is on, and what it put out in its last burst. The samples are fetched only when a
/// burst has begun since.
class ChannelWatch : public QObject
{
    Q_OBJECT

public:
    static const int PeriodMs = 500;

    explicit ChannelWatch(quint16 port, QObject* parent = nullptr);

    void start() { m_client.start(); }

    /// Whether the instrument has told its state since the last connection was made.
    bool isConnected() const { return m_bTold; }
    QString goneReason() const { return m_client.goneReason(); }

    /// What the instrument calls itself, "KVX70102"; empty before it has.
    QString model() const { return m_strModel; }

    bool isOutputOn() const { return m_bOutputOn; }
    const OutputTrace& trace() const { return m_trace; }

Q_SIGNALS:
    void connected();
    void gone(const QString& reason);
    void modelChanged(const QString& model);
    void outputChanged(bool isOn);
    void traceChanged();

private:
    void begin();
    void end(const QString& reason);
    void poll();
    void takeState(const QByteArray& line);
    void fetch(const QByteArray& burst);
    void takeSamples(const QByteArray& block);
    void lookAgain();

    InstrumentClient m_client;
    QTimer m_timer;
    QString m_strModel;
    QByteArray m_strBurst; // number and length of the trace, as the instrument wrote them
    OutputTrace m_trace;
    OutputTrace m_coming; // all but its samples
    bool m_bCountsSwapped = false;
    bool m_bOutputOn = false;
    bool m_bTold = false;
};

/// Reads the reply to the watch's question about a trace: the order of the bytes, and all of the
/// trace but its samples. False for a reply that is none. Without a burst all numbers but idle are
/// 0.
bool parseTraceHead(const QByteArray& line, OutputTrace& trace, bool& isSwapped);
