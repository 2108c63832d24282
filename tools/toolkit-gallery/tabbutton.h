// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

/// A flat button of the bar at the top; a checked one is the tab of the page on show. Takes no
/// focus. Follows a change of language.
class TabButton : public QPushButton
{
    Q_OBJECT

public:
    /// @p textId names the text and must outlive the button; null for a text that setText() sets.
    TabButton(const char* textId, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    const char* m_textId;
};
