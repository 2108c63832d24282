// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filelist.h"

#include "dialoglook.h"
#include "dragscroll.h"
#include "filemodel.h"
#include "filerowdelegate.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace HostDialogs {

FileList::FileList(FileModel* files, QWidget* parent)
    : QListView(parent)
{
    setModel(files);
    setItemDelegate(new FileRowDelegate(files, this));
    setFont(DialogLook::textFont());
    setFocusPolicy(Qt::StrongFocus);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    new DragScroll(this);
}

void FileList::move(int rows)
{
    const int count = model()->rowCount();
    if (count == 0)
        return;
    const int row = currentIndex().isValid() ? currentIndex().row() + rows : (rows > 0 ? 0 : count);
    select(qBound(0, row, count - 1));
}

void FileList::select(int row)
{
    const QModelIndex index = model()->index(row, 0);
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
}

// A row is chosen when the finger leaves it, and not when it begins to drag the list.
void FileList::mousePressEvent(QMouseEvent* event)
{
    m_pressed = indexAt(event->pos());
}

void FileList::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}

void FileList::mouseReleaseEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    const bool same = index.isValid() && index == m_pressed;
    m_pressed = QModelIndex();
    if (!same)
        return;

    setCurrentIndex(index);
    m_tapped = index;
    Q_EMIT tapped(index.row());
}

// The second tap of two may come down on a list that the first one has changed.
void FileList::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid() && index == m_tapped)
        Q_EMIT doubleTapped(index.row());
}

// With the focus alone no row is chosen yet.
void FileList::focusInEvent(QFocusEvent* event)
{
    const bool chosen = currentIndex().isValid();
    QListView::focusInEvent(event);
    if (!chosen)
        setCurrentIndex(QModelIndex());
}

void FileList::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void FileList::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore();
}

} // namespace HostDialogs
