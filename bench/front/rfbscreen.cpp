// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rfbscreen.h"

#include "rfblink.h"

#include <QMap>

namespace {

// Symbols of characters beyond Latin-1 are their code points, marked.
const quint32 UnicodeMark = 0x01000000;

quint32 symbolOfText(const QString& text)
{
    const QVector<uint> characters = text.toUcs4();
    if (characters.size() != 1 || characters.first() < 0x20 || characters.first() == 0x7f)
        return 0;
    return characters.first() < 0x100 ? characters.first() : UnicodeMark | characters.first();
}

} // namespace

RfbScreen::RfbScreen(quint16 port, QObject* parent)
    : QObject(parent)
    , m_nPort(port)
    , m_backoff(this)
{
    connect(&m_backoff, &Backoff::due, this, &RfbScreen::connectNow);
}

RfbScreen::~RfbScreen() = default;

void RfbScreen::start()
{
    if (m_bStarted)
        return;
    m_bStarted = true;
    connectNow();
}

void RfbScreen::stop()
{
    if (!m_bStarted)
        return;
    m_bStarted = false;
    m_backoff.reset();
    takeEnd(QStringLiteral("the connection was ended"));
}

// The link's thread posts to this one. What a link posted before it was let go must not be taken
// for its successor's.
void RfbScreen::connectNow()
{
    const int serial = ++m_nSerial;
    const auto post = [this, serial](auto take) {
        QMetaObject::invokeMethod(
            this,
            [this, serial, take] {
                if (m_link && serial == m_nSerial)
                    take();
            },
            Qt::QueuedConnection);
    };
    RfbLink::Listener listener;
    listener.changed = [this, post] { post([this] { takeChange(); }); };
    listener.ended = [this, post](const QString& reason) {
        post([this, reason] { takeEnd(reason); });
    };
    m_link = std::make_unique<RfbLink>(m_nPort, std::move(listener));
}

void RfbScreen::takeChange()
{
    const QRect part = m_link->takeChange();
    if (part.isEmpty())
        return;
    if (!m_bConnected) {
        m_backoff.reset();
        m_bConnected = true;
        m_strReason.clear();
        Q_EMIT connected(m_link->image().size());
    }
    Q_EMIT changed(part);
}

void RfbScreen::takeEnd(const QString& reason)
{
    if (m_link) {
        const QImage last = m_link->image();
        if (!last.isNull())
            m_lastImage = last;
    }
    m_link.reset();
    m_bConnected = false;
    if (m_bStarted)
        m_backoff.wait();
    if (reason == m_strReason)
        return;
    m_strReason = reason;
    Q_EMIT gone(reason);
}

QImage RfbScreen::image() const
{
    const QImage current = m_link ? m_link->image() : QImage();
    return current.isNull() ? m_lastImage : current;
}

void RfbScreen::sendPointer(const QPoint& position, int buttons)
{
    if (!m_bConnected)
        return;
    const QRect screen = m_link->image().rect();
    m_link->sendPointer({qBound(screen.left(), position.x(), screen.right()),
                         qBound(screen.top(), position.y(), screen.bottom())},
                        buttons);
}

void RfbScreen::sendKey(quint32 keySymbol, bool isDown)
{
    if (m_bConnected && keySymbol != 0)
        m_link->sendKey(keySymbol, isDown);
}

void RfbScreen::askForPicture()
{
    if (m_bConnected)
        m_link->askForPicture();
}

quint32 RfbScreen::keySymbol(int qtKey, const QString& text)
{
    static const QMap<int, quint32> symbols = {
        {Qt::Key_Backspace, 0xff08}, {Qt::Key_Tab, 0xff09},      {Qt::Key_Return, 0xff0d},
        {Qt::Key_Enter, 0xff8d},     {Qt::Key_Escape, 0xff1b},   {Qt::Key_Delete, 0xffff},
        {Qt::Key_Insert, 0xff63},    {Qt::Key_Home, 0xff50},     {Qt::Key_Left, 0xff51},
        {Qt::Key_Up, 0xff52},        {Qt::Key_Right, 0xff53},    {Qt::Key_Down, 0xff54},
        {Qt::Key_PageUp, 0xff55},    {Qt::Key_PageDown, 0xff56}, {Qt::Key_End, 0xff57},
        {Qt::Key_Shift, 0xffe1},     {Qt::Key_Control, 0xffe3},  {Qt::Key_Alt, 0xffe9},
        {Qt::Key_Backtab, 0xfe20},
    };
    const auto symbol = symbols.constFind(qtKey);
    return symbol == symbols.constEnd() ? symbolOfText(text) : *symbol;
}
