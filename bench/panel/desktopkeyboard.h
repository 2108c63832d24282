// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>

class KeyRelay;
class QKeyEvent;
class RfbScreen;

/// Where the desktop's keyboard goes.
enum class KeyboardArea {
    Keys,   ///< the keys of the front
    Screen, ///< text for the instrument's screen
    Trace   ///< the trace's cursors, zoom and buttons
};

/// Turns the desktop's keyboard into the front's keys, or into text for the screen, for one window
/// while it is the active one. F6 and Shift+F6 go to the next and previous area. Keys with Ctrl or
/// Alt are the window's own, but for text.
class DesktopKeyboard : public QObject
{
    Q_OBJECT

public:
    /// Watches the events of @p window and of the widgets in it.
    DesktopKeyboard(KeyRelay& relay, RfbScreen& screen, QWidget* window);

    KeyboardArea area() const { return m_area; }
    void setArea(KeyboardArea area);

Q_SIGNALS:
    void areaChanged(KeyboardArea area);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeKey(QKeyEvent& event, bool isDown);
    bool takeFrontKey(const QKeyEvent& event, bool isDown);
    bool takeText(const QKeyEvent& event, bool isDown);
    void goOn(int step);
    void letGo();

    KeyRelay& m_relay;
    RfbScreen& m_screen;
    QWidget* m_window;
    KeyboardArea m_area = KeyboardArea::Keys;
    QHash<int, quint32> m_typed; // desktop keys that are down on the screen, with their symbols
};
