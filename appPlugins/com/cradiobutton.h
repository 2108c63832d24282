// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

class QButtonGroup;
class QPushButton;

namespace appPlugins {

/// Two buttons of which at most one is checked: index 0 left, 1 right. The pair takes the focus on
/// a click, its buttons never do. Follows a change of language.
class APPPLUGINS_EXPORT CRadioButton : public QLabel
{
    Q_OBJECT

public:
    /// Neither is checked. The identifiers name the texts and must outlive the pair.
    CRadioButton(QWidget* parent, const char* leftTextId, const char* rightTextId);

    /// Shows the texts of other identifiers, which must outlive the pair.
    void setRadioButtonsTextId(const char* leftTextId, const char* rightTextId);

    /// Checks button @p index, also while disabled; nothing for an index that no button has. The
    /// other button is unchecked by that alone: false leaves a checked one checked. Emits nothing.
    void setChecked(int index, bool checked);

    /// Index of the checked button, -1 for none.
    int checkedIndex() const;

    /// Disables or enables the pair and its buttons. A disabled pair is never clicked.
    void setDisabled(bool disable);

Q_SIGNALS:
    /// Button @p index was tapped, be it the checked one.
    void sgnButtonClicked(int index);

protected:
    /// Lets no button be clicked by a finger that slides off it.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Shows the texts in the new language.
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
