// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rfbsession.h"

#include "frontlog.h"

#include <rfb/rfbclient.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include <poll.h>
#include <unistd.h>

namespace {

// A host that waits for its instrument is silent for half a minute; one that is silent for longer
// in the middle of a message is lost.
const unsigned int PatienceSeconds = 40;

// Screens of instruments are smaller by far; a server that announces more is none.
const int MaxSide = 4096;

char g_sessionTag = 0;

void log(const char* format, va_list arguments)
{
    char text[512];
    std::vsnprintf(text, sizeof text, format, arguments);
    qCDebug(frontLog, "LibVNCClient: %s", QByteArray(text).trimmed().constData());
}

// The library knows of one printf-like function for all of a process.
void logFormatted(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    log(format, arguments);
    va_end(arguments);
}

void takeOverLogging()
{
    rfbClientLog = logFormatted;
    rfbClientErr = logFormatted;
}

// The library would ask at the terminal.
char* noPassword(rfbClient*)
{
    return nullptr;
}

rfbClient* makeClient()
{
    const int bitsPerSample = 8;
    const int samplesPerPixel = 3;
    const int bytesPerPixel = 4;
    rfbClient* client = rfbGetClient(bitsPerSample, samplesPerPixel, bytesPerPixel);
    if (client == nullptr)
        return nullptr;
    client->format.redShift = 16;
    client->format.greenShift = 8;
    client->format.blueShift = 0;
    client->appData.encodingsString = "copyrect hextile raw";
    client->appData.useRemoteCursor = FALSE;
    client->canHandleNewFBSize = TRUE;
    client->readTimeout = PatienceSeconds;
    client->GetPassword = noPassword;
    return client;
}

} // namespace

RfbSession::RfbSession(RfbLink& link, int socket)
    : m_link(link)
{
    static std::once_flag once;
    std::call_once(once, takeOverLogging);
    m_client = makeClient();
    if (m_client == nullptr)
        return;
    m_client->sock = socket;
    m_client->MallocFrameBuffer = &RfbSession::makePicture;
    m_client->GotFrameBufferUpdate = &RfbSession::growUpdate;
    m_client->FinishedFrameBufferUpdate = &RfbSession::finishUpdate;
    rfbClientSetClientData(m_client, &g_sessionTag, this);
}

RfbSession::~RfbSession()
{
    if (m_client == nullptr)
        return;
    m_client->sock = RFB_INVALID_SOCKET;
    m_client->frameBuffer = nullptr;
    rfbClientCleanup(m_client);
}

RfbSession& RfbSession::of(rfbClient* client)
{
    return *static_cast<RfbSession*>(rfbClientGetClientData(client, &g_sessionTag));
}

// Without a picture the library drops what it decodes.
rfbBool RfbSession::makePicture(rfbClient* client)
{
    RfbSession& session = of(client);
    client->frameBuffer = nullptr;
    session.m_picture = QImage();
    session.m_bSizeRefused = client->width <= 0 || client->height <= 0 || client->width > MaxSide ||
                             client->height > MaxSide;
    if (session.m_bSizeRefused)
        return FALSE;
    session.m_picture = QImage(client->width, client->height, QImage::Format_RGB32);
    session.m_picture.fill(Qt::black);
    client->frameBuffer = session.m_picture.bits();
    return TRUE;
}

void RfbSession::growUpdate(rfbClient* client, int x, int y, int width, int height)
{
    of(client).m_update |= QRect(x, y, width, height);
}

void RfbSession::finishUpdate(rfbClient* client)
{
    RfbSession& session = of(client);
    const QRect update = std::exchange(session.m_update, QRect());
    if (!update.isEmpty() && !session.m_picture.isNull())
        session.m_link.publish(session.m_picture, update);
}

bool RfbSession::begin()
{
    if (m_client == nullptr || !InitialiseRFBConnection(m_client))
        return false;
    m_client->width = m_client->si.framebufferWidth;
    m_client->height = m_client->si.framebufferHeight;
    m_client->updateRect = {0, 0, m_client->width, m_client->height};
    return makePicture(m_client) && SetFormatAndEncodings(m_client) &&
           SendFramebufferUpdateRequest(m_client, 0, 0, m_client->width, m_client->height, FALSE);
}

// Until the server or the one who touches the screen has something to say.
bool RfbSession::wait()
{
    pollfd waits[] = {{m_client->sock, POLLIN, 0}, {m_link.m_nWakeFd, POLLIN, 0}};
    const int ready = ::poll(waits, 2, -1);
    return ready >= 0 || errno == EINTR;
}

bool RfbSession::sendInput(const RfbLink::Input& input)
{
    switch (input.kind) {
    case RfbLink::Input::Key:
        return SendKeyEvent(m_client, input.keySymbol, input.isDown ? TRUE : FALSE) != FALSE;
    case RfbLink::Input::Picture:
        return SendFramebufferUpdateRequest(m_client, 0, 0, m_client->width, m_client->height,
                                            FALSE) != FALSE;
    case RfbLink::Input::Pointer:
        break;
    }
    return SendPointerEvent(m_client, input.position.x(), input.position.y(), input.buttons) !=
           FALSE;
}

bool RfbSession::sendInputs()
{
    const QVector<RfbLink::Input> inputs = m_link.takeInputs();
    for (const RfbLink::Input& input : inputs) {
        if (!sendInput(input))
            return false;
    }
    return true;
}

// The library may have read more than one message.
bool RfbSession::handleMessages()
{
    while (m_client->buffered > 0 || WaitForMessage(m_client, 0) > 0) {
        if (!HandleRFBServerMessage(m_client) || m_bSizeRefused)
            return false;
    }
    return true;
}

QString RfbSession::run()
{
    bool goesOn = begin();
    while (goesOn)
        goesOn = handleMessages() && wait() && !m_link.isStopping() && sendInputs();
    return reason();
}

QString RfbSession::reason() const
{
    if (m_bSizeRefused)
        return QStringLiteral("the server's screen is %1 x %2")
            .arg(m_client->width)
            .arg(m_client->height);
    return m_picture.isNull() ? QStringLiteral("no RFB server answers")
                              : QStringLiteral("the server has closed the connection");
}
