// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QWidget>

#include <functional>

class Stage;

/// A photograph of a widget in a state that only one widget can be in at a time. It is taken anew
/// when the size or the language changes.
class Photo : public QWidget
{
    Q_OBJECT

public:
    /// Makes the widget as a child of the given parent.
    using Make = std::function<QWidget*(QWidget* parent)>;
    /// Brings the widget, which is on show on the stage, into the state.
    using Pose = std::function<void(Stage& stage, QWidget* widget)>;
    /// Takes the picture; by default that of the whole stage.
    using Shoot = std::function<QPixmap(Stage& stage, QWidget* widget)>;

    Photo(QWidget* parent, Make make, Pose pose, Shoot shoot = {});

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static void takeWaiting();
    void takeLater();
    void take();

    Make m_make;
    Pose m_pose;
    Shoot m_shoot;
    QPixmap m_picture;
    bool m_bWanted = false;
};
