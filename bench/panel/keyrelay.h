// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

class KeypadClient;

/// The keys of the front that are down, whoever holds them: the mouse on the face and the desktop's
/// keyboard may hold the same one. The host hears of the first press and of the last release.
class KeyRelay : public QObject
{
    Q_OBJECT

public:
    enum Hand { Mouse, Keyboard };

    explicit KeyRelay(KeypadClient& keypad, QObject* parent = nullptr);

    /// @p code as in FrontKey. Nothing happens when that hand holds it already.
    void press(int code, Hand hand);

    /// Nothing happens when that hand does not hold it.
    void release(int code, Hand hand);

    /// Lets go of all that a hand holds.
    void releaseAll(Hand hand);

    /// Detents of the knob, clockwise positive.
    void turn(int detents);

    bool isDown(int code) const { return m_hands.contains(code); }

Q_SIGNALS:
    void keyChanged(int code, bool isDown);
    void turned(int detents);

private:
    KeypadClient& m_keypad;
    QHash<int, QSet<int>> m_hands; // by code: the hands that hold it
};
