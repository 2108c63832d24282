// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "photo.h"

#include <QGridLayout>
#include <QLabel>

/// A table of widgets on a page: one kind of widget a row, one state a column.
class PageGrid
{
public:
    /// The grid takes the whole of @p page over. @p labelWidth is that of the column in which the
    /// kinds are named, in pixels.
    PageGrid(QWidget* page, int labelWidth);

    /// Heads the state columns; identifiers of texts.
    void setStates(std::initializer_list<const char*> textIds);
    /// Begins a row for a kind of widget, @p height pixels high.
    void addRow(const char* className, int height);

    /// Fills the next place of the row, or leaves it empty for null.
    QWidget* add(QWidget* widget, int columns = 1, int rows = 1);
    /// Fills the next place with a photograph.
    void addPhoto(Photo::Make make, Photo::Pose pose);

    QWidget* page() const { return m_pPage; }

private:
    QWidget* m_pPage;
    QGridLayout* m_pLayout;
    int m_nRow = 0;
    int m_nRowHeight = 0;
    int m_nColumn = 0;
};
