// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QTouchEvent;
class RfbScreen;

/// The instrument's touch screen: the host's picture, scaled to the widget. Mouse and fingers on it
/// reach the host as its pointer. A notice covers the picture while there is something to tell.
class ScreenView : public QWidget
{
    Q_OBJECT

public:
    ScreenView(RfbScreen& screen, QWidget* parent);

    /// Darkens the picture and says so; empty texts take the notice away.
    void setNotice(const QString& title, const QString& detail);
    QString notice() const { return m_strNotice; }

    /// Shows that the keyboard types here.
    void setTyping(bool isTyping);
    bool isTyping() const { return m_bTyping; }

    /// Where the picture is: as large as fits, its shape kept, in whole pixels of the device.
    QRectF pictureArea() const;

Q_SIGNALS:
    /// A picture of the present connection has been painted.
    void painted();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void showChange(const QRect& part);
    bool takeTouch(QTouchEvent& event);
    void sendMouse(const QMouseEvent& event);
    void sendPointer(const QPointF& place, int buttons);
    void paintPicture(QPainter& painter) const;
    void paintNotice(QPainter& painter) const;
    void paintTyping(QPainter& painter) const;

    RfbScreen& m_screen;
    QString m_strNotice;
    QString m_strDetail;
    bool m_bTyping = false;
    QPointF m_lastTouch;
};
