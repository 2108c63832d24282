// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "frontpanelkeys.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFocusEvent>
#include <QKeyEvent>

// The keys of the numeric editor: what starts and ends typing, and what the digits leave to the
// whole.

namespace appPlugins {

namespace {

bool startsNumber(int key)
{
    return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Minus ||
           key == Qt::Key_Period || key == QT_KEY_MINUS;
}

bool isSign(int key)
{
    return key == Qt::Key_Minus || key == QT_KEY_MINUS;
}

void postKey(QObject* receiver, QEvent::Type type, int key,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QCoreApplication::postEvent(receiver, new QKeyEvent(type, key, modifiers));
}

void postCopy(QObject* receiver, const QKeyEvent& event)
{
    QCoreApplication::postEvent(
        receiver, new QKeyEvent(event.type(), event.key(), event.modifiers(), event.text(),
                                event.isAutoRepeat(), static_cast<ushort>(event.count())));
}

} // namespace

void ParameterTextWithOrderOfMagnitude::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return knobRotateClockwise(event);
    case Qt::Key_Down:
        return knobRotateCouterClockwise(event);
    case Qt::Key_Left:
    case Qt::Key_Right:
        return arrowChangeUnit(event);
    case Qt::Key_Cancel:
        return redraw();
    default:
        event->ignore();
    }
}

bool ParameterTextWithOrderOfMagnitude::event(QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        Q_EMIT sgn_editorFocusIn();
    else if (event->type() == QEvent::FocusOut)
        Q_EMIT sgn_editorFocusOut();
    return QLabel::event(event);
}

bool ParameterTextWithOrderOfMagnitude::eventFilter(QObject* watched, QEvent* event)
{
    // A key that was in the queue before the digits were disabled finds them disabled.
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (watched != m_pParameterText || (key && !m_pParameterText->isEnabled()))
        return QLabel::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::KeyPress:
        if (filterKeyPress(static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::KeyRelease:
        if (filterKeyRelease(static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::FocusIn:
        focusCame();
        break;
    case QEvent::FocusOut:
        focusWent(static_cast<QFocusEvent*>(event)->reason());
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}

bool ParameterTextWithOrderOfMagnitude::filterKeyPress(QKeyEvent* event)
{
    takeHandedOverKeys();
    const int key = event->key();
    if (startsNumber(key)) {
        if (isSign(key) && !m_pParameterText->m_bSupportNegative)
            return true;
        if (!m_bInputting)
            startTyping();
        return false;
    }
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete) {
        const bool first = !m_bInputting;
        if (first)
            startTyping();
        return first;
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        if (!m_bInputting)
            postCopy(this, *event);
        return true;
    }
    return (key == Qt::Key_Left || key == Qt::Key_Right) && filterArrow(event);
}

// A key that follows faster than the event queue turns must find the value that the keys before it
// made. The selector goes first: it may answer with a Cancel.
void ParameterTextWithOrderOfMagnitude::takeHandedOverKeys()
{
    QCoreApplication::sendPostedEvents(m_pUnitLabel, QEvent::KeyPress);
    QCoreApplication::sendPostedEvents(this, QEvent::KeyPress);
}

bool ParameterTextWithOrderOfMagnitude::filterArrow(QKeyEvent* event)
{
    if (m_bInputting || !arrowChangesUnit(event->key()))
        return false;

    postCopy(this, *event);
    return true;
}

// A prefix shows three digits before the point. With the cursor at their edge an arrow moves the
// point by a prefix instead of the cursor by a digit.
bool ParameterTextWithOrderOfMagnitude::arrowChangesUnit(int key) const
{
    const int sign = m_valueLL < 0 ? 1 : 0;
    if (m_pParameterText->cursorPower() != sign)
        return false;

    const QString text = m_pParameterText->toPlainText();
    if (key == Qt::Key_Left)
        return text.size() >= 3 + sign && !text.leftRef(3 + sign).contains(QLatin1Char('.'));
    return text.midRef(sign).startsWith(QLatin1String("0."));
}

bool ParameterTextWithOrderOfMagnitude::filterKeyRelease(QKeyEvent* event)
{
    const int key = event->key();
    switch (key) {
    case Qt::Key_Cancel:
        if (m_bInputting)
            cancelTyping();
        return true;
    case QT_KEY_GN:
    case QT_KEY_MU:
    case QT_KEY_KM:
    case QT_KEY_KNOB:
    case QT_KEY_X1:
    case Qt::Key_Return:
        qWarning() << "eventFilter" << key << "released";
        commitTyping(key);
        return true;
    default:
        return false;
    }
}

void ParameterTextWithOrderOfMagnitude::startTyping()
{
    m_bInputting = true;
    m_pParameterText->startTyping();
}

void ParameterTextWithOrderOfMagnitude::endTyping()
{
    m_bInputting = false;
    m_pParameterText->m_bInputting = false;
}

void ParameterTextWithOrderOfMagnitude::cancelTyping()
{
    m_pParameterText->m_dbSetValueFlag = true;
    redraw();
}

// Selector and digits get their keys through the event queue, in this order: the text is taken over
// before the focus goes.
void ParameterTextWithOrderOfMagnitude::commitTyping(int key)
{
    if (m_bInputting) {
        endTyping();
        m_pParameterText->m_unitEnterFlag = true;
        postKey(m_pUnitLabel, QEvent::KeyPress, key);
    }
    postKey(m_pParameterText, QEvent::KeyRelease, Qt::Key_Enter, Qt::KeypadModifier);
}

void ParameterTextWithOrderOfMagnitude::focusCame()
{
    m_pUnitLabel->setBDisguiseFocus(true);
    Q_EMIT sgn_editorFocusIn();
}

// Whatever takes the focus away, what was typed and not confirmed is not the value, nor do zeros
// stay that the arrows put in front of it.
void ParameterTextWithOrderOfMagnitude::focusWent(Qt::FocusReason reason)
{
    redraw();
    m_pUnitLabel->setBDisguiseFocus(false);
    Q_EMIT sgn_editorFocusOut();
    if (reason == Qt::MouseFocusReason)
        postKey(m_pParameterText, QEvent::KeyRelease, Qt::Key_Enter, Qt::KeypadModifier);
}

} // namespace appPlugins
