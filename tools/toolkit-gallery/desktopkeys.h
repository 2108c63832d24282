// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QKeyEvent;
class QWheelEvent;

/// Turns the keys of an ordinary keyboard into those of the instrument's front panel, and the
/// mouse's wheel into its knob. It filters the events of the whole application while it lives.
///
/// Letters and the space bar are front-panel keys only while a number is edited, so that texts can
/// be typed and buttons pressed.
class DesktopKeys : public QObject
{
    Q_OBJECT

public:
    explicit DesktopKeys(QObject* parent);

    /// The front-panel code that a key stands for; 0 for a key that stands for itself.
    static int frontPanelKey(int key, bool numberIsEdited);

Q_SIGNALS:
    /// The page before (-1) or after (1) the one on show is wanted.
    void pageWanted(int step);
    void nextLanguageWanted();
    /// The input before (-1) or after (1) the one with the focus is wanted.
    void inputWanted(int step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool galleryKey(const QKeyEvent& event);
    bool translate(const QKeyEvent& event);
    bool turnKnob(const QWheelEvent& event);

    int m_nWheelAngle = 0;
};
