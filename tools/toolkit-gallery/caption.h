// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// A small grey text of the gallery beside or above what it names. Follows a change of language.
class Caption : public QLabel
{
    Q_OBJECT

public:
    /// @p textId names the text and must outlive the caption.
    Caption(const char* textId, QWidget* parent);

    /// A text that is the same in every language, such as the name of a class.
    static QLabel* verbatim(const QString& text, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    const char* m_textId;
};
