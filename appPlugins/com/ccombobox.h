// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QComboBox>

namespace appPlugins {

/// A choice for a touch screen: lifting the finger opens the list. Mouse events and keys are left
/// to the parent, so that front-panel keys reach the dialog. A disabled one opens no list.
class APPPLUGINS_EXPORT CComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// Without items; its width is the layout's and not that of its texts.
    explicit CComboBox(QWidget* parent);

protected:
    /// Moves a text that is too long for its place nearer to the frame and the arrow.
    void paintEvent(QPaintEvent* event) override;
    /// Leaves the press to the parent.
    void mousePressEvent(QMouseEvent* event) override;
    /// Opens the list and leaves the release to the parent.
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Leaves the move to the parent.
    void mouseMoveEvent(QMouseEvent* event) override;
    /// Leaves the key to the parent: neither letters nor arrows choose.
    void keyPressEvent(QKeyEvent* event) override;

private:
    static const QString m_strSelfStyleSheet;
};

} // namespace appPlugins
