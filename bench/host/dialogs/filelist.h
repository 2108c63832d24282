// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>
#include <QPersistentModelIndex>

namespace HostDialogs {

class DragScroll;
class FileModel;

/// A browser's list: rows for a finger, with picture, name, date and size. It is scrolled by
/// dragging; a tap is told when the finger is lifted. Keys are left to the browser.
class FileList : public QListView
{
    Q_OBJECT

public:
    FileList(FileModel* files, QWidget* parent);

    /// Goes @p rows on; to the first or last row from none.
    void move(int rows);
    /// Selects and shows a row; -1 selects none.
    void select(int row);

Q_SIGNALS:
    /// A finger chose a row.
    void tapped(int row);
    /// A finger chose the same row again, at once.
    void doubleTapped(int row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QPersistentModelIndex m_pressed;
    QPersistentModelIndex m_tapped;
};

} // namespace HostDialogs
