// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentstate.h"

#include <QVector>
#include <QWidget>

class TextLabel;
class WaveformPicture;

/// What one channel is set to, on the home screen.
class ChannelCard : public QWidget
{
    Q_OBJECT

public:
    /// @p channel is 1 or 2.
    ChannelCard(int channel, QWidget* parent);

    /// Shows the channel's part of @p state; nothing but dashes unless the instrument answers.
    void setState(const InstrumentState& state);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Value
    {
        const char* textId;
        TextLabel* title;
        TextLabel* value;
    };

    void addValue(const char* textId);
    void retranslate();
    void showValues();
    const ChannelState& channelState() const;
    bool isKnown() const { return m_state.link == InstrumentState::Answering; }

    int m_nChannel;
    InstrumentState m_state;
    TextLabel* m_pName;
    TextLabel* m_pSwitch;
    TextLabel* m_pShape;
    TextLabel* m_pFrequency;
    TextLabel* m_pMode;
    WaveformPicture* m_pPicture;
    QVector<Value> m_values;
};

/// What starts bursts, in words of the current language.
QString triggerText(const TriggerState& trigger);

/// Repeated, or a burst of how many cycles, in words of the current language.
QString burstText(const ChannelState& channel);
