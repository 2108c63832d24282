// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracereadout.h"

#include "cursorreadout.h"
#include "panellook.h"

#include <QGridLayout>
#include <QLabel>

namespace {

const int ReadoutWidth = 268;

void setColour(QLabel& label, const QColor& colour)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, colour);
    label.setPalette(palette);
}

} // namespace

TraceReadout::TraceReadout(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("readout"));
    setFixedWidth(ReadoutWidth);
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    for (int row = 0; row < 4; ++row)
        m_headings.append(addLabel(row, 0));
    addNumber(0, 1, QStringLiteral("t1"));
    addNumber(0, 2, QStringLiteral("V1"));
    addNumber(1, 1, QStringLiteral("t2"));
    addNumber(1, 2, QStringLiteral("V2"));
    addNumber(2, 1, QStringLiteral("dt"));
    addNumber(3, 1, QStringLiteral("1/dt"));
    addNumber(2, 2, QStringLiteral("dV"));
    grid->setRowStretch(4, 1);
    retranslate();
}

QLabel* TraceReadout::addLabel(int row, int column)
{
    auto* const label = new QLabel(this);
    label->setFont(PanelLook::font(13));
    setColour(*label, PanelLook::DimText);
    static_cast<QGridLayout*>(layout())->addWidget(label, row, column);
    return label;
}

void TraceReadout::addNumber(int row, int column, const QString& name)
{
    QLabel* const number = addLabel(row, column);
    setColour(*number, PanelLook::Text);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    number->setObjectName(QStringLiteral("readout_") + name);
    number->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_numbers.append(number);
}

void TraceReadout::display(const CursorReadout& readout)
{
    const QString texts[] = {readout.time[0],        readout.volts[0],       readout.time[1],
                             readout.volts[1],       readout.timeDifference, readout.frequency,
                             readout.voltsDifference};
    for (int i = 0; i < m_numbers.size(); ++i)
        m_numbers.at(i)->setText(texts[i]);
}

void TraceReadout::retranslate()
{
    m_headings.at(0)->setText(qtTrId("PANELID_CURSOR").arg(1));
    m_headings.at(1)->setText(qtTrId("PANELID_CURSOR").arg(2));
    m_headings.at(2)->setText(qtTrId("PANELID_DIFFERENCE"));
    m_headings.at(3)->setText(QStringLiteral("1/Δt"));
}
