// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ccombobox.h"

#include "toolkitlook.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>

namespace appPlugins {

namespace {

// As much of the style sheet's padding on the left, and of the room beside the arrow, as a text may
// take that would not fit between them.
const int SparePadding = 34;
const int SpareByArrow = 4;

} // namespace

const QString CComboBox::m_strSelfStyleSheet =
    QStringLiteral(
        "QComboBox {padding: 2px 2px 2px %1px;color:%2; background-color:%17; border-radius: "
        "%3px;border:%4px solid %5; }"
        "QComboBox:!editable:focus{border:2px solid rgb(52,120,247);  }"
        "QComboBox:on{border:%6px solid %7;}"
        "QComboBox:disabled{color:%15;border:%4px solid %15;}"
        "QComboBox::drop-down{subcontrol-origin:padding;subcontrol-position:center "
        "right;width:24px;border:none;}"
        "QComboBox::down-arrow{image:url(%14appPluginsPics/arrow.png);width:%8px;height:%9px;}"
        "QComboBox::down-arrow:disabled{image:url(%14appPluginsPics/arrow_d.png);}"
        "QComboBox QAbstractItemView{border:%11px solid "
        "%12;color:%10;background:rgb(30,30,30);selection-background-color: "
        "rgb(52,120,247);outline:none;}"
        "QComboBox QAbstractItemView::item{min-height:%13px;padding-left:12px;background:"
        "rgb(30,30,30);}"
        "QComboBox QAbstractItemView::item:selected{background:rgb(52,120,247);}"
        "QComboBox QAbstractItemView::item:disabled{color:%16;}")
        .arg(QString::number(40), Look::White, QString::number(0), QString::number(2), Look::White,
             QString::number(2), Look::FocusBlue, QString::number(10), QString::number(10))
        .arg(Look::White, QString::number(2), Look::White, QString::number(40), Look::AppFolder,
             Look::DisabledGrey, QStringLiteral("rgb(96,96,96)"), Look::PanelBackground);

CComboBox::CComboBox(QWidget* parent)
    : QComboBox(parent)
{
    // First: below a widget with a sheet of its own, a font or delegate that is set before the
    // sheet makes the list that is created for it lose its rules.
    setStyleSheet(m_strSelfStyleSheet);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    // The row of a form gives the width, not the longest text of a list or of the language before.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setFont(Look::textFont());
    // The height of the list's items, which the default delegate of a combo box does not honour.
    setItemDelegate(new QStyledItemDelegate(this));
    // Above and below the list, the window that it stands in shows; no sheet reaches it.
    QPalette dark = view()->window()->palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    view()->window()->setPalette(dark);
}

void CComboBox::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QStyleOptionComboBox option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);

    const QRect place =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int missing = fontMetrics().horizontalAdvance(currentText()) - place.width();
    if (missing > 0) {
        const int left = qMin(missing, SparePadding);
        const int right = qMin(missing - left, SpareByArrow);
        option.rect.adjust(-left, 0, right, 0);
        option.currentText =
            fontMetrics().elidedText(currentText(), Qt::ElideRight, place.width() + left + right);
    }
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CComboBox::mousePressEvent(QMouseEvent* event)
{
    event->ignore();
}

void CComboBox::mouseReleaseEvent(QMouseEvent* event)
{
    // The list shows its texts whole, also under a box that is too narrow for them.
    const int frames = 8;
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + frames);
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
