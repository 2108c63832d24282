// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QAbstractScrollArea;

namespace HostDialogs {

/// Moves the content of a scroll area with the finger that drags it. A press that stays where it is
/// goes on to the content; one that became a drag does not.
class DragScroll : public QObject
{
    Q_OBJECT

public:
    /// Watches @p area's viewport and belongs to @p area.
    explicit DragScroll(QAbstractScrollArea* area);

    /// The finger is down and has moved the content.
    bool isDragging() const { return m_bDragging; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool moved(int y);

    QAbstractScrollArea* m_pArea;
    bool m_bDown = false;
    bool m_bDragging = false;
    int m_nStart = 0;
    int m_nStartValue = 0;
};

} // namespace HostDialogs
