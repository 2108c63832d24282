// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>

/// A flat button of the bars round the front, with text alone. The keyboard's focus shows as a blue
/// frame.
class BarButton : public QToolButton
{
    Q_OBJECT

public:
    BarButton(const QString& name, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
