// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace appPlugins {

/// A label whose text, where its place is too narrow for it, loses its end and not the beginning
/// that an alignment to the right or to the centre would cut off.
class ElidingLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    /// Draws the text, or what of it fits with an ellipsis behind.
    void paintEvent(QPaintEvent* event) override
    {
        const QRect place = contentsRect();
        if (fontMetrics().horizontalAdvance(text()) <= place.width())
            return QLabel::paintEvent(event);

        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
        style()->drawItemText(&painter, place, alignment(), palette(), isEnabled(), shown,
                              foregroundRole());
    }
};

/// A push button that does the same.
class ElidingButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    /// What is drawn, with the text as far as it fits between the button's frame.
    QStyleOptionButton shownOption() const
    {
        const int frame = 4;
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text = fontMetrics().elidedText(text(), Qt::ElideRight, width() - 2 * frame);
        return option;
    }

    /// Draws shownOption().
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter(this).drawControl(QStyle::CE_PushButton, shownOption());
    }
};

} // namespace appPlugins
