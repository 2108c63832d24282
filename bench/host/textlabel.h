// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// One line of text on the host's pages. Too long a text ends in dots; it lets touches through.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    TextLabel(int pixels, const QColor& color, QWidget* parent);

    void setBold(bool bold);
    void setColor(const QColor& color);

    /// Lets a text that is too long become smaller first, down to that height of its letters.
    void setFewestPixels(int pixels);

    /// What the text is painted with at the present width.
    QFont shownFont() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_nFewestPixels = 0;
};
