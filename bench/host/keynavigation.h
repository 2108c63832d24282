// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVector>

class QWidget;

/// Moves the focus among the inputs of a page with knob and arrow keys: Up (the knob turned
/// clockwise) and Right to the next one, Down and Left to the one before, round and round.
class KeyNavigation : public QObject
{
    Q_OBJECT

public:
    /// Watches the inputs, which @p page owns.
    explicit KeyNavigation(QWidget* page);

    /// The inputs in their order; those before are forgotten.
    void setInputs(const QVector<QWidget*>& inputs);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void move(QWidget* from, int step);

    QVector<QWidget*> m_inputs;
};
