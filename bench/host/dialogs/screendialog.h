// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPixmap>
#include <QSet>

namespace HostDialogs {

/// What all dialogs of the host have in common: frameless, over the whole screen, which it dims and
/// keeps from being touched, with a panel in the middle; application-modal in an event loop of its
/// own.
///
/// Arrows act when they are pressed. Enter, Cancel, Back and Home act when they are released, and
/// only if they were pressed in this dialog: the release of the key that opened it means nothing to
/// it, and the release of the key that closes it never reaches the window behind.
class ScreenDialog : public QDialog
{
    Q_OBJECT

public:
    ScreenDialog();

    /// Covers the screen and waits for the answer: 1 for accepted, 0 otherwise. The window that was
    /// active before is active again afterwards.
    int run();

protected:
    /// The panel, on which all widgets of the dialog lie.
    QWidget* panel() const { return m_pPanel; }
    /// The panel's place within the dialog, which covers @p screen.
    virtual QRect panelPlace(const QRect& screen) const = 0;
    /// Sets every text anew.
    virtual void retranslate() = 0;
    /// An arrow or the knob: moves the focus unless a dialog has a better use.
    virtual void arrowPressed(int key);
    /// Enter or the pressed knob: clicks the button that has the focus, else accepts.
    virtual void enterReleased();
    /// The key back: closes unless a dialog knows something to go back to.
    virtual void backReleased();

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void cover(QWidget* before);
    void closeReleased();

    QWidget* m_pPanel;
    QSet<int> m_pressed;
    QPixmap m_below;
};

} // namespace HostDialogs
