// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backoff.h"

#include <QImage>
#include <QPoint>
#include <QRect>

#include <memory>

class RfbLink;

/// A screen elsewhere on this machine, seen and touched over the RFB protocol. It connects to the
/// loopback address alone, and anew by itself when the server has gone. Network and decoding are in
/// a thread of its own: nothing here blocks. To be used from the thread that made it, which needs
/// an event loop.
class RfbScreen : public QObject
{
    Q_OBJECT

public:
    explicit RfbScreen(quint16 port, QObject* parent = nullptr);
    ~RfbScreen() override;

    /// Begins to connect, and to connect again.
    void start();

    /// Ends the connection for good.
    void stop();

    /// Whether a whole picture has come since the last connection was made.
    bool isConnected() const { return m_bConnected; }

    /// Why there is no connection; empty while there is one and before the first attempt.
    QString goneReason() const { return m_strReason; }

    /// The screen as it is now, in the size that the server has; the last one seen while there is
    /// no connection, null before the first. Cheap.
    QImage image() const;

    /// Pointer at @p position, pixels of the screen, held inside it; @p buttons as in the protocol:
    /// bit 0 left, bit 1 middle, bit 2 right. Nothing while there is no connection.
    void sendPointer(const QPoint& position, int buttons);

    /// An X key symbol goes down or comes up.
    void sendKey(quint32 keySymbol, bool isDown);

    /// Asks for the whole picture behind all that was sent before: changed() then tells of all of
    /// it at once.
    void askForPicture();

    /// The X key symbol of a Qt key, or of the character that it types if it types one; 0 for keys
    /// that have none.
    static quint32 keySymbol(int qtKey, const QString& text);

Q_SIGNALS:
    /// The first whole picture since the connection was made is there.
    void connected(const QSize& size);

    /// As InstrumentClient::gone().
    void gone(const QString& reason);

    /// This part of image() is new. Parts that come while the thread is busy arrive united.
    void changed(const QRect& part);

private:
    void connectNow();
    void takeChange();
    void takeEnd(const QString& reason);

    quint16 m_nPort;
    Backoff m_backoff;
    std::unique_ptr<RfbLink> m_link;
    int m_nSerial = 0;
    QImage m_lastImage; // of the connection before
    bool m_bStarted = false;
    bool m_bConnected = false;
    QString m_strReason;
};
