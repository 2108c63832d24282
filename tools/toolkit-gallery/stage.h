// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPixmap>

/// A window that is never on the screen, on which a widget is brought into a state that only one
/// widget of a program can be in at a time, such as having the focus, and photographed. The widget
/// gets there by real focus and key events. While the stage lives its widget may have the focus;
/// afterwards the window that is active on the screen has its focus back.
class Stage : public QDialog
{
    Q_OBJECT

public:
    explicit Stage(const QSize& size);
    ~Stage() override;

    /// Gives the whole stage to @p widget, a child of it, and shows both.
    void show(QWidget* widget);

    /// Gives the focus to a widget of the stage as a finger does.
    void focus(QWidget* widget);
    /// Presses and releases a key at what has the focus.
    void key(int key);
    /// Presses and releases the keys of these characters.
    void type(const QString& characters);

    QPixmap photograph();
};
