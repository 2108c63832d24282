// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "glyphs.h"

#include <QAbstractButton>

namespace HostDialogs {

/// A button for a finger: framed, or flat for the places of a path; blue while it has the focus or
/// is pressed. It leaves all keys but Space to the dialog, which knows what arrows and Enter mean.
class DialogButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// Framed, without text.
    explicit DialogButton(QWidget* parent);

    /// Shows @p glyph in front of the text, or alone.
    void setGlyph(Glyph glyph);
    /// Without a frame: text alone.
    void setFlat(bool flat);

    /// As wide as text and glyph want it, never narrower than a finger.
    QSize sizeHint() const override;
    /// A finger's width: a longer text is cut with an ellipsis.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void paintFrame(QPainter& painter) const;
    void paintContent(QPainter& painter) const;

    Glyph m_glyph = Glyph::None;
    bool m_bFlat = false;
};

} // namespace HostDialogs
