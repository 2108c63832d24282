// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ccombobox.h"

#include "toolkitlook.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>

namespace appPlugins {

const QString CComboBox::m_strSelfStyleSheet =
    QStringLiteral(
        "QComboBox {padding: 2px 2px 2px %1px;color:%2; background-color:%17; border-radius: "
        "%3px;border:%4px solid %5; }"
        "QComboBox:!editable:focus{border:2px solid rgb(52,120,247);  }"
        "QComboBox:on{border:%6px solid %7;}"
        "QComboBox:disabled{color:%15;border:%4px solid %15;}"
        "QComboBox::drop-down{subcontrol-origin:padding;subcontrol-position:center "
        "right;width:%13px;border:none;}"
        "QComboBox::down-arrow{image:url(%14appPluginsPics/arrow.png);width:%8px;height:%9px;}"
        "QComboBox::down-arrow:disabled{image:url(%14appPluginsPics/arrow_d.png);}"
        "QComboBox QAbstractItemView{border:%11px solid "
        "%12;color:%10;background:rgb(30,30,30);selection-background-color: "
        "rgb(52,120,247);outline:none;}"
        "QComboBox QAbstractItemView::item{min-height:%13px;}"
        "QComboBox QAbstractItemView::item:disabled{color:%16;}")
        .arg(QString::number(40), Look::White, QString::number(0), QString::number(2), Look::White,
             QString::number(2), Look::FocusBlue, QString::number(10), QString::number(10))
        .arg(Look::White, QString::number(2), Look::White, QString::number(40), Look::AppFolder,
             Look::DisabledGrey, QStringLiteral("rgb(96,96,96)"), Look::PanelBackground);

CComboBox::CComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    // The row of a form gives the width, not the longest text of a list or of the language before.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setFont(Look::textFont());
    // The height of the list's items, which the default delegate of a combo box does not honour.
    setItemDelegate(new QStyledItemDelegate(this));
    setStyleSheet(m_strSelfStyleSheet);
}

void CComboBox::mousePressEvent(QMouseEvent* event)
{
    event->ignore();
}

void CComboBox::mouseReleaseEvent(QMouseEvent* event)
{
    showPopup();
    event->ignore();
}

void CComboBox::mouseMoveEvent(QMouseEvent* event)
{
    event->ignore();
}

void CComboBox::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

} // namespace appPlugins
