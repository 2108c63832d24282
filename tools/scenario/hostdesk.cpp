// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostdesk.h"

#include "outputplot.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

const int SecondsToConnect = 5;

// A plug-in that waits for the instrument keeps the host from answering for half a minute and more.
const int SecondsToAnswer = 100;

const int LeftButton = 1;

} // namespace

HostDesk::HostDesk(quint16 screenPort, const QString& keypadPath, quint16 instrumentPort)
    : m_screen(screenPort)
    , m_keypad(keypadPath)
    , m_nInstrumentPort(instrumentPort)
{
    connect(&m_screen, &RfbScreen::changed, this, [this](const QRect& part) {
        m_bWholePicture = m_bWholePicture || part.contains(m_screen.image().rect());
    });
    connect(&m_screen, &RfbScreen::gone, this,
            [this](const QString& reason) { lose(QStringLiteral("screen"), reason); });
    connect(&m_keypad, &KeypadClient::gone, this,
            [this](const QString& reason) { lose(QStringLiteral("keypad"), reason); });
    connect(&m_keypad, &KeypadClient::described, this,
            [this](const Keypad::ScreenDescription& screen) {
                m_description = screen;
                m_bDescribed = true;
            });
    connect(&m_keypad, &KeypadClient::refused, this,
            [this](const QString& reason) { lose(QStringLiteral("keypad"), reason); });
}

bool HostDesk::connectToHost()
{
    m_screen.start();
    m_keypad.start();
    const bool connected = waitUntil(SecondsToConnect, QStringLiteral("no host is there"), [this] {
        return m_screen.isConnected() && m_keypad.isConnected();
    });
    m_bConnecting = false;
    if (connected)
        return true;
    const QString reason = m_screen.isConnected() ? m_keypad.goneReason() : m_screen.goneReason();
    m_strTrouble = QStringLiteral("no host is there: %1").arg(reason);
    return false;
}

// While it connects both try again by themselves.
void HostDesk::lose(const QString& what, const QString& reason)
{
    if (!m_bConnecting && m_strTrouble.isEmpty())
        m_strTrouble = QStringLiteral("the host's %1 is gone: %2").arg(what, reason);
}

void HostDesk::touch(QPoint place)
{
    m_screen.sendPointer(place, LeftButton);
}

void HostDesk::letGo(QPoint place)
{
    m_screen.sendPointer(place, 0);
}

void HostDesk::type(uint character)
{
    const quint32 symbol = character == '\n'
                               ? RfbScreen::keySymbol(Qt::Key_Return, {})
                               : RfbScreen::keySymbol(0, QString::fromUcs4(&character, 1));
    m_screen.sendKey(symbol, true);
    m_screen.sendKey(symbol, false);
}

void HostDesk::strikeKey(int code)
{
    m_keypad.press(code);
    m_keypad.release(code);
}

void HostDesk::turnKnob(int detents)
{
    m_keypad.turn(detents);
}

// Screen and keypad are different sockets, and the host posts what comes to its event queue. Whole
// pictures say that touches have arrived; two of them, since the first may be one that the server
// sent of its own accord. The second description says that the queue has been worked through since.
bool HostDesk::settle()
{
    Keypad::ScreenDescription screen;
    return refreshPicture() && refreshPicture() && describe(screen) && describe(screen);
}

bool HostDesk::describe(Keypad::ScreenDescription& screen)
{
    m_bDescribed = false;
    m_keypad.describe();
    if (!waitUntil(SecondsToAnswer, QStringLiteral("the host's keypad does not answer"),
                   [this] { return m_bDescribed; }))
        return false;
    screen = m_description;
    return true;
}

bool HostDesk::picture(QImage& picture)
{
    if (!refreshPicture())
        return false;
    picture = m_screen.image().copy();
    return true;
}

bool HostDesk::refreshPicture()
{
    m_bWholePicture = false;
    m_screen.askForPicture();
    return waitUntil(SecondsToAnswer, QStringLiteral("the host's screen does not answer"),
                     [this] { return m_bWholePicture; });
}

QString HostDesk::plotOutput(const QString& path)
{
    return ::plotOutput(m_nInstrumentPort, path);
}

void HostDesk::wait(int milliseconds)
{
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

bool HostDesk::waitUntil(int seconds, const QString& lack, const std::function<bool()>& isTrue)
{
    if (!m_strTrouble.isEmpty())
        return false;
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    // Wakes the loop up so that the time is looked at.
    QTimer timer;
    timer.start(100);
    while (!isTrue()) {
        if (clock.hasExpired(qint64(seconds) * 1000))
            m_strTrouble = lack;
        if (!m_strTrouble.isEmpty())
            return false;
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}
