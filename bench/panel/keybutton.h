// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "frontkey.h"

#include <QAbstractButton>
#include <QPainterPath>

/// A key of the front. It is pressed for as long as the mouse or a finger holds it, wherever that
/// goes meanwhile: pressed() and released() come once each, as from a real key.
class KeyButton : public QAbstractButton
{
    Q_OBJECT

public:
    enum Kind { Number, Unit, Function, Arrow, Confirm, Output };

    KeyButton(const FrontKey& key, Kind kind, QWidget* parent);

    int code() const { return m_key.code; }

    /// Pixels for one of the face's units.
    void setFaceScale(double scale);

    /// Shows it pressed, whoever holds it.
    void showPressed(bool isPressed);

    /// The light of a key that has one.
    void setLit(bool isLit);
    bool isLit() const { return m_bLit; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QColor colour() const;
    void paintBody(QPainter& painter, const QRectF& body) const;
    void paintLabel(QPainter& painter, const QRectF& body) const;
    void paintLamp(QPainter& painter, const QRectF& body) const;
    void letGo();

    FrontKey m_key;
    Kind m_kind;
    double m_dbScale = 1;
    bool m_bHeld = false;    // by the mouse
    bool m_bPressed = false; // shown
    bool m_bLit = false;
};

/// The sign on a key that has one in place of a label, within a unit square round the origin; empty
/// for other keys.
QPainterPath keySign(const QString& keyName);
