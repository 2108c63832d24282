// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformpicture.h"

#include "hostlook.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <array>
#include <cmath>

namespace {

const int Cycles = 3;

struct Corner
{
    double phase;
    double height;
};

// Two pulses of different width, as a file of a pulse train holds.
const std::array<Corner, 9> Pulses{{{0.0, -1},
                                    {0.08, 1},
                                    {0.4, 1},
                                    {0.44, -1},
                                    {0.6, -1},
                                    {0.64, 1},
                                    {0.8, 1},
                                    {0.84, -1},
                                    {1, -1}}};

double pulseHeight(double phase)
{
    for (std::size_t i = 1; i < Pulses.size(); ++i) {
        const Corner& from = Pulses.at(i - 1);
        const Corner& to = Pulses.at(i);
        if (phase <= to.phase)
            return from.height +
                   (to.height - from.height) * (phase - from.phase) / (to.phase - from.phase);
    }
    return -1;
}

} // namespace

double waveformHeight(ChannelState::Shape shape, double phase)
{
    switch (shape) {
    case ChannelState::Sine:
        return qSin(2 * M_PI * phase);
    case ChannelState::EditMemory:
        return 0.6 * qSin(2 * M_PI * phase) + 0.4 * qSin(6 * M_PI * phase);
    case ChannelState::File:
        break;
    }
    return pulseHeight(phase);
}

WaveformPicture::WaveformPicture(int channel, QWidget* parent)
    : QWidget(parent)
    , m_color(HostLook::channelColor(channel))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WaveformPicture::setState(const ChannelState& state)
{
    if (state == m_state)
        return;
    m_state = state;
    update();
}

// A burst is one cycle with rest before and behind it.
QPainterPath WaveformPicture::curve(const QRectF& area) const
{
    const bool isBurst = m_state.burst;
    QPainterPath path;
    for (int x = 0; x <= int(area.width()); ++x) {
        const double cycle = Cycles * x / area.width() - (isBurst ? 1 : 0);
        const bool rests = isBurst && (cycle < 0 || cycle > 1);
        const double height = waveformHeight(m_state.shape, rests ? 0 : cycle - std::floor(cycle));
        const QPointF point(area.left() + x, area.center().y() - height * area.height() / 2);
        if (x == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return path;
}

void WaveformPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(HostLook::Well);
    painter.drawRoundedRect(rect(), 6, 6);
    const QRectF area = QRectF(rect()).adjusted(10, 14, -10, -14);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(HostLook::Line, 1, Qt::DotLine));
    painter.drawLine(QPointF(area.left(), area.center().y()),
                     QPointF(area.right(), area.center().y()));
    painter.setPen(
        QPen(m_state.on ? m_color : HostLook::Off, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(curve(area));
}
