// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QMap>
#include <QObject>

#include <functional>

/// Turns the keys of the front panel into key events for whatever has the focus, through the event
/// queue. As on the panel itself, a key does not repeat: a second press of one that is down is
/// dropped, and so is a release without a press. While keys are to be discarded they all are.
class KeyDriver : public QObject
{
    Q_OBJECT

public:
    /// @p discards tells whether keys are to be discarded now.
    explicit KeyDriver(std::function<bool()> discards, QObject* parent = nullptr);

    /// @p source is who presses: any number, the same for all keys of one client.
    void press(int code, int source);
    void release(int code);

    /// Turns the knob by @p detents, clockwise positive: so many times Up or Down.
    void turn(int detents);

    /// Releases what @p source has left down.
    void releaseAll(int source);

Q_SIGNALS:
    /// A key was pressed and released and nobody has taken the release.
    void unused(int code);

protected:
    bool event(QEvent* event) override;

private:
    void post(QEvent::Type type, int code);
    void deliver(QEvent::Type type, int code);

    std::function<bool()> m_discards;
    QMap<int, int> m_down; // code -> source
};
