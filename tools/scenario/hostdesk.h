// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "desk.h"
#include "keypadclient.h"
#include "rfbscreen.h"

#include <functional>

/// The desk of a running host: its screen over RFB, its keypad's socket, and the instrument that it
/// drives.
class HostDesk : public QObject, public Desk
{
    Q_OBJECT

public:
    HostDesk(quint16 screenPort, const QString& keypadPath, quint16 instrumentPort);

    /// Waits until screen and keypad are there; false in trouble.
    bool connectToHost();

    void touch(QPoint place) override;
    void letGo(QPoint place) override;
    void type(uint character) override;
    void strikeKey(int code) override;
    void turnKnob(int detents) override;
    bool settle() override;
    bool describe(Keypad::ScreenDescription& screen) override;
    bool picture(QImage& picture) override;
    QString plotOutput(const QString& path) override;
    void wait(int milliseconds) override;
    QString trouble() const override { return m_strTrouble; }

private:
    bool waitUntil(int seconds, const QString& lack, const std::function<bool()>& isTrue);
    bool refreshPicture();
    void lose(const QString& what, const QString& reason);

    RfbScreen m_screen;
    KeypadClient m_keypad;
    quint16 m_nInstrumentPort;
    Keypad::ScreenDescription m_description;
    bool m_bWholePicture = false;
    bool m_bDescribed = false;
    bool m_bConnecting = true;
    QString m_strTrouble;
};
