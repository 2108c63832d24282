// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QLabel>

class QPushButton;

namespace appPlugins {

/// The title of a parameter. A checkable title is a button; a finger that slides off it does not
/// click it. Follows a change of language.
class APPPLUGINS_EXPORT CSwitchLabel : public QLabel
{
    Q_OBJECT

public:
    /// @p textStrId names the text and must outlive the label; null for no text.
    CSwitchLabel(const char* textStrId, QWidget* parent, bool checkable);

    /// Disables or enables the label with what it holds. A disabled title is never clicked.
    void setDisabled(bool disable);

Q_SIGNALS:
    /// A checkable title was tapped.
    void sgnQLabelClicked();

protected:
    /// Lets the title not be clicked by a finger that slides off it.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Shows the text in the new language.
    void changeEvent(QEvent* event) override;

private:
    QWidget* createNormalLabel();
    QWidget* createCheckableLabel();
    void retranslate();

    const char* m_textStrId;
    QLabel* m_normalLabel = nullptr;
    QPushButton* m_checkabledLabel = nullptr;

    static const QString m_selfStyleSheet_normalLabel;
    static const QString m_selfStyleSheet_checkabledLabel;
};

} // namespace appPlugins
