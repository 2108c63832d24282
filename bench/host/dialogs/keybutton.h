// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keyboardlayout.h"

#include <QAbstractButton>

namespace HostDialogs {

/// One key of the on-screen keyboard. It never takes the focus; while it is held, a key that
/// repeats clicks again and again.
class KeyButton : public QAbstractButton
{
    Q_OBJECT

public:
    KeyButton(const KeySpec& key, QWidget* parent);

    const KeySpec& key() const { return m_key; }
    /// Another picture, for a key that shows a state.
    void setGlyph(Glyph glyph);
    /// Sets the name anew that a key with a picture has in the user's language.
    void retranslate();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor background() const;

    KeySpec m_key;
};

} // namespace HostDialogs
