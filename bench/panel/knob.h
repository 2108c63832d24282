// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// The knob. The wheel turns it, the mouse drags it round its centre, and a click in its middle
/// presses it. Each detent turns the picture of it by StepDegrees.
class Knob : public QWidget
{
    Q_OBJECT

public:
    static const int StepDegrees = 15;

    explicit Knob(QWidget* parent);

    /// Turns the picture alone.
    void showTurn(int detents);
    void showPressed(bool isPressed);

    /// How far the picture has turned, in detents.
    int position() const { return m_nPosition; }

Q_SIGNALS:
    void turned(int detents);
    void pressed();
    void released();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum Grip { None, Press, Drag };

    double radius() const;
    double angleAt(const QPointF& point) const;
    bool isMiddle(const QPointF& point) const;
    void dragTo(const QPointF& point);
    void letGo();
    void paintScale(QPainter& painter) const;
    void paintSkirt(QPainter& painter) const;
    void paintCap(QPainter& painter) const;

    Grip m_grip = None;
    double m_dbDragAngle = 0; // degrees not yet turned into detents
    double m_dbLastAngle = 0;
    int m_nPosition = 0;
    bool m_bPressed = false;
    bool m_bHover = false;
};

/// Detents of a wheel that turns in finer steps than one: what is left waits for more.
class WheelDetents
{
public:
    /// Detents, away from the user positive, that @p angle (eighths of a degree) completes.
    int take(int angle);

private:
    int m_nAngle = 0;
};
