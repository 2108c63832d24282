// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "namedialog.h"

#include "dialogbutton.h"
#include "dialoglook.h"
#include "filename.h"
#include "messagebox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace HostDialogs {

namespace {

const QRect Place(110, 10, 580, 204);
const int Margin = 18;
const int FieldHeight = 50;
const int ButtonHeight = 60;

} // namespace

NameDialog::NameDialog()
    : m_pTitle(new QLabel(panel()))
    , m_pName(new QLineEdit(panel()))
    , m_pCreate(new DialogButton(panel()))
    , m_pCancel(new DialogButton(panel()))
{
    setObjectName(QStringLiteral("name dialog"));
    m_pTitle->setFont(DialogLook::textFont(20, true));
    m_pName->setFont(DialogLook::textFont(18));
    m_pName->setFixedHeight(FieldHeight);
    m_pName->setObjectName(QStringLiteral("name"));
    m_pName->setContextMenuPolicy(Qt::NoContextMenu);
    m_pCreate->setObjectName(QStringLiteral("accept"));
    m_pCancel->setObjectName(QStringLiteral("refuse"));
    connect(m_pCreate, &DialogButton::clicked, this, &NameDialog::accept);
    connect(m_pCancel, &DialogButton::clicked, this, &NameDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(14);
    for (DialogButton* button : {m_pCreate, m_pCancel}) {
        button->setFixedHeight(ButtonHeight);
        buttons->addWidget(button, 1);
    }
    auto* rows = new QVBoxLayout(panel());
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->addWidget(m_pTitle);
    rows->addWidget(m_pName);
    rows->addStretch(1);
    rows->addLayout(buttons);
    m_pName->setFocus();
}

QString NameDialog::name() const
{
    return m_pName->text().trimmed();
}

void NameDialog::accept()
{
    const NameFault fault = checkName(name());
    if (fault == NameFault::None)
        return ScreenDialog::accept();

    MessageBox(MessageKind::Warning, faultText(fault)).run();
    m_pName->setFocus();
}

QRect NameDialog::panelPlace(const QRect& screen) const
{
    return Place.translated(screen.topLeft());
}

void NameDialog::retranslate()
{
    m_pTitle->setText(qtTrId("HOSTID_DLG_NEW_FOLDER"));
    m_pName->setAccessibleName(qtTrId("HOSTID_DLG_NAME"));
    m_pCreate->setText(qtTrId("HOSTID_DLG_CREATE"));
    m_pCancel->setText(qtTrId("HOSTID_DLG_CANCEL"));
}

} // namespace HostDialogs
