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
    /// @p textId names the title, @p iconPath the picture file (UTF-8); both must outlive the
    /// button.
    CPushButtonWithImage(const char* textId, const char* iconPath, QWidget* parent);
    ~CPushButtonWithImage() override;

    /// Shows the text of another identifier.
    void setText(const char* textId);
    void setDisabled(bool disable);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
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
