// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pagegrid.h"

#include "caption.h"

PageGrid::PageGrid(QWidget* page, int labelWidth)
    : m_pPage(page)
    , m_pLayout(new QGridLayout(page))
{
    m_pLayout->setContentsMargins(12, 4, 12, 6);
    m_pLayout->setHorizontalSpacing(8);
    m_pLayout->setVerticalSpacing(4);
    m_pLayout->setColumnMinimumWidth(0, labelWidth);
}

// The columns are equally wide, whatever the texts in them would like.
void PageGrid::setStates(std::initializer_list<const char*> textIds)
{
    int column = 0;
    for (const char* textId : textIds) {
        m_pLayout->addWidget(new Caption(textId, m_pPage), 0, ++column);
        m_pLayout->setColumnStretch(column, 1);
    }
}

void PageGrid::addRow(const char* className, int height)
{
    ++m_nRow;
    m_nRowHeight = height;
    m_nColumn = 0;
    m_pLayout->addWidget(Caption::verbatim(QLatin1String(className), m_pPage), m_nRow, 0);
}

QWidget* PageGrid::add(QWidget* widget, int columns, int rows)
{
    ++m_nColumn;
    if (widget != nullptr) {
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        if (rows == 1)
            widget->setFixedHeight(m_nRowHeight);
        m_pLayout->addWidget(widget, m_nRow, m_nColumn, rows, columns);
    }
    m_nColumn += columns - 1;
    return widget;
}

void PageGrid::addPhoto(Photo::Make make, Photo::Pose pose)
{
    add(new Photo(m_pPage, std::move(make), std::move(pose)));
}
