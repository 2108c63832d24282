// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

class QHBoxLayout;
class QSlider;

namespace appPlugins {

/// A slider with a notice of its value beside it: the translated on and off for a slider of two
/// positions (a maximum of 1), the number for any other. Its look comes from its owner. Follows a
/// change of language.
class APPPLUGINS_EXPORT CHorizontalSlider : public QLabel
{
    Q_OBJECT

public:
    /// From @p minimum to @p maximum; a @p value outside them starts at the nearer one.
    CHorizontalSlider(QWidget* parent, int minimum, int maximum, int value);

    /// Moves the slider, which emits valueChanged(); nothing for the current value or while
    /// disabled. A value outside the range stands for the nearer end.
    void set(int value);
    /// Position of the slider.
    int value() const;

    /// Shares of the width; 2 and 1 at first.
    void setHorizontalLayoutStretch(int slider, int notice);
    /// Styles the slider inside, not the notice.
    void setStyleSheet(QString styleSheet);
    /// Disables or enables slider and notice. A disabled slider takes no input and ignores set().
    void setDisabled(bool disable);

Q_SIGNALS:
    /// The slider was moved, by the user or by set().
    void valueChanged(int value);

public Q_SLOTS:
    /// Shows the notice and emits valueChanged(): the slider inside has been moved.
    void slt_sliderValueChanged(int value);

protected:
    /// Shows the notice in the new language.
    void changeEvent(QEvent* event) override;

private:
    void showNotice();

    QSlider* m_pSlider;
    QLabel* m_pNoticeLbl;
    QHBoxLayout* m_pLayout;
};

} // namespace appPlugins
