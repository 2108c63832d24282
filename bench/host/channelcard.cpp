// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channelcard.h"

#include "hostlook.h"
#include "hosttext.h"
#include "textlabel.h"
#include "translated.h"
#include "valuetext.h"
#include "waveformpicture.h"

#include <QEvent>
#include <QFileInfo>
#include <QPainter>

#include <cmath>

using appPlugins::translated;

namespace {

const int Margin = 14;
const int Badge = 30;
const int HeaderTop = 11;
const int PictureTop = 52;
const QSize PictureSize(140, 78);
const int ValuesTop = 142;
const int ValueHeight = 46;
const int Columns = 3;
const int SwitchWidth = 64;
const int FewestPixels = 11;

const QString Unknown = QStringLiteral("–");

QString volts()
{
    return QStringLiteral("V");
}

QString loadText(double ohms)
{
    // From here on the instrument takes its output for an open one.
    const double openFrom = 10000;
    return ohms >= openFrom ? translated(HostText::HighImpedance)
                            : valueText(ohms, QStringLiteral("Ω"), 0);
}

QString shapeText(const ChannelState& channel)
{
    switch (channel.shape) {
    case ChannelState::Sine:
        return translated(HostText::Sine);
    case ChannelState::EditMemory:
        return translated(HostText::EditMemory);
    case ChannelState::File:
        break;
    }
    return channel.file.isEmpty() ? translated(HostText::File) : QFileInfo(channel.file).fileName();
}

} // namespace

QString triggerText(const TriggerState& trigger)
{
    switch (trigger.source) {
    case TriggerState::Manual:
        return translated(HostText::TriggerManual);
    case TriggerState::External:
        return translated(trigger.falling ? HostText::TriggerFalling : HostText::TriggerRising);
    case TriggerState::Timer:
        break;
    }
    return translated(HostText::TriggerTimer).arg(valueText(trigger.timer, QStringLiteral("s"), 0));
}

QString burstText(const ChannelState& channel)
{
    if (!channel.burst)
        return translated(HostText::Continuous);
    if (std::isinf(channel.cycles))
        return translated(HostText::BurstEndless);
    if (channel.cycles == 1)
        return translated(HostText::BurstOne);
    return translated(HostText::BurstMany).arg(channel.cycles, 0, 'f', 0);
}

ChannelCard::ChannelCard(int channel, QWidget* parent)
    : QWidget(parent)
    , m_nChannel(channel)
    , m_pName(new TextLabel(18, HostLook::Text, this))
    , m_pSwitch(new TextLabel(15, HostLook::Text, this))
    , m_pShape(new TextLabel(15, HostLook::Quiet, this))
    , m_pFrequency(new TextLabel(27, HostLook::Text, this))
    , m_pMode(new TextLabel(14, HostLook::Quiet, this))
    , m_pPicture(new WaveformPicture(channel, this))
{
    m_pName->setBold(true);
    m_pSwitch->setBold(true);
    m_pSwitch->setAlignment(Qt::AlignCenter);
    m_pFrequency->setFewestPixels(FewestPixels);
    for (const char* textId : {HostText::Amplitude, HostText::High, HostText::Load,
                               HostText::Offset, HostText::Low, HostText::Trigger})
        addValue(textId);
    retranslate();
}

void ChannelCard::addValue(const char* textId)
{
    m_values.append({textId, new TextLabel(13, HostLook::Quiet, this),
                     new TextLabel(17, HostLook::Text, this)});
    m_values.last().value->setFewestPixels(FewestPixels);
}

const ChannelState& ChannelCard::channelState() const
{
    return m_state.channels.at(std::size_t(m_nChannel - 1));
}

void ChannelCard::setState(const InstrumentState& state)
{
    if (state == m_state)
        return;
    m_state = state;
    showValues();
    update();
}

void ChannelCard::retranslate()
{
    m_pName->setText(translated(HostText::Channel).arg(m_nChannel));
    for (const Value& value : qAsConst(m_values))
        value.title->setText(translated(value.textId));
    showValues();
}

void ChannelCard::showValues()
{
    const ChannelState& channel = channelState();
    const QStringList values{shortValueText(channel.amplitude, QStringLiteral("Vpp")),
                             shortValueText(channel.high, volts()),
                             loadText(channel.load),
                             shortValueText(channel.offset, volts()),
                             shortValueText(channel.low, volts()),
                             QString()};
    for (int i = 0; i < m_values.size(); ++i)
        m_values.at(i).value->setText(isKnown() ? values.at(i) : Unknown);
    m_pSwitch->setText(isKnown() ? translated(channel.on ? HostText::On : HostText::Off) : Unknown);
    m_pSwitch->setColor(isKnown() && channel.on ? HostLook::Background : HostLook::Quiet);
    m_pShape->setText(isKnown() ? shapeText(channel) : QString());
    m_pFrequency->setText(isKnown() ? valueText(channel.frequency, QStringLiteral("Hz")) : Unknown);
    m_pMode->setText(isKnown() ? burstText(channel) : QString());
    m_values.last().value->setText(isKnown() && channel.burst ? triggerText(m_state.trigger)
                                                              : Unknown);
    ChannelState shown = channel;
    shown.on = isKnown() && channel.on;
    m_pPicture->setState(shown);
}

void ChannelCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ChannelCard::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int right = width() - Margin;
    m_pName->setGeometry(Margin + Badge + 10, HeaderTop, 200, Badge);
    m_pSwitch->setGeometry(right - SwitchWidth, HeaderTop + 1, SwitchWidth, Badge - 2);
    m_pPicture->setGeometry(QRect(QPoint(Margin, PictureTop), PictureSize));
    const int left = Margin + PictureSize.width() + 16;
    m_pShape->setGeometry(left, PictureTop, right - left, 22);
    m_pFrequency->setGeometry(left, PictureTop + 22, right - left, 36);
    m_pMode->setGeometry(left, PictureTop + 58, right - left, 20);
    const int column = (width() - 2 * Margin) / Columns;
    for (int i = 0; i < m_values.size(); ++i) {
        const QPoint at(Margin + (i % Columns) * column, ValuesTop + (i / Columns) * ValueHeight);
        m_values.at(i).title->setGeometry(at.x(), at.y(), column - 6, 18);
        m_values.at(i).value->setGeometry(at.x(), at.y() + 18, column - 6, 24);
    }
}

void ChannelCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(HostLook::Card);
    painter.drawRoundedRect(rect(), 10, 10);

    const bool on = isKnown() && channelState().on;
    const QColor color = HostLook::channelColor(m_nChannel);
    painter.setPen(QPen(on ? color : HostLook::Off, 2));
    painter.setBrush(on ? QBrush(color) : QBrush(Qt::NoBrush));
    const QRect badge(Margin, HeaderTop, Badge, Badge);
    painter.drawRoundedRect(QRectF(badge).adjusted(1, 1, -1, -1), 7, 7);
    painter.drawRoundedRect(QRectF(m_pSwitch->geometry()).adjusted(1, 1, -1, -1), 14, 14);
    painter.setPen(on ? HostLook::Background : HostLook::Quiet);
    painter.setFont(HostLook::font(18, true));
    painter.drawText(badge, Qt::AlignCenter, QString::number(m_nChannel));
}
