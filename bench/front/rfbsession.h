// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rfblink.h"

#include <QByteArray>

struct _rfbClient;

/// What LibVNCClient does over the socket of an RfbLink, in the link's thread.
class RfbSession
{
public:
    /// @p socket stays the link's, which closes it.
    RfbSession(RfbLink& link, int socket);
    ~RfbSession();
    RfbSession(const RfbSession&) = delete;
    RfbSession& operator=(const RfbSession&) = delete;

    /// Speaks with the server until one of the two ends it. Returns the reason.
    QString run();

private:
    static signed char makePicture(_rfbClient* client);
    static void growUpdate(_rfbClient* client, int x, int y, int width, int height);
    static void finishUpdate(_rfbClient* client);
    static RfbSession& of(_rfbClient* client);

    bool begin();
    bool wait();
    bool sendInput(const RfbLink::Input& input);
    bool sendInputs();
    bool handleMessages();
    QString reason() const;

    RfbLink& m_link;
    _rfbClient* m_client;
    QImage m_picture;
    QRect m_update;
    bool m_bSizeRefused = false;
};
