// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keyrelay.h"

#include "keypadclient.h"

KeyRelay::KeyRelay(KeypadClient& keypad, QObject* parent)
    : QObject(parent)
    , m_keypad(keypad)
{}

void KeyRelay::press(int code, Hand hand)
{
    const bool wasDown = isDown(code);
    m_hands[code].insert(hand);
    if (wasDown)
        return;
    m_keypad.press(code);
    Q_EMIT keyChanged(code, true);
}

void KeyRelay::release(int code, Hand hand)
{
    const auto hands = m_hands.find(code);
    if (hands == m_hands.end() || !hands->remove(hand) || !hands->isEmpty())
        return;
    m_hands.erase(hands);
    m_keypad.release(code);
    Q_EMIT keyChanged(code, false);
}

void KeyRelay::releaseAll(Hand hand)
{
    const QList<int> codes = m_hands.keys();
    for (const int code : codes)
        release(code, hand);
}

void KeyRelay::turn(int detents)
{
    if (detents == 0)
        return;
    m_keypad.turn(detents);
    Q_EMIT turned(detents);
}
