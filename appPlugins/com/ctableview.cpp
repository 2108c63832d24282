// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ctableviewbase.h"

#include "tabledelegates.h"
#include "toolkitlook.h"
#include "translated.h"

#include <QDebug>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>

namespace appPlugins {

namespace {

const int IndexColumnWidth = 50;
const int HeaderHeight = 32;
const int RowHeight = 36;

// Finger movements in pixels: what still counts as resting, as a tap, and as a drag for good.
const int RestingMove = 6;
const int TapMove = 5;
const int ContinuousMove = 21;

QString tableStyleSheet()
{
    return QStringLiteral("QTableView{background:#2E2E2E;color:%1;border:none;gridline-color:"
                          "rgb(96,96,96);outline:none;}"
                          "QTableView::item{height:36px;}"
                          "QTableView::item:disabled{color:%2;}"
                          "QTableView::item:selected{background:%3;color:%1;}")
        .arg(Look::White, Look::DisabledGrey, Look::FocusBlue);
}

QString headerStyleSheet()
{
    return QStringLiteral("QHeaderView{background:#2E2E2E;border:none;}"
                          "QHeaderView::section{background:#2E2E2E;color:%1;border:none;"
                          "border-right:%2px solid rgb(96,96,96);"
                          "border-bottom:%2px solid rgb(96,96,96);}")
        .arg(Look::White, QString::number(1));
}

QString scrollBarStyleSheet()
{
    return QStringLiteral("QScrollBar:vertical{background:#1e1e1e;width:24px;margin:0px;}"
                          "QScrollBar::handle:vertical{background:%1;min-height:60px;"
                          "border-radius:%2px;margin:2px 6px;}"
                          "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0px;}"
                          "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{"
                          "background:transparent;}")
        .arg(Look::White, QString::number(4));
}

/// A header of a fixed size, which nobody has to find out from the texts of all its sections.
class FixedHeader : public QHeaderView
{
public:
    using QHeaderView::QHeaderView;

    QSize sizeHint() const override { return minimumSize(); }
};

bool inHeaderBand(const QPoint& point)
{
    return point.y() <= HeaderHeight;
}

} // namespace

CTableView::CTableView(QWidget* parent, const int& tableColumnCount)
    : QTableView(parent)
    , m_nTableColumnCount(tableColumnCount)
{
    initView();
    initModel();
}

void CTableView::initModel()
{
    m_pStandardItemModel = new CStandardItemModel(0, m_nTableColumnCount, this);
    setModel(m_pStandardItemModel);
}

void CTableView::initView()
{
    // Before the style sheet, which would be applied to those that they replace.
    setVerticalHeader(new FixedHeader(Qt::Vertical, this));
    setHorizontalHeader(new FixedHeader(Qt::Horizontal, this));
    setFocusPolicy(Qt::NoFocus);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setFont(Look::textFont());
    setStyleSheet(tableStyleSheet());
    verticalScrollBar()->setStyleSheet(scrollBarStyleSheet());
    initHeaders();
    initCorner();
}

void CTableView::initHeaders()
{
    verticalHeader()->setFixedWidth(IndexColumnWidth);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setFixedHeight(HeaderHeight);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionsClickable(false);
        header->setSectionsMovable(false);
        header->setHighlightSections(false);
        header->setDefaultAlignment(Qt::AlignCenter);
        header->setTextElideMode(Qt::ElideMiddle);
        header->setFont(Look::textFont());
        header->setStyleSheet(headerStyleSheet());
    }
}

void CTableView::initCorner()
{
    m_pCorner = new QLabel(QStringLiteral("Index"), this);
    m_pCorner->setAlignment(Qt::AlignCenter);
    m_pCorner->setFont(Look::textFont());
    m_pCorner->setStyleSheet(QStringLiteral("QLabel{background:#2E2E2E;color:%1;border:none;"
                                            "border-right:1px solid rgb(96,96,96);"
                                            "border-bottom:1px solid rgb(96,96,96);}")
                                 .arg(Look::White));
    m_pCorner->setGeometry(0, 0, IndexColumnWidth, HeaderHeight);
}

