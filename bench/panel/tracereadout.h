// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>
#include <QWidget>

class QLabel;
struct CursorReadout;

/// The column of numbers beside the plot.
class TraceReadout : public QWidget
{
    Q_OBJECT

public:
    explicit TraceReadout(QWidget* parent);

    void display(const CursorReadout& readout);
    void retranslate();

private:
    QLabel* addLabel(int row, int column);
    void addNumber(int row, int column, const QString& name);

    QVector<QLabel*> m_headings; // of the rows
    QVector<QLabel*> m_numbers;  // in the order of CursorReadout
};
