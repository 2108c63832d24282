// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "knob.h"

#include <QHash>
#include <QPixmap>
#include <QWidget>

class KeyButton;
class KeyRelay;
class RfbScreen;
class ScreenView;

/// The front of the instrument: screen, knob, keys and connectors. It is drawn as large as fits,
/// its shape kept, in the middle of the widget.
class FrontFace : public QWidget
{
    Q_OBJECT

public:
    FrontFace(RfbScreen& screen, KeyRelay& relay, QWidget* parent = nullptr);

    ScreenView* screenView() const { return m_screenView; }
    Knob* knob() const { return m_knob; }
    KeyButton* key(const QString& name) const;

    /// What stands above the screen: the model.
    void setModel(const QString& model);

    /// The lamp of channel 1.
    void setOutputOn(bool isOn);

    /// Sets all texts again.
    void retranslate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeKeys();
    void connectRelay();
    void place();
    QRect placed(const QRectF& units) const;
    QPixmap drawnFace() const;

    KeyRelay& m_relay;
    ScreenView* m_screenView;
    Knob* m_knob;
    QHash<QString, KeyButton*> m_keys;
    WheelDetents m_wheel;
    QString m_strModel;
    bool m_bOutputOn = false;
    double m_dbScale = 1;
    QPointF m_origin;
    QPixmap m_face; // all that never moves; null when it is to be drawn anew
};
