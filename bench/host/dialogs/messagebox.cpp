// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "messagebox.h"

#include "dialogbutton.h"
#include "dialoglook.h"
#include "dragscroll.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace HostDialogs {

namespace {

const int Width = 600;
const int Margin = 20;
const int Spacing = 14;
const int IconWidth = 56;
const int TitleHeight = 30;
const int ButtonHeight = 60;
const int ScrollBarWidth = 24;
const int ScrollStep = 40;

const char* titleId(MessageKind kind)
{
    switch (kind) {
    case MessageKind::Critical:
        return "HOSTID_DLG_CRITICAL";
    case MessageKind::Warning:
        return "HOSTID_DLG_WARNING";
    case MessageKind::Question:
        return "HOSTID_DLG_QUESTION";
    case MessageKind::Information:
        break;
    }
    return "HOSTID_DLG_INFORMATION";
}

// Words break where they would not fit otherwise; scripts without spaces break by themselves.
QString breakable(QString text)
{
    static const QRegularExpression longWord(QStringLiteral("[^\\s\\x{2E80}-\\x{FFFF}]{40}"));
    return text.replace(longWord, QStringLiteral("\\0\u200B"));
}

} // namespace

MessageBox::MessageBox(MessageKind kind, const QString& text)
    : m_kind(kind)
    , m_pTitle(new QLabel(panel()))
    , m_pText(new QLabel)
    , m_pScroll(new QScrollArea(panel()))
    , m_pAccept(addButton(true))
    , m_pRefuse(addButton(false))
    , m_acceptTextId(kind == MessageKind::Question ? "HOSTID_DLG_YES" : "HOSTID_DLG_OK")
    , m_refuseTextId("HOSTID_DLG_NO")
{
    setObjectName(QStringLiteral("message box"));
    build(text);
    m_pRefuse->setVisible(kind == MessageKind::Question);
    m_pAccept->setFocus();
}

DialogButton* MessageBox::addButton(bool accepts)
{
    auto* button = new DialogButton(panel());
    button->setObjectName(accepts ? QStringLiteral("accept") : QStringLiteral("refuse"));
    button->setFixedHeight(ButtonHeight);
    connect(button, &DialogButton::clicked, this, accepts ? &QDialog::accept : &QDialog::reject);
    return button;
}

void MessageBox::build(const QString& text)
{
    m_pTitle->setFont(DialogLook::textFont(20, true));
    m_pTitle->setFixedHeight(TitleHeight);
    m_pText->setFont(DialogLook::textFont(18));
    m_pText->setTextFormat(Qt::PlainText);
    m_pText->setWordWrap(true);
    m_pText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_pText->setText(breakable(text));
    m_pText->setObjectName(QStringLiteral("text"));
    m_pScroll->setWidget(m_pText);
    m_pScroll->setWidgetResizable(true);
    m_pScroll->setFocusPolicy(Qt::NoFocus);
    m_pScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pScroll->viewport()->setAutoFillBackground(false);
    m_pText->setAutoFillBackground(false);
    new DragScroll(m_pScroll);

    auto* message = new QVBoxLayout;
    message->setSpacing(6);
    message->addWidget(m_pTitle);
    message->addWidget(m_pScroll);
    auto* top = new QHBoxLayout;
    top->setSpacing(Margin);
    top->addWidget(new MessageIcon(m_kind, panel()), 0, Qt::AlignTop);
    top->addLayout(message);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing);
    buttons->addWidget(m_pAccept, 1);
    buttons->addWidget(m_pRefuse, 1);
    auto* rows = new QVBoxLayout(panel());
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    rows->addLayout(top, 1);
    rows->addLayout(buttons);
}

void MessageBox::setChoice(const char* acceptTextId, const char* refuseTextId)
{
    m_acceptTextId = acceptTextId;
    m_refuseTextId = refuseTextId;
    m_pRefuse->setVisible(true);
    m_pRefuse->setFocus();
}

QRect MessageBox::panelPlace(const QRect& screen) const
{
    const int textWidth = Width - 3 * Margin - IconWidth - ScrollBarWidth;
    const int rest = 2 * Margin + TitleHeight + 6 + Spacing + ButtonHeight;
    const int wanted = rest + qMax(m_pText->heightForWidth(textWidth), 50) + 8;
    QRect place(0, 0, Width, qMin(wanted, screen.height() - 2 * Margin));
    place.moveCenter(screen.center());
    return place;
}

void MessageBox::retranslate()
{
    m_pTitle->setText(qtTrId(titleId(m_kind)));
    m_pAccept->setText(qtTrId(m_acceptTextId));
    m_pRefuse->setText(qtTrId(m_refuseTextId));
}

bool MessageBox::isScrolled() const
{
    return m_pScroll->verticalScrollBar()->maximum() > 0;
}

void MessageBox::arrowPressed(int key)
{
    const bool vertical = key == Qt::Key_Up || key == Qt::Key_Down;
    if (!vertical || !isScrolled())
        return ScreenDialog::arrowPressed(key);

    QScrollBar* const bar = m_pScroll->verticalScrollBar();
    bar->setValue(bar->value() + (key == Qt::Key_Up ? -ScrollStep : ScrollStep));
}

} // namespace HostDialogs
