// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QComboBox>

namespace appPlugins {

/// A choice for a touch screen: lifting the finger opens the list. Presses, moves and keys are left
/// to the parent, so that front-panel keys reach the dialog.
class APPPLUGINS_EXPORT CComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CComboBox(QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static const QString m_strSelfStyleSheet;
};

} // namespace appPlugins
