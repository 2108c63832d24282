// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QVector>

#include <functional>
#include <mutex>
#include <thread>

/// One connection to an RFB server on this machine and the thread that serves it, from its
/// construction to its end. Beneath RfbScreen, which makes a new one for each attempt.
class RfbLink
{
public:
    struct Listener
    {
        std::function<void()> changed;                    ///< takeChange() has something
        std::function<void(const QString& reason)> ended; ///< once; nothing follows
    };

    /// Both functions of @p listener are called in the link's own thread.
    RfbLink(quint16 port, Listener listener);

    /// Waits for the thread, which ends at once.
    ~RfbLink();

    RfbLink(const RfbLink&) = delete;
    RfbLink& operator=(const RfbLink&) = delete;

    /// The screen; null until the first whole picture is there.
    QImage image() const;

    /// What has changed since the last call, and forgets it.
    QRect takeChange();

    /// Queued for the thread, which sends them in their order.
    void sendPointer(const QPoint& position, int buttons);
    void sendKey(quint32 keySymbol, bool isDown);

    /// Likewise: asks for the whole picture, whether it has changed or not.
    void askForPicture();

private:
    friend class RfbSession;

    struct Input
    {
        enum Kind { Pointer, Key, Picture };

        Kind kind;
        QPoint position;
        int buttons;
        quint32 keySymbol;
        bool isDown;
    };

    void run();
    QString connectToServer();
    bool waitForConnection() const;
    void queue(const Input& input);
    QVector<Input> takeInputs();
    bool isStopping() const;
    void publish(const QImage& picture, const QRect& part);

    quint16 m_nPort;
    Listener m_listener;
    int m_nWakeFd; // readable when there is input to send or the end is wanted
    int m_nSocket = -1;

    mutable std::mutex m_mutex;
    QImage m_image;
    QRect m_change;
    QVector<Input> m_inputs;
    bool m_bStop = false;

    std::thread m_thread;
};
