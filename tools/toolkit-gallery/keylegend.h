// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// Which ordinary keys stand for which keys of the front panel, drawn as key caps with their
/// meanings in two lines. Follows a change of language.
class KeyLegend : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLegend(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
