// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

/// A button of the gallery itself. Takes no focus, so that the widgets on show keep it. Follows a
/// change of language.
class TouchButton : public QPushButton
{
    Q_OBJECT

public:
    /// @p textId names the text and must outlive the button.
    TouchButton(const char* textId, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    const char* m_textId;
};
