// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "screendialog.h"

class QLabel;
class QLineEdit;

namespace HostDialogs {

class DialogButton;

/// Asks for the name of a new folder. It lies in the upper half of the screen, above the keyboard,
/// and does not let a bad name pass.
class NameDialog : public ScreenDialog
{
    Q_OBJECT

public:
    NameDialog();

    /// What was typed, without spaces around it.
    QString name() const;

    void accept() override;

protected:
    QRect panelPlace(const QRect& screen) const override;
    void retranslate() override;

private:
    QLabel* m_pTitle;
    QLineEdit* m_pName;
    DialogButton* m_pCreate;
    DialogButton* m_pCancel;
};

} // namespace HostDialogs
