// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keypadprotocol.h"

#include <QImage>
#include <QPoint>
#include <QString>

/// The desk as a scenario finds it: a touch screen, a keyboard and a front panel. What is done here
/// is done in order. When the desk no longer answers, trouble() says so and nothing more happens.
class Desk
{
public:
    Desk() = default;
    virtual ~Desk() = default;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Touches the screen, or slides there while it is touched.
    virtual void touch(QPoint place) = 0;
    /// Lets go of the screen.
    virtual void letGo(QPoint place) = 0;
    /// Strikes a character on a keyboard.
    virtual void type(uint character) = 0;
    /// Presses and releases a key of the front panel, by its code.
    virtual void strikeKey(int code) = 0;
    /// Turns the knob, clockwise positive.
    virtual void turnKnob(int detents) = 0;

    /// Returns when all that was done before has reached the programs. False in trouble.
    virtual bool settle() = 0;
    /// What a person can read on the screen. False in trouble.
    virtual bool describe(Keypad::ScreenDescription& screen) = 0;
    /// What a person sees. False in trouble.
    virtual bool picture(QImage& picture) = 0;
    /// Draws what channel 1 put out in its last burst into the .svg file @p path. Returns why it
    /// cannot, or nothing.
    virtual QString plotOutput(const QString& path) = 0;
    /// Lets some time pass.
    virtual void wait(int milliseconds) = 0;

    /// Why the desk does not answer; empty while it does.
    virtual QString trouble() const = 0;
};
