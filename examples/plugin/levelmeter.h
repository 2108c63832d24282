// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "windowmodaldialogwithmask.h"

namespace appPlugins {
class ComboBoxCombComponent;
class RealCombComponent;
} // namespace appPlugins

/// The window: amplitude and load of a sine go in, volts RMS and dBm come out. It sends nothing to
/// the instrument.
class LevelMeter : public appPlugins::WindowModalDialogWithMask
{
    Q_OBJECT

public:
    explicit LevelMeter(QWidget* parent);

protected:
    /// The toolkit's components follow a change of language by themselves; the title is ours.
    void changeEvent(QEvent* event) override;

private:
    QLabel* addLabel(const QRect& place, int pixels);
    QLabel* addPanel();
    void addComponents(QWidget* panel);
    void addCloseButton();
    void showTitle();
    void showLevel();

    QLabel* m_pTitle;
    QLabel* m_pVolts;
    QLabel* m_pPower;
    appPlugins::RealCombComponent* m_pAmplitude = nullptr;
    appPlugins::ComboBoxCombComponent* m_pLoad = nullptr;
};
