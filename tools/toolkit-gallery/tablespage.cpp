// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tablespage.h"

#include "caption.h"
#include "crealtableview.h"
#include "gallerytexts.h"
#include "photo.h"
#include "pluginsTranslation.h"
#include "stage.h"
#include "tabledelegates.h"
#include "touchbutton.h"

#include <QVBoxLayout>

using namespace appPlugins;

namespace {

const int Width = 0;
const int Gap = 1;

CRealTableView* createTable(QWidget* parent)
{
    RealPrivate columns[] = {{UNIT_TIME, 2e-6, QStringLiteral("2.000u"), 1.5e-4, 2e-8, 1e-9},
                             {UNIT_TIME, 1e-5, QStringLiteral("10.000u"), 1.5e-4, 2e-8, 1e-9}};
    static const char* titles[] = {TR_STR_ID_WIDTHS, TR_STR_ID_GAPS};
    auto* table = new CRealTableView(parent, 2, columns);
    table->setHorizontalHeaderData("N", titles);
    return table;
}

CRealTableView* createFilledTable(QWidget* parent, int rows)
{
    CRealTableView* table = createTable(parent);
    for (int row = 0; row < rows; ++row) {
        table->slt_insert({QString::number(2 + 0.35 * row, 'f', 3) + QLatin1Char('u'),
                           QStringLiteral("10.000u")});
    }
    return table;
}

QWidget* createSmallTable(QWidget* parent)
{
    return createFilledTable(parent, 3);
}

// Any texts; the second column takes no editor.
QWidget* createPlainTable(QWidget* parent)
{
    static const char* titles[] = {TR_ARBID_FILE, TR_STR_ID_STAT_LOAD};
    auto* table = new CTableView(parent, 2);
    table->setHorizontalHeaderData("N", titles);
    table->setItemDelegateForColumn(1, new NoEditDelegate(table));
    for (int row = 0; row < 3; ++row) {
        table->slt_insert();
        table->model()->setData(table->model()->index(row, 0),
                                QStringLiteral("run_%1").arg(row + 1));
        table->model()->setData(table->model()->index(row, 1), 50 * (row + 1));
    }
    table->setCurrentIndex(table->model()->index(0, 1));
    return table;
}

CRealTableView* asTable(QWidget* widget)
{
    return static_cast<CRealTableView*>(widget);
}

QModelIndex cell(QWidget* table, int row, int column)
{
    return asTable(table)->model()->index(row, column);
}

void editCell(Stage& stage, QWidget* widget)
{
    CRealTableView* table = asTable(widget);
    table->setCurrentIndex(cell(table, 1, Width));
    stage.focus(table->viewport());
    table->edit(cell(table, 1, Width));
    QWidget* editor = table->indexWidget(cell(table, 1, Width));
    stage.focus(editor);
}

void typeIntoCell(Stage& stage, QWidget* widget)
{
    editCell(stage, widget);
    stage.type(QStringLiteral("2.5"));
}

QWidget* captioned(const char* textId, QWidget* widget, QWidget* parent)
{
    auto* frame = new QWidget(parent);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(new Caption(textId, frame));
    layout->addWidget(widget, 1);
    widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    frame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    return frame;
}

} // namespace

TablesPage::TablesPage(QWidget* parent)
    : GalleryPage(parent)
    , m_pTable(createFilledTable(this, 12))
    , m_pLayout(new QGridLayout(this))
{
    m_pLayout->setContentsMargins(8, 4, 8, 6);
    m_pLayout->setHorizontalSpacing(12);
    m_pLayout->setVerticalSpacing(6);
    for (int column = 0; column < 3; ++column)
        m_pLayout->setColumnStretch(column, column == 0 ? 11 : 10);
    for (int row = 0; row < 2; ++row)
        m_pLayout->setRowStretch(row, 1);
    addLive();
    addStates();
}

void TablesPage::addLive()
{
    auto* live = new QWidget(this);
    auto* column = new QVBoxLayout(live);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_pTable, 1);
    column->addWidget(createButtons());
    m_pLayout->addWidget(captioned(GalleryText::Live, live, this), 0, 0, 2, 1);
}

QWidget* TablesPage::createButtons()
{
    auto* row = new QWidget(this);
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    const auto add = [&](const char* textId, int place, auto action) {
        auto* button = new TouchButton(textId, row);
        layout->addWidget(button, place / 2, place % 2);
        connect(button, &QPushButton::clicked, m_pTable, action);
        return button;
    };
    add(GalleryText::Insert, 0, [this] { m_pTable->slt_insert(); });
    add(GalleryText::Remove, 1, [this] { m_pTable->slt_remove(); });
    add(GalleryText::Clear, 2, [this] { m_pTable->slt_clear(); });
    QPushButton* oneGap =
        add(GalleryText::OneGap, 3, [this](bool on) { m_pTable->setDisabled(on, Gap, QString()); });
    oneGap->setCheckable(true);
    return row;
}

void TablesPage::addStates()
{
    const auto photo = [this](Photo::Pose pose) {
        return new Photo(this, createSmallTable, std::move(pose));
    };
    const auto disableGap = [](Stage&, QWidget* table) {
        asTable(table)->setDisabled(true, Gap, QString());
    };
    m_pLayout->addWidget(captioned(GalleryText::ReadOnly, createPlainTable(this), this), 0, 1);
    m_pLayout->addWidget(captioned(GalleryText::ColumnDisabled, photo(disableGap), this), 0, 2);
    m_pLayout->addWidget(captioned(GalleryText::Editing, photo(editCell), this), 1, 1);
    m_pLayout->addWidget(captioned(GalleryText::Typing, photo(typeIntoCell), this), 1, 2);
}
