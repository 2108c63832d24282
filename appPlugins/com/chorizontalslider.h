// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

class QHBoxLayout;
class QSlider;

namespace appPlugins {

/// A slider with a notice of its value beside it: the translated on and off for a slider of two
/// positions, the number for any other. Its look comes from its owner. Follows a change of
/// language.
class APPPLUGINS_EXPORT CHorizontalSlider : public QLabel
{
    Q_OBJECT

public:
    CHorizontalSlider(QWidget* parent, int minimum, int maximum, int value);

    /// Moves the slider; nothing for the current value or while disabled.
    void set(int value);
    int value() const;

    void setHorizontalLayoutStretch(int slider, int notice);
    /// Styles the slider inside.
    void setStyleSheet(QString styleSheet);
    void setDisabled(bool disable);

Q_SIGNALS:
    /// The slider was moved, by the user or by set().
    void valueChanged(int value);

public Q_SLOTS:
    void slt_sliderValueChanged(int value);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showNotice();

    QSlider* m_pSlider;
    QLabel* m_pNoticeLbl;
    QHBoxLayout* m_pLayout;
};

} // namespace appPlugins
