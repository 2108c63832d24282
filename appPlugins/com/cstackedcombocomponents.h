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
    /// Empty at first.
    explicit CStackedComboComponents(QWidget* parent);

    /// Becomes the component's parent and tells it its index, which is returned. The first one is
    /// shown, with currentChanged().
    int addWidget(CPluginCombComponentBase* component);
    /// Disables or enables all components. Taps on their titles do nothing then; setCurrentIndex()
    /// still works.
    void setDisabled(bool disable);

public Q_SLOTS:
    /// Shows the component with this index; nothing for the one on show or an index that none has.
    void setCurrentIndex(Uint16 index);
    /// Emits currentChanged(): the stack inside shows another component.
    void slt_CurrentChanged(int index);
    /// Shows the component behind the one with this index, the first behind the last; nothing for
    /// an empty stack.
    void slt_stackedWidgetClicked(int index);

Q_SIGNALS:
    /// Another component is shown, by a tap or by setCurrentIndex().
    void currentChanged(Uint16 index);

private:
    QStackedWidget* m_stackedWidget;
    QVBoxLayout* m_layout;
};

} // namespace appPlugins
