// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

class QButtonGroup;
class QPushButton;

namespace appPlugins {

/// Two buttons of which one is checked: index 0 left, 1 right. The pair has the focus, its buttons
/// never do. Follows a change of language.
class APPPLUGINS_EXPORT CRadioButton : public QLabel
{
    Q_OBJECT

public:
    /// The identifiers name the texts and must outlive the pair.
    CRadioButton(QWidget* parent, const char* leftTextId, const char* rightTextId);

    void setRadioButtonsTextId(const char* leftTextId, const char* rightTextId);

    /// Checks or unchecks button @p index; nothing for an index that no button has. Emits nothing.
    void setChecked(int index, bool checked);

    /// Index of the checked button, -1 for none.
    int checkedIndex() const;

    void setDisabled(bool disable);

Q_SIGNALS:
    /// A button was tapped.
    void sgnButtonClicked(int index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QPushButton* createButton(const char* name, int index);
    void retranslate();

    QPushButton* m_leftButton;
    QPushButton* m_rightButton;
    const char* m_leftButtonTextId;
    const char* m_rightButtonTextId;
    QButtonGroup* m_pButtonsManager;

    static const QString m_selfStyleSheet;
};

} // namespace appPlugins