void CTableView::setHorizontalHeaderData(const char* indexTextId, const char** strsId)
{
    m_pCornerTextId = indexTextId;
    m_pHeaderLabelsStrId = strsId;
    retranslate();
}

void CTableView::retranslate()
{
    if (m_pHeaderLabelsStrId == nullptr)
        return;

    m_pCorner->setText(translated(m_pCornerTextId));
    QStringList labels;
    for (int column = 0; column < m_nTableColumnCount; ++column)
        labels.append(translated(m_pHeaderLabelsStrId[column]));
    m_pStandardItemModel->setHorizontalHeaderLabels(labels);
}

void CTableView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QTableView::changeEvent(event);
}

void CTableView::slt_insert()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.size() > 1)
        return;

    int row = m_pStandardItemModel->rowCount();
    if (selected.size() == 1) {
        closePersistentEditor(selected.first());
        row = selected.first().row();
    }
    m_pStandardItemModel->insertRow(row);
}

void CTableView::slt_remove()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    const int row =
        selected.size() == 1 ? selected.first().row() : m_pStandardItemModel->rowCount() - 1;
    clearSelection();
    m_pStandardItemModel->removeRow(row);
}

void CTableView::slt_clear()
{
    clearSelection();
    m_pStandardItemModel->clear();
    m_pStandardItemModel->setColumnCount(m_nTableColumnCount);
    retranslate();
}

void CTableView::placeRow(const QList<QStandardItem*>& items)
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    int row = m_pStandardItemModel->rowCount();
    if (selected.size() == 1) {
        closePersistentEditor(selected.first());
        row = selected.first().row();
    }
    m_pStandardItemModel->insertRow(row, items);
    clearSelection();
}

void CTableView::mousePressEvent(QMouseEvent* event)
{
    m_pressPoint = event->localPos().toPoint();
    if (inHeaderBand(m_pressPoint))
        return QTableView::mousePressEvent(event);

    m_iPressScrollBarValue = verticalScrollBar()->value();
    m_bMousePressed = true;
    m_bContinuousMove = false;
}

void CTableView::mouseMoveEvent(QMouseEvent* event)
{
    if (inHeaderBand(m_pressPoint))
        return QTableView::mouseMoveEvent(event);

    const QPoint point = event->localPos().toPoint();
    const int dy = point.y() - m_pressPoint.y();
    qWarning() << "mouseMoveEvent" << point << dy;
    if (!m_bMousePressed) {
        m_iPressScrollBarValue = verticalScrollBar()->value();
        m_bMousePressed = true;
        m_bContinuousMove = false;
        return;
    }
    if (qAbs(dy) < RestingMove)
        return;
    if (qAbs(dy) >= ContinuousMove)
        m_bContinuousMove = true;
    scrollBarTo(m_iPressScrollBarValue - dy);
}

void CTableView::scrollBarTo(int barValue)
{
    verticalScrollBar()->setValue(qBound(0, barValue, verticalScrollBar()->maximum()));
}

// The comparison is signed: a short upward drag also ends as a tap.
void CTableView::mouseReleaseEvent(QMouseEvent* event)
{
    if (inHeaderBand(m_pressPoint))
        return QTableView::mouseReleaseEvent(event);

    const int dy = event->localPos().toPoint().y() - m_pressPoint.y();
    if (dy < TapMove && !m_bContinuousMove)
        tap(event);
}

void CTableView::tap(QMouseEvent* release)
{
    QMouseEvent press(QEvent::MouseButtonPress, release->localPos(), release->windowPos(),
                      release->screenPos(), release->button(), release->button(),
                      release->modifiers(), release->source());
    QTableView::mousePressEvent(&press);
    QTableView::mouseReleaseEvent(release);

    const QModelIndex index = indexAt(release->localPos().toPoint());
    clearSelection();
    setSelection(visualRect(index), QItemSelectionModel::SelectCurrent);
}

} // namespace appPlugins
