// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "helppage.h"

#include "frontpanelkeys.h"
#include "hostlook.h"
#include "hosttext.h"
#include "textlabel.h"
#include "translated.h"

#include <QPainter>

namespace {

const int Columns = 2;
const int EntryTop = 70;
const int EntryHeight = 64;
const int CapWidth = 104;
const int CapHeight = 38;

} // namespace

HelpPage::HelpPage(QWidget* surface)
    : OverlayPage(HostText::Help, QT_KEY_HELP, surface)
{
    setObjectName(QStringLiteral("helpPage"));
    addEntry(QStringLiteral("↺ ↻"), HostText::KeyKnob);
    addEntry(QStringLiteral("← ↑ ↓ →"), HostText::KeyArrows);
    addEntry(QStringLiteral("Enter"), HostText::KeyEnter);
    addEntry(QStringLiteral("Home Back"), HostText::KeyBack);
    addEntry(QStringLiteral("0 … 9 . −"), HostText::KeyDigits);
    addEntry(QStringLiteral("G/n … ×1"), HostText::KeyUnits);
    addEntry(QStringLiteral("CH1"), HostText::KeyChannel);
    addEntry(QStringLiteral("Manual"), HostText::KeyManual);
    addEntry(QStringLiteral("Utility"), HostText::KeyUtility);
    addEntry(QStringLiteral("Default"), HostText::KeyDefault);
    addEntry(QStringLiteral("Help"), HostText::KeyHelp);
}

void HelpPage::addEntry(const QString& cap, const char* textId)
{
    const QRect area = contentArea();
    const int column = m_entries.size() % Columns;
    const int width = area.width() / Columns;
    const QPoint at(area.left() + column * width,
                    EntryTop + m_entries.size() / Columns * EntryHeight);
    auto* capLabel = new TextLabel(15, HostLook::Text, this);
    capLabel->setBold(true);
    capLabel->setAlignment(Qt::AlignCenter);
    capLabel->setText(cap);
    capLabel->setGeometry(at.x(), at.y() + (EntryHeight - CapHeight) / 2, CapWidth, CapHeight);
    auto* meaning = new TextLabel(15, HostLook::Quiet, this);
    meaning->setGeometry(at.x() + CapWidth + 12, at.y(), width - CapWidth - 24, EntryHeight);
    m_entries.append({textId, capLabel, meaning});
}

void HelpPage::retranslate()
{
    OverlayPage::retranslate();
    for (const Entry& entry : qAsConst(m_entries))
        entry.meaning->setText(appPlugins::translated(entry.textId));
}

void HelpPage::paintEvent(QPaintEvent* event)
{
    OverlayPage::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(HostLook::Line, 1));
    painter.setBrush(HostLook::Raised);
    for (const Entry& entry : qAsConst(m_entries))
        painter.drawRoundedRect(QRectF(entry.cap->geometry()).adjusted(.5, .5, -.5, -.5), 6, 6);
}
