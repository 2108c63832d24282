// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentstate.h"

#include <QPainterPath>
#include <QWidget>

/// A small picture of what a channel puts out: the kind of its waveform, repeated or as a burst, in
/// the channel's colour while the output is on.
class WaveformPicture : public QWidget
{
    Q_OBJECT

public:
    WaveformPicture(int channel, QWidget* parent);

    void setState(const ChannelState& state);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPainterPath curve(const QRectF& area) const;

    QColor m_color;
    ChannelState m_state;
};

/// Height of a waveform of @p shape from -1 to 1 at @p phase, which is 0 to 1 in a cycle.
double waveformHeight(ChannelState::Shape shape, double phase);
