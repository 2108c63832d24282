// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QPushButton>

class QAction;
class QLabel;

namespace appPlugins {

/// A push button with a picture above its title. Follows a change of language.
class APPPLUGINS_EXPORT CPushButtonWithImage : public QPushButton
{
    Q_OBJECT

public:
    /// @p textId names the title, @p iconPath the picture file (UTF-8; one that cannot be read
    /// leaves its place empty); both must outlive the button.
    CPushButtonWithImage(const char* textId, const char* iconPath, QWidget* parent);
    /// Drops the picture.
    ~CPushButtonWithImage() override;

    /// Shows the text of another identifier, which must outlive the button.
    void setText(const char* textId);
    /// Disables or enables button and title. A disabled button is grey and never clicked.
    void setDisabled(bool disable);

    /// Room for picture and title.
    QSize sizeHint() const override;

protected:
    /// Shows the title in the new language.
    void changeEvent(QEvent* event) override;
    /// Draws frame and ground: blue while pressed, a blue frame with the focus.
    void paintEvent(QPaintEvent* event) override;

private:
    void retranslate();

    QAction* m_actionOpen;
    QLabel* m_pTitle;
    QIcon* m_pIcon;
    const char* m_textId;
    const char* m_iconPath;

    static const QString m_selfStyleSheet;
};

} // namespace appPlugins
