// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"

#include <QLabel>

class QStackedWidget;
class QVBoxLayout;

namespace appPlugins {

class CPluginCombComponentBase;

/// A stack of parameter components of which one is shown. Tapping the checkable title of the shown
/// one shows the next, the first after the last.
class APPPLUGINS_EXPORT CStackedComboComponents : public QLabel
{
    Q_OBJECT

public:
    explicit CStackedComboComponents(QWidget* parent);

    /// Takes a component over and tells it its index, which is returned.
    int addWidget(CPluginCombComponentBase* component);
    void setDisabled(bool disable);

public Q_SLOTS:
    /// Shows the component with this index; nothing for the one on show.
    void setCurrentIndex(Uint16 index);
    void slt_CurrentChanged(int index);
    /// Shows the component behind the one with this index.
    void slt_stackedWidgetClicked(int index);

Q_SIGNALS:
    void currentChanged(Uint16 index);

private:
    QStackedWidget* m_stackedWidget;
    QVBoxLayout* m_layout;
};

} // namespace appPlugins
