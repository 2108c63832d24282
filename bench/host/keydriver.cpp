// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keydriver.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

// The events wait in the driver's own queue, not in that of the widget which has the focus when
// they come: a key moves the focus, and the next one is meant for what has it then.
const auto DeliveryType = static_cast<QEvent::Type>(QEvent::registerEventType());

class Delivery : public QEvent
{
public:
    Delivery(QEvent::Type keyType, int keyCode)
        : QEvent(DeliveryType)
        , type(keyType)
        , code(keyCode)
    {}

    QEvent::Type type;
    int code;
};

QString textOf(int code)
{
    const bool isPrintable = code >= Qt::Key_Space && code <= Qt::Key_AsciiTilde;
    return isPrintable ? QString(QChar(code)).toLower() : QString();
}

QWidget* receiver()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? focus : QApplication::activeWindow();
}

} // namespace

KeyDriver::KeyDriver(std::function<bool()> discards, QObject* parent)
    : QObject(parent)
    , m_discards(std::move(discards))
{}

void KeyDriver::press(int code, int source)
{
    if (m_discards() || m_down.contains(code))
        return;
    m_down.insert(code, source);
    post(QEvent::KeyPress, code);
}

// A key that comes up while keys are discarded is up all the same.
void KeyDriver::release(int code)
{
    if (m_down.remove(code) > 0 && !m_discards())
        post(QEvent::KeyRelease, code);
}

void KeyDriver::turn(int detents)
{
    const int code = detents > 0 ? Qt::Key_Up : Qt::Key_Down;
    for (int i = 0; i < qAbs(detents) && !m_discards(); ++i) {
        post(QEvent::KeyPress, code);
        post(QEvent::KeyRelease, code);
    }
}

void KeyDriver::releaseAll(int source)
{
    const QList<int> left = m_down.keys(source);
    for (int code : left)
        release(code);
}

void KeyDriver::post(QEvent::Type type, int code)
{
    QCoreApplication::postEvent(this, new Delivery(type, code));
}

bool KeyDriver::event(QEvent* event)
{
    if (event->type() != DeliveryType)
        return QObject::event(event);
    const auto* delivery = static_cast<Delivery*>(event);
    deliver(delivery->type, delivery->code);
    return true;
}

void KeyDriver::deliver(QEvent::Type type, int code)
{
    QWidget* target = receiver();
    QKeyEvent key(type, code, Qt::NoModifier, textOf(code));
    const bool isTaken =
        target != nullptr && QCoreApplication::sendEvent(target, &key) && key.isAccepted();
    if (type == QEvent::KeyRelease && !isTaken)
        Q_EMIT unused(code);
}
