// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

/// A button of the host's pages: large enough for a finger, and pressed by Enter or by the knob as
/// well. It is pressed when the key that went down on it comes up, so that the key that closes a
/// page does not press a button of the next.
class TouchButton : public QPushButton
{
    Q_OBJECT

public:
    /// @p textId names the text and must outlive the button; null for a text that does not follow
    /// the language.
    TouchButton(const char* textId, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

    /// Draws the face, for buttons that put something of their own on it.
    void paintFace(QPainter& painter) const;

private:
    const char* m_textId;
};
